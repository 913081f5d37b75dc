#include "toolwindow/saved_state.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "themefiles/working_copies.h"

namespace toolwindow {
namespace {

using platform::ProfileKeys;
using platform::ProfileLine;
using themefiles::ThemePaths;

/// The text of the working copy; none if it can't be read, so that nothing is marked.
QByteArray presentBytes(const QString& path, const QByteArray& saved) {
  try {
    return platform::readFile(path);
  } catch (const platform::Failure&) {
    return saved;
  }
}

const QByteArray& savedBytes(const themefiles::ModuleState& state, QString ThemePaths::*copy) {
  return state.savedCopies.at(themefiles::copyNumber(copy));
}

/// Whether two lines of a key differ in their value; null is no line.
bool differ(const ProfileLine* a, const ProfileLine* b) {
  if (a == nullptr || b == nullptr) return a != b;
  return a->value != b->value;
}

ProfileKeys keysOf(const platform::ProfileSections& sections, const QString& section) {
  return platform::profileKeys(sections.lines(platform::toAnsi(section).value_or(QByteArray())));
}

QByteArray nameIn(const ProfileLine& reference) {
  return platform::unquoted(reference.value).toByteArray();
}

QString shownValue(const ProfileLine& line) {
  return platform::trimBlanks(platform::fromAnsi(line.line).section(u'=', 1, 1));
}

}  // namespace

SavedState::File::File(const QString& path, const QByteArray& savedBytes)
    : now(presentBytes(path, savedBytes)), saved(savedBytes), nowSections(now), savedSections(saved) {}

SavedState::Target::Target(const File& file, QString ThemePaths::*working, const char* name)
    : differs(file.differs()),
      copy(working),
      section(name),
      now(platform::profileKeys(file.nowSections.lines(name))),
      saved(platform::profileKeys(file.savedSections.lines(name))) {}

SavedState::SavedState(const themefiles::ModuleState& state)
    : theme_(state.paths.ThemeFile, savedBytes(state, &ThemePaths::ThemeFile)),
      skin_(state.paths.SkinFile, savedBytes(state, &ThemePaths::SkinFile)),
      language_(state.paths.LanguageFile, savedBytes(state, &ThemePaths::LanguageFile)),
      textures_(skin_, &ThemePaths::SkinFile, "Textures"),
      texts_(language_, &ThemePaths::LanguageFile, "Text") {}

const SavedState::Target* SavedState::targetOf(std::optional<themefiles::KeyGroup> group) const {
  if (group == themefiles::KeyGroup::Text) return &texts_;
  return group == themefiles::KeyGroup::Texture ? &textures_ : nullptr;
}

/// Whether what the reference stands for differs.
bool SavedState::differsIn(const Target* target, const ProfileLine& reference) {
  if (target == nullptr || !target->differs) return false;
  const QByteArray name = nameIn(reference);
  return differ(platform::lineOf(target->now, name), platform::lineOf(target->saved, name));
}

void SavedState::addTarget(SavedValue& saved, const Target& target, const ProfileLine& reference) {
  const QByteArray name = nameIn(reference);
  const ProfileLine* line = platform::lineOf(target.saved, name);
  saved.told += QStringLiteral(" = ") + (line == nullptr ? QStringLiteral("nothing") : platform::fromAnsi(line->value));
  if (line == nullptr) return;
  saved.lines.push_back(
      {target.copy, QLatin1StringView(target.section), platform::fromAnsi(name), line->line.toByteArray()});
}

std::optional<SavedValue> SavedState::of(const QString& section, const QString& key,
                                         std::optional<themefiles::KeyGroup> group) const {
  const QByteArray keyBytes = platform::toAnsi(key).value_or(QByteArray());
  const ProfileKeys nowKeys = keysOf(theme_.nowSections, section);
  const ProfileKeys savedKeys = keysOf(theme_.savedSections, section);
  const ProfileLine* now = platform::lineOf(nowKeys, keyBytes);
  const ProfileLine* saved = platform::lineOf(savedKeys, keyBytes);
  if (now == nullptr) return std::nullopt;
  const Target* target = targetOf(group);
  const bool valueDiffers = differ(now, saved);
  if (!valueDiffers && !differsIn(target, *now)) return std::nullopt;
  if (saved == nullptr) return SavedValue{{}, QStringLiteral("nothing"), {}};
  SavedValue result{shownValue(*saved), shownValue(*saved), {}};
  if (valueDiffers) result.lines.push_back({&ThemePaths::ThemeFile, section, key, saved->line.toByteArray()});
  if (differsIn(target, *saved)) addTarget(result, *target, *saved);
  return result;
}

bool SavedState::differsIn(const QString& section) const {
  const QByteArray name = platform::toAnsi(section).value_or(QByteArray());
  const bool sameLines = theme_.nowSections.lines(name) == theme_.savedSections.lines(name);
  if (sameLines && !textures_.differs && !texts_.differs) return false;
  const ProfileKeys now = keysOf(theme_.nowSections, section);
  const ProfileKeys saved = keysOf(theme_.savedSections, section);
  return std::any_of(now.begin(), now.end(), [&](const ProfileLine& line) {
    if (line.key.startsWith('#')) return false;  // no row of the grid
    const Target* target = targetOf(themefiles::groupOf(themefiles::keyIdentity(platform::fromAnsi(line.key))));
    return differ(&line, platform::lineOf(saved, line.key)) || differsIn(target, line);
  });
}

}  // namespace toolwindow
