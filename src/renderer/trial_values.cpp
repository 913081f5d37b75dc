#include "renderer/trial_values.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/numbers.h"

namespace renderer {

bool TrialValues::areOf(const QString& name) const {
  return platform::sameName(platform::trimBlanks(name), section);
}

const QString* TrialValues::find(const QString& key) const {
  const auto found = std::find_if(values.begin(), values.end(),
                                  [&](const auto& value) { return platform::sameName(value.first, key); });
  return found == values.end() ? nullptr : &found->second;
}

const themefiles::SectionReader& TrialFrame::section(const QString& name, const QString& file) {
  auto seen = files_.find(file);
  if (seen == files_.end()) seen = files_.try_emplace(file, themefiles::bytesOrNone(file)).first;
  SeenFile& all = seen->second;
  const auto known = all.readers.find(name);
  if (known != all.readers.end()) return known->second;
  const auto bytes = platform::toAnsi(name);
  const QByteArrayView lines = bytes ? all.sections.lines(*bytes) : QByteArrayView();
  return all.readers.try_emplace(name, all.bytes, lines.isNull() ? std::nullopt : std::optional(lines)).first->second;
}

}  // namespace renderer
