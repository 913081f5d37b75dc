#pragma once

#include <map>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QString>

#include "platform/profile_reading.h"
#include "themefiles/ini_access.h"

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
  /// A section of a file; without keys for one that isn't there or can't be read.
  const themefiles::SectionReader& section(const QString& name, const QString& file);

 private:
  /// A file with its sections found once: a frame asks for many values.
  struct SeenFile {
    explicit SeenFile(QByteArray all) : bytes(std::move(all)), sections(bytes) {}
    Q_DISABLE_COPY_MOVE(SeenFile)

    QByteArray bytes;
    platform::ProfileSections sections;
    std::map<QString, themefiles::SectionReader> readers;
  };

  const TrialValues& values_;
  std::map<QString, SeenFile> files_;
};

}  // namespace renderer
