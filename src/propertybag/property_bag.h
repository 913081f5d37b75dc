#pragma once

#include <map>
#include <vector>

#include <QString>
#include <QVariant>

namespace propertybag {

/// A picture as a bag keeps it: the bytes of an image file.
struct StoredPicture {
  QByteArray file;
  bool operator==(const StoredPicture&) const = default;
};

/// The store of a control's properties: keys whatever their case, values that equal their default left out.
class PropertyBag {
 public:
  struct Record {
    QString key;
    QVariant value;
  };

  /// The stored value of the key, or `defaultValue` when it isn't stored.
  QVariant ReadProperty(const QString& key, const QVariant& defaultValue) const;
  /// Stores the value behind the others, or in its place when the key is there; one equal to `defaultValue` is left
  /// out.
  void WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue);
  bool contains(const QString& key) const;
  /// In the order in which they were first written.
  std::vector<Record> records() const;

 private:
  struct Entry {
    qint64 order;
    Record record;
  };
  std::map<QString, Entry> entries_;
  qint64 written_ = 0;
};

}  // namespace propertybag

Q_DECLARE_METATYPE(propertybag::StoredPicture)
