#include <algorithm>

#include "figures.h"
#include "sample_screens.h"

namespace bench {
namespace {

double longestGap = 0;
std::string screenInWords;

}  // namespace

void RegisterScreen() {
  const auto screen = FullestScreen();
  if (!screen) return;
  screenInWords = (screen->name() + QStringLiteral(" of ") + screen->theme()).toStdString();
  Register(
      {"DrawScreen", 1.25, Held::AtMost},
      [screen](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) screen->draw();
        longestGap = std::max(longestGap, screen->drawForGap());
      },
      [pictures = screen->pictures()](benchmark::State& state) {
        platform::Surface surface;
        for ([[maybe_unused]] auto turn : state) {
          for (const Picture& picture : pictures) DrawPlainly(picture, surface);
        }
      });
}

double LongestGap() {
  return longestGap;
}

std::string ScreenInWords() {
  return screenInWords;
}

}  // namespace bench
