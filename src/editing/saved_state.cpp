#include "editing/saved_state.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "themefiles/working_copies.h"

namespace editing {
namespace {

using platform::IniKeys;
using platform::IniLine;
using themefiles::ThemePaths;

/// The text that the next edit would change.
QByteArray presentBytes(const themefiles::ModuleState& state, QString ThemePaths::*copy) {
  const auto standing = platform::readIfThere(state.paths.*copy, platform::AtLink::Replace);
  return standing && !standing->isEmpty() ? *standing : state.ownCopies.at(themefiles::copyNumber(copy));
}

/// Whether two lines of a key differ in their value; null is no line.
bool differ(const IniLine* a, const IniLine* b) {
  if (a == nullptr || b == nullptr) return a != b;
  return a->value != b->value;
}

IniKeys keysOf(const platform::IniSections& sections, const QString& section) {
  return platform::iniKeys(sections.lines(platform::toAnsi(section).value_or(QByteArray())));
}

QByteArray nameIn(const IniLine& reference) {
  return platform::unquoted(reference.value).toByteArray();
}

QString shownValue(const IniLine& line) {
  return platform::trimBlanks(platform::fromAnsi(line.line).section(u'=', 1, 1));
}

}  // namespace

void putLinesBack(themefiles::ModuleState& state, const SavedValue& saved, platform::StatusLine& status) {
  for (const SavedLine& line : saved.lines) {
    themefiles::putLineInCopy(state, line.copy, line.section, line.key, line.line, status);
  }
}

SavedState::File::File(const themefiles::ModuleState& state, QString ThemePaths::*copy)
    : now(presentBytes(state, copy)),
      saved(state.savedCopies.at(themefiles::copyNumber(copy))),
      nowSections(now),
      savedSections(saved) {}

SavedState::Target::Target(const File& file, QString ThemePaths::*working, const char* name)
    : differs(file.differs()),
      copy(working),
      section(name),
      now(platform::iniKeys(file.nowSections.lines(name))),
      saved(platform::iniKeys(file.savedSections.lines(name))) {}

SavedState::SavedState(const themefiles::ModuleState& state)
    : theme_(state, &ThemePaths::ThemeFile),
      skin_(state, &ThemePaths::SkinFile),
      language_(state, &ThemePaths::LanguageFile),
      textures_(skin_, &ThemePaths::SkinFile, "Textures"),
      texts_(language_, &ThemePaths::LanguageFile, "Text") {}

const SavedState::Target* SavedState::targetOf(std::optional<themefiles::KeyGroup> group) const {
  if (group == themefiles::KeyGroup::Text) return &texts_;
  return group == themefiles::KeyGroup::Texture ? &textures_ : nullptr;
}

/// Whether what the reference stands for differs.
bool SavedState::differsIn(const Target* target, const IniLine& reference) {
  if (target == nullptr || !target->differs) return false;
  const QByteArray name = nameIn(reference);
  return differ(platform::lineOf(target->now, name), platform::lineOf(target->saved, name));
}

void SavedState::addTarget(SavedValue& saved, const Target& target, const IniLine& reference) {
  const QByteArray name = nameIn(reference);
  const IniLine* line = platform::lineOf(target.saved, name);
  saved.told += QStringLiteral(" = ") + (line == nullptr ? QStringLiteral("nothing") : platform::fromAnsi(line->value));
  if (line == nullptr) return;
  saved.lines.push_back(
      {target.copy, QLatin1StringView(target.section), platform::fromAnsi(name), line->line.toByteArray()});
}

bool SavedState::differsIn(const QString& section) const {
  const QByteArray name = platform::toAnsi(section).value_or(QByteArray());
  const bool sameLines = theme_.nowSections.lines(name) == theme_.savedSections.lines(name);
  if (sameLines && !textures_.differs && !texts_.differs) return false;
  return SavedObject(*this, section).differs();
}

SavedObject::SavedObject(const SavedState& files, const QString& section)
    : files_(files),
      section_(section),
      now_(keysOf(files.theme_.nowSections, section)),
      saved_(keysOf(files.theme_.savedSections, section)) {}

std::optional<SavedValue> SavedObject::of(const QString& key, std::optional<themefiles::KeyGroup> group) const {
  const QByteArray keyBytes = platform::toAnsi(key).value_or(QByteArray());
  const IniLine* now = platform::lineOf(now_, keyBytes);
  const IniLine* saved = platform::lineOf(saved_, keyBytes);
  if (now == nullptr) return std::nullopt;
  const SavedState::Target* target = files_.targetOf(group);
  const bool valueDiffers = differ(now, saved);
  if (!valueDiffers && !SavedState::differsIn(target, *now)) return std::nullopt;
  if (saved == nullptr) return SavedValue{{}, QStringLiteral("nothing"), {}};
  SavedValue result{shownValue(*saved), shownValue(*saved), {}};
  if (valueDiffers) result.lines.push_back({&ThemePaths::ThemeFile, section_, key, saved->line.toByteArray()});
  if (SavedState::differsIn(target, *saved)) SavedState::addTarget(result, *target, *saved);
  return result;
}

std::optional<SavedValue> SavedObject::takeOf(const QString& key, std::optional<themefiles::KeyGroup> group) {
  auto value = of(key, group);
  now_.remove({platform::toAnsi(key).value_or(QByteArray())});
  return value;
}

bool SavedObject::differs() const {
  return std::any_of(now_.begin(), now_.end(), [this](const IniLine& line) {
    if (line.key.startsWith('#')) return false;  // no row of the grid
    const auto* target = files_.targetOf(themefiles::groupOf(themefiles::keyIdentity(platform::fromAnsi(line.key))));
    return differ(&line, platform::lineOf(saved_, line.key)) || SavedState::differsIn(target, line);
  });
}

std::optional<SavedValue> savedValue(const themefiles::ModuleState& state, const QString& section, const QString& key) {
  const SavedState saved(state);
  return SavedObject(saved, section).of(key, themefiles::groupOf(key));
}

}  // namespace editing
