#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>

#include "controls/idle_steps.h"
#include "editing/differences.h"
#include "editing/object_places.h"
#include "themecheck/theme_check.h"
#include "themefiles/theme_search.h"

namespace editing {
class Session;
}

namespace mainwindows {

/// The theme check on the open theme: on the working copies as they stand, in all skins and languages. It is done when
/// the program is idle, step by step, and again after each edit. The last findings stay until all new ones are there.
class ThemeReview : public QObject {
  Q_OBJECT

 public:
  ThemeReview(editing::Session& session, controls::WorkQueue& queue);

  /// Something that was found.
  struct Item {
    QString told;        ///< "error: Main Screen, MainStaticLogo, Tex: texture 'Logo' has no entry in the skin (Neon)"
    QString searchable;  ///< what a word is looked for in
    editing::KeyPlace place;
    bool leadsThere = false;  ///< it is about an object, a colour, a texture or words
  };

  /// Checks the theme, and from now on after each edit until stop(), or until the theme is left.
  void begin();
  void stop();
  /// Checks the theme again, if it is checked at all: another program may have changed it.
  void renew();

  /// The findings of the last check that came to its end: errors, warnings, notes.
  const std::vector<Item>& items() const { return items_; }
  /// Whether there was one.
  bool isKnown() const { return isKnown_; }

  /// Goes to the next finding that leads somewhere, and tells it; with the first check to its end if there was none.
  void goToNext();
  /// The finding that goToNext begins behind.
  void setPresent(int item) { present_ = item; }

 Q_SIGNALS:
  void renewed();
  /// The next finding leads there.
  void goalChosen(const themefiles::Hit& goal);

 private:
  void restart();
  void dropCheck();
  bool step();
  void take();
  void publish();
  void forget();
  Item itemOf(const themecheck::Finding& finding) const;

  editing::Session& session_;
  controls::WorkQueue& queue_;
  bool isWanted_ = false;
  bool isKnown_ = false;
  bool isGoing_ = false;  ///< to the first finding, when the check is done
  int present_ = -1;
  std::vector<Item> items_;
  std::array<QByteArray, 3> checked_;  ///< the working copies that were checked last
  std::unique_ptr<themecheck::ThemeCheck> check_;
  platform::IniText theme_;
  std::optional<editing::ObjectPlaces> places_;            ///< in it
  std::optional<std::vector<themecheck::Finding>> found_;  ///< when the check is done: what it has found
  std::vector<Item> coming_;                               ///< the items of that, as far as they are made
  controls::IdleSteps steps_;
};

}  // namespace mainwindows
