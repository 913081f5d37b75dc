#include "figures.h"
#include "sample_screens.h"

namespace bench {

void RegisterScreen(const std::shared_ptr<SampleScreen>& screen) {
  Register(
      {"DrawScreen", 1.25, Held::AtMost},
      [screen](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) screen->draw();
        screen->drawForGap();
      },
      [pictures = screen->pictures()](benchmark::State& state) {
        platform::Surface surface;
        for ([[maybe_unused]] auto turn : state) {
          for (const Picture& picture : pictures) DrawPlainly(picture, surface);
        }
      });
}

}  // namespace bench
