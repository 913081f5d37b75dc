#pragma once

#include <map>
#include <optional>
#include <vector>

#include <QHash>
#include <QString>

#include "editing/differences.h"
#include "platform/ini_text.h"
#include "themefiles/key_table.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"
#include "themefiles/theme_search.h"

namespace editing {

/// The objects on screens, and their rows, that keys of the open theme's files belong to. For many keys of one theme,
/// as it stands now.
class Goals {
 public:
  /// Reads the theme. Throws platform::Failure if that fails.
  explicit Goals(const themefiles::ModuleState& state);
  Goals(const Goals&) = delete;
  Goals& operator=(const Goals&) = delete;

  /// The object whose key it is, or the first one that uses a colour, a texture or words of that name. `screen` is
  /// looked at first. None if no screen shows it.
  std::optional<themefiles::Hit> of(const QString& screen, const KeyPlace& place);

 private:
  using Users = QHash<QString, std::vector<themefiles::Hit>>;  ///< by what they name: the first of each screen

  std::optional<themefiles::Hit> ownerOf(const QString& screen, const KeyPlace& place) const;
  const Users& usersOf(themefiles::KeyGroup group);

  const themefiles::ModuleState& state_;
  platform::IniText theme_;
  themefiles::ScreenTags tags_;
  QHash<QString, std::vector<themefiles::ValueRow>> rows_;
  std::map<themefiles::KeyGroup, Users> users_;  ///< when they were asked for
};

/// The same for one key. Throws platform::Failure if no screen shows it.
themefiles::Hit goalOf(const themefiles::ModuleState& state, const QString& screen, const KeyPlace& place);

}  // namespace editing
