#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

#include "figures.h"
#include "mainwindows/variant_drawing.h"
#include "platform/paths.h"
#include "platform/status_line.h"
#include "themecheck/theme_check.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_paths.h"

namespace bench {
namespace {

constexpr double LongestReach = 100;
constexpr qsizetype PictureBytes = qsizetype(32) * 1024 * 1024;

class NoReports : public platform::StatusLine {
 protected:
  void showReport(const QString& /*text*/) override {}
};

/// The longest of the steps, in milliseconds.
double longest(const std::function<bool()>& step) {
  double longest = 0;
  for (bool more = true; more;) {
    const auto begin = std::chrono::steady_clock::now();
    more = step();
    longest =
        std::max(longest, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
  }
  return longest;
}

bool print(const char* what, double milliseconds) {
  std::printf("longest step of %s: %.1f ms (reach: under %.0f)\n", what, milliseconds, LongestReach);
  return milliseconds < LongestReach;
}

}  // namespace

bool stepsAreShort() {
  const QString game = platform::programPath(QStringLiteral(SAMPLE_FOLDER "/"));
  const QString theme = themefiles::themesOf(game).value(0);
  const QStringList skins = themefiles::skinsOf(game, theme);
  const QStringList languages = themefiles::languagesOf(game);
  themefiles::ModuleState state;
  state.paths = themefiles::pathsOf(game, theme, skins.value(0), languages.value(0));
  themecheck::ThemeFiles files{{theme, state.paths.ThemeFile, theme}, state.paths.SkinDirectory, theme, {}, {}};
  for (const QString& skin : skins) {
    files.skins.push_back({skin, themefiles::pathsOf(game, theme, skin, {}).SkinFile, skin});
  }
  for (const QString& language : languages) {
    files.languages.push_back({language, themefiles::pathsOf(game, theme, {}, language).LanguageFile, language});
  }
  themecheck::ThemeCheck check(files, PictureBytes);
  const double ofCheck = longest([&] {
    if (!check.isDone()) check.step();
    return !check.isDone();
  });

  NoReports reports;
  themefiles::InitScreenTable(state);
  themefiles::ReadColors(state, reports);
  renderer::PreparedPictures pictures(PictureBytes);
  double ofPictures = 0;
  for (const QString& skin : skins) {
    state.paths.SkinFile = themefiles::pathsOf(game, theme, skin, {}).SkinFile;
    for (const themefiles::ScreenRow& screen : state.ScreenTable) {
      mainwindows::VariantDrawing drawing(state, screen.Name, themefiles::schemeNames(state).value(0), pictures);
      ofPictures = std::max(ofPictures, longest([&] { return drawing.step(); }));
    }
  }
  const bool isCheckShort = print("the theme check in the editor", ofCheck);
  return print("the pictures side by side", ofPictures) && isCheckShort;
}

}  // namespace bench
