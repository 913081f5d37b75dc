#include <bit>

#include <QFont>
#include <QtEndian>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/little_endian.h"
#include "platform/property_bag_bytes.h"
#include "platform/property_bag_format.h"

namespace platform {

namespace bag {

quint32 KeyHash(QStringView key) {
  constexpr int Turn = 13;
  quint32 hash = 0;
  for (const QChar unit : key) hash = std::rotl(hash, Turn) ^ unit.unicode();
  return hash;
}

}  // namespace bag

namespace {

constexpr double PointsPerPixel = 0.75;  // 96 pixels an inch

void appendText(QByteArray& bytes, QStringView text) {
  for (const QChar unit : text) AppendLittle<quint16>(bytes, unit.unicode());
}

[[noreturn]] void refuse(const QString& key) {
  throw Failure(QStringLiteral("can't store the property ") + key);
}

QByteArray fontBytes(const QString& key, const QFont& font) {
  constexpr qsizetype LongestName = 255;
  const std::optional<QByteArray> name = ToAnsi(font.family());
  if (!name || name->size() > LongestName) refuse(key);
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * PointsPerPixel;
  QByteArray bytes(bag::FontClass, bag::ClassSize);
  AppendLittle<quint8>(bytes, bag::FontVersion);
  AppendLittle<quint16>(bytes, 0);  // character set
  AppendLittle<quint8>(bytes, 0);   // flags
  AppendLittle<quint16>(bytes, quint16(font.weight()));
  AppendLittle<quint32>(bytes, quint32(qRound64(points * bag::SizesPerPoint)));
  AppendLittle<quint8>(bytes, quint8(name->size()));
  return bytes + *name;
}

QByteArray pictureBytes(const QByteArray& file) {
  QByteArray bytes(bag::PictureClass, bag::ClassSize);
  AppendLittle<quint32>(bytes, bag::PictureMark);
  AppendLittle<quint32>(bytes, quint32(file.size()));
  return bytes + file;
}

struct StoredValue {
  bag::Tag tag;
  QByteArray bytes;
};

StoredValue storedValue(const PropertyBag::Record& record) {
  const QVariant& value = record.value;
  QByteArray bytes;
  switch (value.typeId()) {
    case QMetaType::Short:
      AppendLittle(bytes, value.value<qint16>());
      return {bag::Int16Tag, bytes};
    case QMetaType::Int:
      AppendLittle(bytes, value.value<qint32>());
      return {bag::Int32Tag, bytes};
    case QMetaType::UInt:
      AppendLittle(bytes, value.value<quint32>());
      return {bag::Int32Tag, bytes};
    case QMetaType::Bool:
      AppendLittle<qint16>(bytes, value.toBool() ? bag::StoredTrue : 0);
      return {bag::BooleanTag, bytes};
    case QMetaType::QString:
      AppendLittle<quint32>(bytes, quint32(value.toString().size()));
      appendText(bytes, value.toString());
      return {bag::StringTag, bytes};
    case QMetaType::QFont:
      return {bag::ObjectTag, fontBytes(record.key, value.value<QFont>())};
    default:
      if (value.typeId() != qMetaTypeId<StoredPicture>()) refuse(record.key);
      return {bag::ObjectTag, pictureBytes(value.value<StoredPicture>().File)};
  }
}

/// The record with the distance to the next one.
QByteArray storedRecord(const PropertyBag::Record& record) {
  const QString key = record.key.toLower();
  if (key.isEmpty() || key.size() > 0xFFFF) refuse(record.key);
  const auto [tag, value] = storedValue(record);
  const qsizetype bare = bag::RecordHead + 2 * key.size() + value.size();
  const qsizetype padding = (bag::Alignment - bare % bag::Alignment) % bag::Alignment;
  QByteArray bytes;
  AppendLittle<quint16>(bytes, tag);
  AppendLittle<quint16>(bytes, quint16(key.size()));
  AppendLittle<quint32>(bytes, bag::KeyHash(key));
  AppendLittle<qint32>(bytes, qint32(bare + padding));
  appendText(bytes, key);
  return bytes + value + QByteArray(padding, '\0');
}

}  // namespace

QByteArray StoredBytes(const PropertyBag& bag) {
  QByteArray records;
  qsizetype last = 0;
  for (const PropertyBag::Record& record : bag.Records()) {
    last = records.size();
    records += storedRecord(record);
  }
  constexpr qsizetype DistancePlace = 8;
  if (!records.isEmpty()) qToLittleEndian(qint32(-last), records.data() + last + DistancePlace);
  const auto following = quint32(records.size() + bag::HeaderSize - bag::Uncounted);
  QByteArray bytes(bag::Mark);
  AppendLittle(bytes, bag::Version);
  AppendLittle(bytes, following);
  AppendLittle(bytes, bag::Magic);
  AppendLittle(bytes, following);
  return bytes + records;
}

}  // namespace platform
