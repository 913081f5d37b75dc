#pragma once

#include <map>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QHash>
#include <QString>

#include "platform/file_identity.h"
#include "platform/ini_reading.h"
#include "themefiles/ini_access.h"

namespace renderer {

/// Values of one object that are tried out in the picture and stand in no file: keys with what they would hold.
struct TrialValues {
  QString section;
  std::vector<std::pair<QString, QString>> values;

  /// The value on trial for a key; null without one.
  const QString* find(const QString& key) const;
};

/// The values of a section among those of several objects; null without any. Names are compared as the ini files do.
const TrialValues* valuesOf(const QString& section, const std::vector<TrialValues>& objects);

/// The files that the frames of one trial look into. Each frame looks at them anew; what was found in a file stays
/// found as long as the file is the same, or its bytes are.
class TrialFiles {
 public:
  /// From here on each file is looked at once more, when something in it is asked for.
  void beginFrame();
  /// A section of a file; without keys for one that isn't there or can't be read. Holds until the next frame begins.
  const themefiles::SectionReader& section(const QString& name, const QString& file);

 private:
  struct SeenFile {
    explicit SeenFile(QByteArray bytes) : file(platform::IniText(std::move(bytes))) {}
    Q_DISABLE_COPY_MOVE(SeenFile)

    platform::IniSections file;
    std::unordered_map<QString, themefiles::SectionReader> readers;
    std::optional<platform::FileIdentity>
        kept;  ///< the file is the same as long as this is; none if that isn't certain
    bool isOfThisFrame = true;
  };

  SeenFile& seen(const QString& file);

  std::map<QString, std::unique_ptr<SeenFile>> files_;
};

/// What one frame of a trial sees: the values of all objects on trial, and each file as it was when the frame first
/// looked into it.
class TrialFrame {
 public:
  TrialFrame(const std::vector<TrialValues>& objects, TrialFiles& files) : TrialFrame(files) { objects_ = &objects; }
  /// Without values on trial: only each file is read once.
  explicit TrialFrame(TrialFiles& files) : files_(files) { files_.beginFrame(); }

  /// The values on trial in a section; null without any.
  const TrialValues* valuesOf(const QString& section) const {
    return objects_ == nullptr ? nullptr : renderer::valuesOf(section, *objects_);
  }
  const themefiles::SectionReader& section(const QString& name, const QString& file) const {
    return files_.section(name, file);
  }
  /// What is found at a picture's path. Throws platform::Failure if that can't be seen.
  std::optional<platform::FileIdentity> pictureAt(const QString& path);

 private:
  const std::vector<TrialValues>* objects_ = nullptr;
  TrialFiles& files_;
  QHash<QString, std::optional<platform::FileIdentity>> pictures_;
};

}  // namespace renderer
