#include "renderer/trial_values.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/status_line.h"

namespace renderer {

const QString* TrialValues::find(const QString& key) const {
  const auto found = std::find_if(values.begin(), values.end(),
                                  [&](const auto& value) { return platform::sameName(value.first, key); });
  return found == values.end() ? nullptr : &found->second;
}

void TrialFiles::beginFrame() {
  for (const auto& [name, file] : files_) file->isOfThisFrame = false;
}

TrialFiles::SeenFile& TrialFiles::seen(const QString& file) {
  std::unique_ptr<SeenFile>& seen = files_[file];
  if (seen && seen->isOfThisFrame) return *seen;
  const auto identity = platform::identityIfSeen(file);
  if (!seen || !identity || seen->kept != identity) {
    const bool settled = identity && platform::isSettled(*identity);
    QByteArray bytes;
    const bool isRead = platform::guardedSilently([&] { bytes = platform::readFile(file); });
    if (!seen || seen->file.text().bytes() != bytes) seen = std::make_unique<SeenFile>(std::move(bytes));
    // What couldn't be read may be the next time, and the file is still the same.
    seen->kept = isRead && settled && platform::identityIfSeen(file) == identity ? identity : std::nullopt;
  }
  seen->isOfThisFrame = true;
  return *seen;
}

const themefiles::SectionReader& TrialFiles::section(const QString& name, const QString& file) {
  SeenFile& all = seen(file);
  const auto known = all.readers.find(name);
  if (known != all.readers.end()) return known->second;
  return all.readers.try_emplace(name, name, all.file).first->second;
}

const TrialValues* valuesOf(const QString& section, const std::vector<TrialValues>& objects) {
  const QString name = platform::trimBlanks(section);
  const auto found = std::find_if(objects.begin(), objects.end(),
                                  [&](const TrialValues& object) { return platform::sameName(name, object.section); });
  return found == objects.end() ? nullptr : &*found;
}

std::optional<platform::FileIdentity> TrialFrame::pictureAt(const QString& path) {
  const auto seen = pictures_.constFind(path);
  return seen != pictures_.constEnd() ? *seen : *pictures_.insert(path, platform::identityOf(path));
}

}  // namespace renderer
