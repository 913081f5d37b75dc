#include "editing/saved_state.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themefiles/tag_reader.h"
#include "themefiles/working_copies.h"

namespace editing {
namespace {

using platform::IniKeys;
using platform::IniLine;
using themefiles::ThemePaths;

IniKeys keysOf(const platform::IniSections& sections, const QString& section) {
  return platform::iniKeys(sections.lines(platform::toAnsi(section).value_or(QByteArray())));
}

QByteArray nameIn(const IniLine& reference) {
  return platform::unquoted(reference.value).toByteArray();
}

}  // namespace

void putLinesBack(themefiles::ModuleState& state, const std::vector<SavedLine>& lines, platform::StatusLine& status) {
  for (const auto copy : {&ThemePaths::ThemeFile, &ThemePaths::SkinFile, &ThemePaths::LanguageFile}) {
    std::vector<themefiles::KeyedLine> own;
    for (const SavedLine& line : lines) {
      if (line.copy == copy) own.push_back({line.section, line.key, line.line});
    }
    if (!own.empty()) themefiles::putLinesInCopy(state, copy, own, status);
  }
}

SavedState::Target::Target(const ComparedFile& file, const char* name)
    : differs(file.now.lines(name) != file.saved.lines(name)),
      copy(file.copy),
      section(name),
      now(platform::iniKeys(file.now.lines(name))),
      saved(platform::iniKeys(file.saved.lines(name))) {}

SavedState::SavedState(const themefiles::ModuleState& state)
    : files_(state),
      textures_(files_.skin, "Textures"),
      texts_(files_.language, "Text"),
      colors_(files_.theme, "Colors") {}

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

/// Whether the theme's colour differs. Case counts in the names of colours.
bool SavedState::colorDiffers(const QByteArray& name) const {
  const IniLine* now = platform::lineOf(colors_.now, name);
  const IniLine* saved = platform::lineOf(colors_.saved, name);
  const bool isNamed = (now != nullptr && now->key == name) || (saved != nullptr && saved->key == name);
  return isNamed && differ(now, saved);
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
  const bool sameLines = files_.theme.now.lines(name) == files_.theme.saved.lines(name);
  if (sameLines && !textures_.differs && !texts_.differs && !colors_.differs) return false;
  return SavedObject(*this, section).differs();
}

SavedObject::SavedObject(const SavedState& files, const QString& section)
    : files_(files),
      section_(section),
      now_(keysOf(files.files_.theme.now, section)),
      saved_(keysOf(files.files_.theme.saved, section)) {}

std::optional<SavedValue> SavedObject::of(const QString& key, std::optional<themefiles::KeyGroup> group) const {
  const QByteArray keyBytes = platform::toAnsi(key).value_or(QByteArray());
  const IniLine* now = platform::lineOf(now_, keyBytes);
  const IniLine* saved = platform::lineOf(saved_, keyBytes);
  if (now == nullptr) return std::nullopt;
  const SavedState::Target* target = files_.targetOf(group);
  const bool valueDiffers = differ(now, saved);
  if (!valueDiffers && !SavedState::differsIn(target, *now)) return std::nullopt;
  if (saved == nullptr) return SavedValue{{}, QStringLiteral("nothing"), {}};
  const QString value = themefiles::rowValue(saved->line);
  SavedValue result{value, value, {}};
  if (valueDiffers) result.lines.push_back({&ThemePaths::ThemeFile, section_, key, saved->line.toByteArray()});
  if (SavedState::differsIn(target, *saved)) SavedState::addTarget(result, *target, *saved);
  return result;
}

std::optional<SavedValue> SavedObject::takeOf(const QString& key, std::optional<themefiles::KeyGroup> group) {
  auto value = of(key, group);
  now_.remove({platform::toAnsi(key).value_or(QByteArray())});
  return value;
}

std::optional<SavedValue> SavedObject::colorOf(const QString& key, std::optional<themefiles::KeyGroup> group) const {
  const IniLine* now = platform::lineOf(now_, platform::toAnsi(key).value_or(QByteArray()));
  if (now == nullptr || group != themefiles::KeyGroup::Color || !files_.colors_.differs) return std::nullopt;
  const QByteArray name = nameIn(*now);
  if (!files_.colorDiffers(name)) return std::nullopt;
  const QString shown = platform::fromAnsi(name);
  const IniLine* saved = platform::lineOf(files_.colors_.saved, name);
  if (saved == nullptr) return SavedValue{{}, QStringLiteral("colour '%1' is new").arg(shown), {}};
  const QString value = themefiles::rowValue(saved->line);
  return SavedValue{value,
                    QStringLiteral("colour '%1' saved: %2").arg(shown, value),
                    {{&ThemePaths::ThemeFile, QStringLiteral("Colors"), shown, saved->line.toByteArray()}}};
}

bool SavedObject::differs() const {
  return std::any_of(now_.begin(), now_.end(), [this](const IniLine& line) {
    if (line.key.startsWith('#')) return false;  // no row of the grid
    const auto group = themefiles::groupOf(themefiles::keyIdentity(platform::fromAnsi(line.key)));
    if (group == themefiles::KeyGroup::Color && files_.colors_.differs && files_.colorDiffers(nameIn(line)))
      return true;
    return differ(&line, platform::lineOf(saved_, line.key)) || SavedState::differsIn(files_.targetOf(group), line);
  });
}

std::optional<SavedValue> savedColorOf(const themefiles::ModuleState& state, const QString& section,
                                       const QString& key) {
  const SavedState saved(state);
  return SavedObject(saved, section).colorOf(key, themefiles::groupOf(key));
}

std::optional<SavedValue> savedValue(const themefiles::ModuleState& state, const QString& section, const QString& key) {
  const SavedState saved(state);
  return SavedObject(saved, section).of(key, themefiles::groupOf(key));
}

}  // namespace editing
