#include "figures.h"
#include "sample_screens.h"

namespace bench {
namespace {

/// Blends what a render has prepared and prints its texts; nothing else.
Body blending(const SampleScreen& screen) {
  std::vector<renderer::PreparedPicture> prepared;
  for (const Picture& picture : screen.pictures()) prepared.push_back(PreparedOf(picture));
  return [prepared, texts = screen.texts()](benchmark::State& state) {
    platform::Surface surface;
    for ([[maybe_unused]] auto turn : state) {
      for (const renderer::PreparedPicture& one : prepared) {
        surface.DrawImage(one.picture, one.corner.x(), one.corner.y());
      }
      for (const Text& text : texts) {
        surface.setPen(text.pen);
        surface.Print(text.words);
      }
    }
  };
}

Body each(const std::shared_ptr<SampleScreen>& screen, void (SampleScreen::*draw)()) {
  return [screen, draw](benchmark::State& state) {
    for ([[maybe_unused]] auto turn : state) (*screen.*draw)();
  };
}

}  // namespace

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
  const Body floor = blending(*screen);
  Register({"Redraw", 1.5, Held::AtMost}, each(screen, &SampleScreen::redraw), floor);
  Register({"RedrawFirst", 3, Held::FasterAtLeast}, each(screen, &SampleScreen::redraw),
           each(screen, &SampleScreen::draw));
  Register({"DragFrame", 1.5, Held::AtMost}, each(screen, &SampleScreen::drawFrame), floor);
}

}  // namespace bench
