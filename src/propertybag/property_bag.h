#pragma once

#include <map>
#include <vector>

#include <QString>
#include <QVariant>

namespace propertybag {

/// A picture in a bag: the bytes of an image file.
struct StoredPicture {
  QByteArray file;
  bool operator==(const StoredPicture&) const = default;
};

/// Stores the properties of a control. The case of keys is ignored. Values that equal their default are left out.
class PropertyBag {
 public:
  struct Record {
    QString key;
    QVariant value;
  };

  /// The value of the key, or `defaultValue` if it isn't stored.
  QVariant ReadProperty(const QString& key, const QVariant& defaultValue) const;
  /// Stores the value after the others, or replaces the key's value in its place. Removes one equal to `defaultValue`.
  void WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue);
  bool contains(const QString& key) const;
  /// The records in the order in which they were first written.
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
