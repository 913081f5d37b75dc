#include <vector>

#include "figures.h"
#include "platform/paths.h"
#include "renderer/chosen_screen.h"
#include "renderer/render_driver.h"
#include "themecheck/theme_check.h"
#include "themefiles/colour_tables.h"
#include "themefiles/ini_access.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_paths.h"

namespace bench {
namespace {

/// Reports that nobody reads.
class Unread : public platform::StatusLine {
 protected:
  void showReport(const QString& /*text*/) override {}
};

/// A screen that keeps its pictures as they are drawn.
class KeptScreen {
 public:
  KeptScreen(const themefiles::ModuleState& state, const QString& screen)
      : chosen_(state, screen, QStringLiteral("Blue"), status_) {
    renderer::RenderContext context = chosen_.context();
    renderer::DrawScreen(context);
    kept_.push_back({QPoint(), chosen_.workspace.image().convertToFormat(QImage::Format_ARGB32)});
    for (const renderer::DrawnObject& object : chosen_.account.objects) {
      const QRect shown = object.place & chosen_.workspace.image().rect();
      const QString tex = themefiles::GetINI(object.section, QStringLiteral("Tex"), {}, state.paths.ThemeFile);
      if (!tex.isEmpty()) kept_.push_back({shown.topLeft(), kept_.front().picture.copy(shown)});
    }
  }

  /// Draws the screen once for every button number, or once without a button.
  void draw() {
    renderer::RenderContext context = chosen_.context();
    context.textsOnly = true;
    for (int number = 1; number == 1 || number <= chosen_.state.ButtonCount; ++number) {
      for (const Kept& picture : kept_) {
        chosen_.workspace.drawImage(picture.picture, picture.corner.x(), picture.corner.y());
      }
      chosen_.state.SelectedButton = static_cast<quint8>(number);
      renderer::DrawScreen(context);
    }
  }

 private:
  struct Kept {
    QPoint corner;
    QImage picture;
  };

  Unread status_;
  renderer::ChosenScreen chosen_;
  std::vector<Kept> kept_;
};

std::vector<std::unique_ptr<KeptScreen>> allScreens() {
  std::vector<std::unique_ptr<KeptScreen>> screens;
  Unread status;
  const QString game = platform::programPath(QStringLiteral(SAMPLE_FOLDER "/"));
  for (const QString& theme : themefiles::themesOf(game)) {
    for (const QString& skin : themefiles::skinsOf(game, theme)) {
      themefiles::ModuleState state;
      state.paths = themefiles::pathsOf(game, theme, skin, QStringLiteral("English"));
      themefiles::InitScreenTable(state);
      themefiles::ReadColors(state, status);
      for (const themefiles::ScreenRow& screen : state.ScreenTable) {
        screens.push_back(std::make_unique<KeptScreen>(state, screen.Name));
      }
    }
  }
  return screens;
}

}  // namespace

void registerThemeCheck() {
  registerBenchmark(
      {"theme check", 1.5, Held::AtMost},
      [](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) {
          const auto findings = themecheck::checkGame({QStringLiteral(SAMPLE_FOLDER), {}, {}, {}}, [](auto&&...) {});
          benchmark::DoNotOptimize(findings.data());
        }
      },
      [](benchmark::State& state) {
        const auto screens = allScreens();
        for ([[maybe_unused]] auto turn : state) {
          for (const auto& screen : screens) screen->draw();
        }
      });
}

}  // namespace bench
