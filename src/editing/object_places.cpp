#include "editing/object_places.h"

#include "platform/code_page.h"
#include "platform/numbers.h"

namespace editing {

bool ObjectPlaces::step() {
  if (screen_ == state_.ScreenTable.size()) return false;
  const QString& screen = state_.ScreenTable.at(screen_++).Name;
  for (const QString& object : tags_.of(state_, screen)) {
    Place& place = places_[platform::upperCase(platform::trimBlanks(object))];
    if (place.screen.isEmpty()) place = {screen, object, static_cast<int>(places_.size())};
  }
  return true;
}

ObjectPlaces::Place ObjectPlaces::of(const QString& section) const {
  return places_.value(platform::upperCase(platform::trimBlanks(section)));
}

}  // namespace editing
