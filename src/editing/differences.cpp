#include "editing/differences.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>

#include <QSet>

#include "editing/reference_keys.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themefiles/key_table.h"
#include "themefiles/section_names.h"
#include "themefiles/tag_listing.h"

namespace editing {
namespace {

using platform::IniKeys;
using platform::IniLine;
using themefiles::ThemePaths;

constexpr std::array Files{&ThemePaths::ThemeFile, &ThemePaths::SkinFile, &ThemePaths::LanguageFile};

std::optional<QString> valueOf(const IniLine* line) {
  if (line == nullptr) return std::nullopt;
  return platform::trimBlanks(platform::fromAnsi(line->line).section(u'=', 1));
}

QByteArray ansi(const QString& name) {
  return platform::toAnsi(name).value_or(QByteArray());
}

/// Adds what differs in a section to `found`: the keys that are there now, in their order, then those that are gone.
void compareSection(const ComparedFile& file, QByteArrayView section, std::vector<Difference>& found) {
  const QByteArrayView nowLines = file.now.lines(section);
  const QByteArrayView savedLines = file.saved.lines(section);
  if (nowLines == savedLines) return;
  const IniKeys now = platform::iniKeys(nowLines);
  const IniKeys saved = platform::iniKeys(savedLines);
  const auto add = [&](const IniLine& line, const IniLine* present, const IniLine* before) {
    found.push_back(
        {{file.copy, platform::fromAnsi(section), platform::fromAnsi(line.key)}, valueOf(present), valueOf(before)});
  };
  for (const IniLine& line : platform::iniLines(nowLines)) {
    const IniLine* first = platform::lineOf(now, line.key);
    const IniLine* before = platform::lineOf(saved, line.key);
    if (first->line.data() == line.line.data() && differ(&line, before)) add(line, &line, before);
  }
  for (const IniLine& line : platform::iniLines(savedLines)) {
    const IniLine* first = platform::lineOf(saved, line.key);
    if (first->line.data() == line.line.data() && platform::lineOf(now, line.key) == nullptr) add(line, nullptr, &line);
  }
}

/// The sections in which a file may differ: those of now in their order, then those that are gone.
std::vector<QByteArrayView> sectionsOf(const ComparedFile& file) {
  if (!file.differs()) return {};
  std::vector<QByteArrayView> names = file.now.names();
  for (const QByteArrayView name : file.saved.names()) {
    if (file.now.lines(name).isNull()) names.push_back(name);
  }
  std::reverse(names.begin(), names.end());  // they are taken from the end
  return names;
}

/// What a difference is about: "Main Screen, MainStaticLogo: X".
QString subject(const Difference& difference) {
  const KeyPlace& place = difference.place;
  const auto isIn = [&](ReferenceKind kind) {
    const ReferenceFile file = fileOf(kind);
    return place.copy == file.copy && platform::sameName(place.section, file.section);
  };
  if (!difference.screen.isEmpty()) {
    return QStringList{difference.screen, difference.object + QStringLiteral(": ") + place.key}.join(
        QStringLiteral(", "));
  }
  if (isColor(place)) return QStringLiteral("colour '") + place.key + u'\'';
  if (isIn(ReferenceKind::Texture)) return QStringLiteral("texture '") + place.key + u'\'';
  if (isIn(ReferenceKind::Text)) return QStringLiteral("words '") + place.key + u'\'';
  return u'[' + place.section + QStringLiteral("]: ") + place.key;
}

}  // namespace

bool isColor(const KeyPlace& place) {
  return place.copy == &ThemePaths::ThemeFile && platform::sameName(place.section, themefiles::ColorsSection);
}

QString Difference::told() const {
  if (!now) return subject(*this) + QStringLiteral(" is gone (saved: ") + *saved + u')';
  return subject(*this) + QStringLiteral(" = ") + *now +
         (saved ? QStringLiteral(" (saved: ") + *saved + u')' : QStringLiteral(" (new)"));
}

Differences::Differences(const themefiles::ModuleState& state) : state_(state), files_(state) {
  sections_ = sectionsOf(files_.theme);
}

bool Differences::step() {
  if (!sections_.empty()) {
    compareSection(files_.of(Files.at(file_)), sections_.back(), found_);
    sections_.pop_back();
  } else if (file_ + 1 < Files.size()) {
    sections_ = sectionsOf(files_.of(Files.at(++file_)));
  } else if (found_.empty() || isSorted_) {
    return false;
  } else if (!places_) {
    places_.emplace(state_, files_.theme.now.text());
  } else if (!places_->step()) {
    sort();
    isSorted_ = true;
  }
  return true;
}

/// Brings the differences into the order of the screens and of their lists.
void Differences::sort() {
  constexpr int Behind = std::numeric_limits<int>::max();
  std::multimap<int, Difference> ordered;
  for (Difference& difference : found_) {
    const KeyPlace& place = difference.place;
    const bool isListed = place.copy == &ThemePaths::ThemeFile && !isColor(place);
    const ObjectPlaces::Place listed = isListed ? places_->of(place.section) : ObjectPlaces::Place{};
    difference.screen = listed.screen;
    difference.object = listed.object;
    ordered.emplace(listed.screen.isEmpty() ? Behind : listed.order, std::move(difference));
  }
  found_.clear();
  for (auto& each : ordered) found_.push_back(std::move(each.second));
}

int countDifferences(const themefiles::ModuleState& state) {
  const ComparedFiles files(state);
  std::vector<Difference> found;
  for (const auto copy : Files) {
    for (const QByteArrayView section : sectionsOf(files.of(copy))) compareSection(files.of(copy), section, found);
  }
  return static_cast<int>(found.size());
}

std::vector<KeyPlace> differencesIn(const themefiles::ModuleState& state, const QStringList& objects) {
  const ComparedFiles files(state);
  std::vector<Difference> found;
  QSet<QString> sections;
  std::array<QSet<QString>, 2> referred;  // by ReferenceKind, in upper case
  const auto addReferences = [&](QByteArrayView lines) {
    for (const IniLine& line : platform::iniLines(lines)) {
      const auto group = themefiles::groupOf(themefiles::keyIdentity(platform::fromAnsi(line.key)));
      const auto kind = group ? referenceOf(themefiles::rowOf(*group).frame) : std::nullopt;
      if (!kind) continue;
      referred.at(static_cast<size_t>(*kind)) +=
          platform::upperCase(platform::fromAnsi(platform::unquoted(line.value)));
    }
  };
  for (const QString& object : objects) {
    const QString name = platform::trimBlanks(object);
    if (sections.contains(platform::upperCase(name))) continue;
    sections += platform::upperCase(name);
    const QByteArray section = ansi(name);
    compareSection(files.theme, section, found);
    addReferences(files.theme.now.lines(section));
    addReferences(files.theme.saved.lines(section));
  }
  for (const ReferenceKind kind : {ReferenceKind::Text, ReferenceKind::Texture}) {
    const ReferenceFile file = fileOf(kind);
    std::vector<Difference> all;
    compareSection(files.of(file.copy), ansi(file.section), all);
    for (const Difference& each : all) {
      if (referred.at(static_cast<size_t>(kind)).contains(platform::upperCase(each.place.key))) found.push_back(each);
    }
  }
  std::vector<KeyPlace> places;
  for (const Difference& each : found) {
    if (each.canBePutBack()) places.push_back(each.place);
  }
  return places;
}

QStringList objectsOfScreen(const themefiles::ModuleState& state, const QString& screen) {
  const ComparedFile theme(state, &ThemePaths::ThemeFile);
  return themefiles::ScreenTags(theme.now.text()).of(state, screen) +
         themefiles::ScreenTags(theme.saved.text()).of(state, screen);
}

std::vector<SavedLine> savedLines(const themefiles::ModuleState& state, const std::vector<KeyPlace>& places) {
  struct Keys {
    IniKeys now, saved;
  };
  const ComparedFiles files(state);
  QHash<QString, Keys> sections;
  std::vector<SavedLine> lines;
  for (const auto& [copy, section, key] : places) {
    const ComparedFile& file = files.of(copy);
    Keys& keys = sections[state.paths.*copy + u'\n' + section];
    if (keys.saved.isEmpty()) {
      const QByteArray name = ansi(section);
      keys = {platform::iniKeys(file.now.lines(name)), platform::iniKeys(file.saved.lines(name))};
    }
    const IniLine* now = platform::lineOf(keys.now, ansi(key));
    const IniLine* saved = platform::lineOf(keys.saved, ansi(key));
    if (saved == nullptr || !differ(now, saved)) continue;
    lines.push_back({copy, section, key, saved->line.toByteArray(), now == nullptr});
  }
  return lines;
}

}  // namespace editing
