#include "editing/goals.h"

#include <functional>

#include "editing/reference_keys.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "themefiles/key_table.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"

namespace editing {
namespace {

using themefiles::Hit;
using themefiles::KeyGroup;
using themefiles::ThemePaths;
using themefiles::ValueRow;

/// Whether a row of an object is meant; none if the object isn't.
using Fits = std::function<std::optional<int>(const QString& object, const std::vector<ValueRow>& rows)>;

std::optional<int> firstRow(const std::vector<ValueRow>& rows, const std::function<bool(const ValueRow&)>& fits) {
  for (size_t row = 0; row < rows.size(); ++row) {
    if (fits(rows[row])) return static_cast<int>(row);
  }
  return std::nullopt;
}

/// The object itself, whether or not it has the key.
Fits ownerOf(const KeyPlace& place) {
  return [place](const QString& object, const std::vector<ValueRow>& rows) -> std::optional<int> {
    if (!platform::sameName(platform::trimBlanks(object), place.section)) return std::nullopt;
    const QString key = themefiles::keyIdentity(place.key);
    return firstRow(rows, [&](const ValueRow& row) { return themefiles::keyIdentity(row.Item) == key; }).value_or(-1);
  };
}

/// An object that names something of the group.
Fits userOf(KeyGroup group, const QString& name) {
  return [group, name](const QString& /*object*/, const std::vector<ValueRow>& rows) {
    return firstRow(rows, [&](const ValueRow& row) {
      const bool isNamed = group == KeyGroup::Color ? row.Value == name : platform::sameName(row.Value, name);
      return isNamed && themefiles::groupOf(themefiles::keyIdentity(row.Item)) == group;
    });
  };
}

Fits fitsOf(const KeyPlace& place) {
  if (isColor(place)) return userOf(KeyGroup::Color, place.key);
  if (place.copy == &ThemePaths::SkinFile) return userOf(KeyGroup::Texture, place.key);
  if (place.copy == &ThemePaths::LanguageFile) return userOf(KeyGroup::Text, place.key);
  return ownerOf(place);
}

}  // namespace

Hit goalOf(const themefiles::ModuleState& state, const QString& screen, const KeyPlace& place) {
  const platform::IniText theme(platform::readFile(state.paths.ThemeFile));
  const themefiles::ScreenTags tags(theme);
  const auto rows = themefiles::allTags(theme);
  const Fits fits = fitsOf(place);
  QStringList screens{screen};
  for (const themefiles::ScreenRow& row : state.ScreenTable) screens += row.Name;
  for (const QString& name : screens) {
    for (const QString& object : tags.of(state, name)) {
      const std::vector<ValueRow> own = rows.value(platform::upperCase(object));
      const auto row = fits(object, own);
      if (!row) continue;
      return {name, object, *row, *row < 0 ? QString() : own.at(static_cast<size_t>(*row)).Item, {}};
    }
  }
  const bool isObject = place.copy == &ThemePaths::ThemeFile && !isColor(place);
  throw platform::Failure(isObject ? QStringLiteral("no screen shows %1").arg(place.section)
                                   : QStringLiteral("no object names %1").arg(place.key));
}

}  // namespace editing
