#include "propertybag/stored_bytes.h"

#include <QFont>
#include <QtEndian>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/little_endian.h"
#include "propertybag/name_hash.h"

namespace propertybag {
namespace {

// The format of stored bags. All numbers are little endian.
constexpr char BagMark[] = "-LB";
constexpr quint16 BagVersion = 9;
constexpr quint32 Magic = 0xB293;
constexpr qsizetype HeaderSize = 17;
/// Bytes at the start that the two length fields don't count.
constexpr qsizetype Uncounted = 9;

enum Tag : quint16 { Int16Tag = 2, Int32Tag = 3, StringTag = 8, BooleanTag = 11, ObjectTag = 13 };

constexpr qsizetype RecordHead = 12;
constexpr qsizetype Alignment = 4;
constexpr qint16 StoredTrue = -1;

constexpr qsizetype ClassSize = 16;
constexpr char PictureClass[] = "\x04\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\x00\xAA\x00\x4B\xB8\x51";
constexpr char FontClass[] = "\x03\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\x00\xAA\x00\x4B\xB8\x51";
constexpr quint32 PictureMark = 0x746C;
constexpr quint8 FontVersion = 1;
constexpr double SizesPerPoint = 10000;

/// Thrown when the bytes are no sound bag.
struct Damage {};

void require(bool sound) {
  if (!sound) throw Damage();
}

/// Reads from front to back. Throws Damage at the end of the bytes.
class Reader {
 public:
  explicit Reader(QByteArrayView bytes) : bytes_(bytes) {}

  qsizetype at() const { return at_; }
  QByteArrayView take(qint64 count) {
    require(count <= bytes_.size() - at_);
    at_ += count;
    return bytes_.sliced(at_ - count, count);
  }
  template <typename Number>
  Number number() {
    return qFromLittleEndian<Number>(take(sizeof(Number)).data());
  }
  QString text(qint64 length) {
    const QByteArrayView bytes = take(2 * length);
    QString text(length, Qt::Uninitialized);
    qFromLittleEndian<quint16>(bytes.data(), length, text.data());
    return text;
  }

 private:
  QByteArrayView bytes_;
  qsizetype at_ = 0;
};

QVariant font(Reader& reader) {
  constexpr int HeaviestWeight = 1000;
  require(reader.number<quint8>() == FontVersion);
  reader.take(3);  // character set and flags
  const int weight = reader.number<quint16>();
  const auto size = reader.number<quint32>();
  const auto nameLength = reader.number<quint8>();
  const QString name = platform::fromAnsi(reader.take(nameLength));
  require(weight > 0 && weight <= HeaviestWeight && size > 0);
  QFont font;
  font.setFamilies({name});
  font.setPointSizeF(size / SizesPerPoint);
  font.setWeight(static_cast<QFont::Weight>(weight));
  return font;
}

QVariant picture(Reader& reader) {
  require(reader.number<quint32>() == PictureMark);
  const auto size = reader.number<quint32>();
  return QVariant::fromValue(StoredPicture{reader.take(size).toByteArray()});
}

QVariant object(Reader& reader) {
  const QByteArrayView kind = reader.take(ClassSize);
  if (kind == QByteArrayView(FontClass, ClassSize)) return font(reader);
  require(kind == QByteArrayView(PictureClass, ClassSize));
  return picture(reader);
}

QVariant boolean(Reader& reader) {
  const auto stored = reader.number<qint16>();
  require(stored == 0 || stored == StoredTrue);
  return stored != 0;
}

QVariant valueOf(quint16 tag, Reader& reader) {
  switch (tag) {
    case Int16Tag:
      return QVariant::fromValue(reader.number<qint16>());
    case Int32Tag:
      return reader.number<qint32>();
    case StringTag:
      return reader.text(reader.number<quint32>());
    case BooleanTag:
      return boolean(reader);
    case ObjectTag:
      return object(reader);
    default:
      throw Damage();
  }
}

/// Reads the record at `from` and moves `from` to the next one. Returns whether it was the last.
bool readRecord(QByteArrayView records, qsizetype& from, PropertyBag& bag) {
  Reader reader(records.sliced(from));
  const auto tag = reader.number<quint16>();
  const auto keyLength = reader.number<quint16>();
  const auto hash = reader.number<quint32>();
  const auto distance = reader.number<qint32>();
  const QString key = reader.text(keyLength);
  require(!key.isEmpty() && key == key.toLower() && hash == nameHash(key) && !bag.contains(key));
  bag.WriteProperty(key, valueOf(tag, reader), {});
  while (reader.at() % Alignment != 0) require(reader.number<quint8>() == 0);
  const bool isLast = distance <= 0;
  require(isLast ? distance == -from : distance == reader.at());
  from += reader.at();
  return isLast;
}

PropertyBag readBag(QByteArrayView bytes) {
  Reader reader(bytes);
  require(reader.take(3) == QByteArrayView(BagMark) && reader.number<quint16>() == BagVersion);
  const auto following = static_cast<quint32>(bytes.size() - Uncounted);
  for (const quint32 expected : {following, Magic, following}) {
    require(reader.number<quint32>() == expected);
  }
  const QByteArrayView records = bytes.sliced(reader.at());
  PropertyBag bag;
  qsizetype from = 0;
  bool ended = records.isEmpty();
  while (!ended) ended = readRecord(records, from, bag);
  require(from == records.size());
  return bag;
}

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
  QByteArray bytes(FontClass, ClassSize);
  platform::appendLittle<quint8>(bytes, FontVersion);
  platform::appendLittle<quint16>(bytes, 0);  // character set
  platform::appendLittle<quint8>(bytes, 0);   // flags
  platform::appendLittle<quint16>(bytes, font.weight());
  platform::appendLittle<quint32>(bytes, qRound64(points * SizesPerPoint));
  platform::appendLittle<quint8>(bytes, name->size());
  return bytes + *name;
}

QByteArray pictureBytes(const QByteArray& file) {
  QByteArray bytes(PictureClass, ClassSize);
  platform::appendLittle<quint32>(bytes, PictureMark);
  platform::appendLittle<quint32>(bytes, file.size());
  return bytes + file;
}

struct StoredValue {
  Tag tag;
  QByteArray bytes;
};

StoredValue storedValue(const PropertyBag::Record& record) {
  const QVariant& value = record.value;
  QByteArray bytes;
  switch (value.typeId()) {
    case QMetaType::Short:
      platform::appendLittle(bytes, value.value<qint16>());
      return {Int16Tag, bytes};
    case QMetaType::Int:
      platform::appendLittle(bytes, value.value<qint32>());
      return {Int32Tag, bytes};
    case QMetaType::UInt:
      platform::appendLittle(bytes, value.value<quint32>());
      return {Int32Tag, bytes};
    case QMetaType::Bool:
      platform::appendLittle<qint16>(bytes, value.toBool() ? StoredTrue : 0);
      return {BooleanTag, bytes};
    case QMetaType::QString:
      platform::appendLittle<quint32>(bytes, value.toString().size());
      appendText(bytes, value.toString());
      return {StringTag, bytes};
    case QMetaType::QFont:
      return {ObjectTag, fontBytes(record.key, value.value<QFont>())};
    default:
      if (value.typeId() != qMetaTypeId<StoredPicture>()) refuse(record.key);
      return {ObjectTag, pictureBytes(value.value<StoredPicture>().file)};
  }
}

/// The bytes of a record, with the distance to the next one.
QByteArray storedRecord(const PropertyBag::Record& record) {
  const QString key = record.key.toLower();
  if (key.isEmpty() || key.size() > 0xFFFF) refuse(record.key);
  const auto [tag, value] = storedValue(record);
  const qsizetype bare = RecordHead + 2 * key.size() + value.size();
  const qsizetype padding = (Alignment - bare % Alignment) % Alignment;
  QByteArray bytes;
  platform::appendLittle<quint16>(bytes, tag);
  platform::appendLittle<quint16>(bytes, key.size());
  platform::appendLittle<quint32>(bytes, nameHash(key));
  platform::appendLittle<qint32>(bytes, static_cast<qint32>(bare + padding));
  appendText(bytes, key);
  return bytes + value + QByteArray(padding, '\0');
}

}  // namespace

std::optional<PropertyBag> bagOfBytes(QByteArrayView bytes) {
  try {
    return readBag(bytes);
  } catch (const Damage&) {
    return std::nullopt;
  }
}

QByteArray storedBytes(const PropertyBag& bag) {
  QByteArray records;
  qsizetype last = 0;
  for (const PropertyBag::Record& record : bag.records()) {
    last = records.size();
    records += storedRecord(record);
  }
  constexpr qsizetype DistancePlace = 8;
  if (!records.isEmpty()) qToLittleEndian(static_cast<qint32>(-last), records.data() + last + DistancePlace);
  const auto following = static_cast<quint32>(records.size() + HeaderSize - Uncounted);
  QByteArray bytes(BagMark);
  platform::appendLittle(bytes, BagVersion);
  platform::appendLittle(bytes, following);
  platform::appendLittle(bytes, Magic);
  platform::appendLittle(bytes, following);
  return bytes + records;
}

}  // namespace propertybag
