#pragma once

#include <utility>
#include <vector>

#include <QByteArray>
#include <QHash>
#include <QString>

namespace renderer {

/// Values of one object that are tried out in the picture and stand in no file: keys with what they would hold.
struct TrialValues {
  QString section;
  std::vector<std::pair<QString, QString>> values;

  /// Whether they are those of the section. Names are compared as the ini files do.
  bool areOf(const QString& name) const;
  /// The value on trial for a key; null without one.
  const QString* find(const QString& key) const;
};

/// What one frame of a trial sees: the values, and each file as it was when the frame first looked into it.
class TrialFrame {
 public:
  explicit TrialFrame(const TrialValues& values) : values_(values) {}

  /// The values on trial in a section; null without any.
  const TrialValues* valuesOf(const QString& section) const { return values_.areOf(section) ? &values_ : nullptr; }
  /// The bytes of a file; none of one that can't be read.
  QByteArray bytesOf(const QString& file);

 private:
  const TrialValues& values_;
  QHash<QString, QByteArray> files_;
};

}  // namespace renderer
