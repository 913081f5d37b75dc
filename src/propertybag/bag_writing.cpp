#include <QFont>
#include <QtEndian>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/little_endian.h"
#include "propertybag/bag_format.h"
#include "propertybag/name_hash.h"
#include "propertybag/stored_bytes.h"

namespace propertybag {

namespace {

constexpr double PointsPerPixel = 0.75;  // 96 pixels per inch

void appendText(QByteArray& bytes, QStringView text) {
  for (const QChar unit : text) platform::appendLittle<quint16>(bytes, unit.unicode());
}

[[noreturn]] void refuse(const QString& key) {
  throw platform::Failure(QStringLiteral("can't store the property ") + key);
}

QByteArray fontBytes(const QString& key, const QFont& font) {
  constexpr qsizetype LongestName = 255;
  const std::optional<QByteArray> name = platform::toAnsi(font.family());
  if (!name || name->size() > LongestName) refuse(key);
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * PointsPerPixel;
  QByteArray bytes(bag::FontClass, bag::ClassSize);
  platform::appendLittle<quint8>(bytes, bag::FontVersion);
  platform::appendLittle<quint16>(bytes, 0);  // character set
  platform::appendLittle<quint8>(bytes, 0);   // flags
  platform::appendLittle<quint16>(bytes, font.weight());
  platform::appendLittle<quint32>(bytes, qRound64(points * bag::SizesPerPoint));
  platform::appendLittle<quint8>(bytes, name->size());
  return bytes + *name;
}

QByteArray pictureBytes(const QByteArray& file) {
  QByteArray bytes(bag::PictureClass, bag::ClassSize);
  platform::appendLittle<quint32>(bytes, bag::PictureMark);
  platform::appendLittle<quint32>(bytes, file.size());
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
      platform::appendLittle(bytes, value.value<qint16>());
      return {bag::Int16Tag, bytes};
    case QMetaType::Int:
      platform::appendLittle(bytes, value.value<qint32>());
      return {bag::Int32Tag, bytes};
    case QMetaType::UInt:
      platform::appendLittle(bytes, value.value<quint32>());
      return {bag::Int32Tag, bytes};
    case QMetaType::Bool:
      platform::appendLittle<qint16>(bytes, value.toBool() ? bag::StoredTrue : 0);
      return {bag::BooleanTag, bytes};
    case QMetaType::QString:
      platform::appendLittle<quint32>(bytes, value.toString().size());
      appendText(bytes, value.toString());
      return {bag::StringTag, bytes};
    case QMetaType::QFont:
      return {bag::ObjectTag, fontBytes(record.key, value.value<QFont>())};
    default:
      if (value.typeId() != qMetaTypeId<StoredPicture>()) refuse(record.key);
      return {bag::ObjectTag, pictureBytes(value.value<StoredPicture>().file)};
  }
}

/// The bytes of a record, with the distance to the next one.
QByteArray storedRecord(const PropertyBag::Record& record) {
  const QString key = record.key.toLower();
  if (key.isEmpty() || key.size() > 0xFFFF) refuse(record.key);
  const auto [tag, value] = storedValue(record);
  const qsizetype bare = bag::RecordHead + 2 * key.size() + value.size();
  const qsizetype padding = (bag::Alignment - bare % bag::Alignment) % bag::Alignment;
  QByteArray bytes;
  platform::appendLittle<quint16>(bytes, tag);
  platform::appendLittle<quint16>(bytes, key.size());
  platform::appendLittle<quint32>(bytes, nameHash(key));
  platform::appendLittle<qint32>(bytes, static_cast<qint32>(bare + padding));
  appendText(bytes, key);
  return bytes + value + QByteArray(padding, '\0');
}

}  // namespace

QByteArray storedBytes(const PropertyBag& bag) {
  QByteArray records;
  qsizetype last = 0;
  for (const PropertyBag::Record& record : bag.records()) {
    last = records.size();
    records += storedRecord(record);
  }
  constexpr qsizetype DistancePlace = 8;
  if (!records.isEmpty()) qToLittleEndian(static_cast<qint32>(-last), records.data() + last + DistancePlace);
  const auto following = static_cast<quint32>(records.size() + bag::HeaderSize - bag::Uncounted);
  QByteArray bytes(bag::Mark);
  platform::appendLittle(bytes, bag::Version);
  platform::appendLittle(bytes, following);
  platform::appendLittle(bytes, bag::Magic);
  platform::appendLittle(bytes, following);
  return bytes + records;
}

}  // namespace propertybag
