#include "renderer/trial_values.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"

namespace renderer {

bool TrialValues::areOf(const QString& name) const {
  return platform::sameName(name, section);
}

const QString* TrialValues::find(const QString& key) const {
  const auto found = std::find_if(values.begin(), values.end(),
                                  [&](const auto& value) { return platform::sameName(value.first, key); });
  return found == values.end() ? nullptr : &found->second;
}

QByteArray TrialFrame::bytesOf(const QString& file) {
  const auto known = files_.constFind(file);
  if (known != files_.constEnd()) return *known;
  QByteArray bytes;
  try {
    bytes = platform::readFile(file);
  } catch (const platform::Failure&) {
    // A file that can't be read holds no key.
  }
  files_.insert(file, bytes);
  return bytes;
}

}  // namespace renderer
