#pragma once

#include <QHash>
#include <QString>

#include "themefiles/module_state.h"
#include "themefiles/tag_listing.h"

namespace editing {

/// Where the screens list the objects of a theme, found in steps, a screen each.
class ObjectPlaces {
 public:
  struct Place {
    QString screen;  ///< the first one that lists it; empty for none
    QString object;  ///< as that lists it
    int order = 0;   ///< over all screens
  };

  /// Refers to the text of `theme`.
  ObjectPlaces(const themefiles::ModuleState& state, const platform::IniText& theme) : state_(state), tags_(theme) {}

  /// Lists the next screen; false when all are listed.
  bool step();
  Place of(const QString& section) const;

 private:
  const themefiles::ModuleState& state_;
  themefiles::ScreenTags tags_;
  size_t screen_ = 0;
  QHash<QString, Place> places_;  ///< by the section's name in upper case
};

}  // namespace editing
