#pragma once

#include <map>

#include <QString>
#include <QVariant>

namespace platform {

/// The store of a control's properties: keys whatever their case, values that equal their default left out.
class PropertyBag {
 public:
  /// The stored value of the key, or `defaultValue` when it isn't stored.
  QVariant ReadProperty(const QString& key, const QVariant& defaultValue) const;
  /// Stores the value; one equal to `defaultValue` is left out.
  void WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue);
  bool contains(const QString& key) const;

 private:
  std::map<QString, QVariant> values_;
};

}  // namespace platform
