#include "editing/goals.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/numbers.h"

namespace editing {
namespace {

using themefiles::Hit;
using themefiles::KeyGroup;
using themefiles::ThemePaths;
using themefiles::ValueRow;

/// What the key names for objects of the theme; none if it is a key of an object.
std::optional<KeyGroup> namedGroupOf(const KeyPlace& place) {
  if (isColor(place)) return KeyGroup::Color;
  if (place.copy == &ThemePaths::SkinFile) return KeyGroup::Texture;
  if (place.copy == &ThemePaths::LanguageFile) return KeyGroup::Text;
  return std::nullopt;
}

/// Case counts in the names of colours only.
QString nameIn(KeyGroup group, const QString& name) {
  return group == KeyGroup::Color ? name : platform::upperCase(name);
}

}  // namespace

Goals::Goals(const themefiles::ModuleState& state)
    : state_(state),
      theme_(platform::readFile(state.paths.ThemeFile)),
      tags_(theme_),
      rows_(themefiles::allTags(theme_)) {}

std::optional<Hit> Goals::of(const QString& screen, const KeyPlace& place) {
  const auto group = namedGroupOf(place);
  if (!group) return ownerOf(screen, place);
  const Users& users = usersOf(*group);
  const auto found = users.find(nameIn(*group, place.key));
  if (found == users.end()) return std::nullopt;
  const auto here = std::find_if(found->begin(), found->end(), [&](const Hit& user) { return user.screen == screen; });
  return here == found->end() ? found->front() : *here;
}

/// The object itself, whether or not it has the key.
std::optional<Hit> Goals::ownerOf(const QString& screen, const KeyPlace& place) const {
  QStringList screens{screen};
  for (const themefiles::ScreenRow& row : state_.ScreenTable) screens += row.Name;
  const QString key = themefiles::keyIdentity(place.key);
  for (const QString& name : screens) {
    for (const QString& object : tags_.of(state_, name)) {
      if (!platform::sameName(platform::trimBlanks(object), place.section)) continue;
      const std::vector<ValueRow> own = rows_.value(platform::upperCase(object));
      const auto row = std::find_if(own.begin(), own.end(),
                                    [&](const ValueRow& each) { return themefiles::keyIdentity(each.Item) == key; });
      if (row == own.end()) return Hit{name, object, -1, {}, {}};
      return Hit{name, object, static_cast<int>(row - own.begin()), row->Item, {}};
    }
  }
  return std::nullopt;
}

const Goals::Users& Goals::usersOf(KeyGroup group) {
  const auto [known, isNew] = users_.try_emplace(group);
  Users& users = known->second;
  if (!isNew) return users;
  for (const themefiles::ScreenRow& screen : state_.ScreenTable) {
    for (const QString& object : tags_.of(state_, screen.Name)) {
      int number = 0;
      for (const ValueRow& row : rows_.value(platform::upperCase(object))) {
        const int present = number++;
        if (themefiles::groupOf(themefiles::keyIdentity(row.Item)) != group) continue;
        std::vector<Hit>& named = users[nameIn(group, row.Value)];
        if (!named.empty() && named.back().screen == screen.Name) continue;
        named.push_back({screen.Name, object, present, row.Item, {}});
      }
    }
  }
  return users;
}

Hit goalOf(const themefiles::ModuleState& state, const QString& screen, const KeyPlace& place) {
  if (const auto goal = Goals(state).of(screen, place)) return *goal;
  throw platform::Failure(namedGroupOf(place) ? QStringLiteral("no object names %1").arg(place.key)
                                              : QStringLiteral("no screen shows %1").arg(place.section));
}

}  // namespace editing
