#include "figures.h"
#include "plain_files.h"
#include "platform/files.h"
#include "sample_screens.h"

namespace bench {
namespace {

Body each(const std::shared_ptr<SampleScreen>& screen, void (SampleScreen::*draw)()) {
  return [screen, draw](benchmark::State& state) {
    for ([[maybe_unused]] auto turn : state) (*screen.*draw)();
  };
}

}  // namespace

void registerScreen(const std::shared_ptr<SampleScreen>& screen) {
  registerBenchmark(
      {"DrawScreen", 1.25, Held::AtMost},
      [screen](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) screen->draw();
        screen->runForGap();
      },
      [pictures = screen->pictures()](benchmark::State& state) {
        drawing::Surface surface;
        for ([[maybe_unused]] auto turn : state) {
          for (const Picture& picture : pictures) drawPlainly(picture, surface);
        }
      });
  registerBenchmark({"Redraw", 1.5, Held::AtMost}, each(screen, &SampleScreen::redraw),
                    [blend = blending(*screen), read = screen->readings()](benchmark::State& state) {
                      drawing::Surface surface;
                      for ([[maybe_unused]] auto turn : state) {
                        for (const QString& file : read) benchmark::DoNotOptimize(platform::readFile(file));
                        blend(surface);
                      }
                    });
  registerBenchmark({"RedrawFirst", 3, Held::FasterAtLeast}, each(screen, &SampleScreen::redraw),
                    each(screen, &SampleScreen::draw));
}

}  // namespace bench
