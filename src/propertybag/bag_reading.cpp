#include <QFont>
#include <QtEndian>

#include "platform/code_page.h"
#include "propertybag/bag_format.h"
#include "propertybag/name_hash.h"
#include "propertybag/stored_bytes.h"

namespace propertybag {

namespace {

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
  require(reader.number<quint8>() == bag::FontVersion);
  reader.take(3);  // character set and flags
  const int weight = reader.number<quint16>();
  const auto size = reader.number<quint32>();
  const auto nameLength = reader.number<quint8>();
  const QString name = platform::fromAnsi(reader.take(nameLength));
  require(weight > 0 && weight <= HeaviestWeight && size > 0);
  QFont font;
  font.setFamilies({name});
  font.setPointSizeF(size / bag::SizesPerPoint);
  font.setWeight(static_cast<QFont::Weight>(weight));
  return font;
}

QVariant picture(Reader& reader) {
  require(reader.number<quint32>() == bag::PictureMark);
  const auto size = reader.number<quint32>();
  return QVariant::fromValue(StoredPicture{reader.take(size).toByteArray()});
}

QVariant object(Reader& reader) {
  const QByteArrayView kind = reader.take(bag::ClassSize);
  if (kind == QByteArrayView(bag::FontClass, bag::ClassSize)) return font(reader);
  require(kind == QByteArrayView(bag::PictureClass, bag::ClassSize));
  return picture(reader);
}

QVariant boolean(Reader& reader) {
  const auto stored = reader.number<qint16>();
  require(stored == 0 || stored == bag::StoredTrue);
  return stored != 0;
}

QVariant valueOf(quint16 tag, Reader& reader) {
  switch (tag) {
    case bag::Int16Tag:
      return QVariant::fromValue(reader.number<qint16>());
    case bag::Int32Tag:
      return reader.number<qint32>();
    case bag::StringTag:
      return reader.text(reader.number<quint32>());
    case bag::BooleanTag:
      return boolean(reader);
    case bag::ObjectTag:
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
  while (reader.at() % bag::Alignment != 0) require(reader.number<quint8>() == 0);
  const bool isLast = distance <= 0;
  require(isLast ? distance == -from : distance == reader.at());
  from += reader.at();
  return isLast;
}

PropertyBag readBag(QByteArrayView bytes) {
  Reader reader(bytes);
  require(reader.take(3) == QByteArrayView(bag::Mark) && reader.number<quint16>() == bag::Version);
  const auto following = static_cast<quint32>(bytes.size() - bag::Uncounted);
  for (const quint32 expected : {following, bag::Magic, following}) {
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

}  // namespace

std::optional<PropertyBag> bagOfBytes(QByteArrayView bytes) {
  try {
    return readBag(bytes);
  } catch (const Damage&) {
    return std::nullopt;
  }
}

}  // namespace propertybag
