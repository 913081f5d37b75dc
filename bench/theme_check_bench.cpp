#include <memory>
#include <utility>
#include <vector>

#include <QDir>
#include <QTemporaryDir>

#include "figures.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "renderer/chosen_screen.h"
#include "renderer/object_passes.h"
#include "themecheck/game_check.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_paths.h"

namespace bench {
namespace {

constexpr int Themes = 10;
constexpr int Skins = 10;
constexpr int Languages = 10;

/// A game folder of ten themes with ten skins each and ten languages, all made of the sample's.
class LargeGame {
 public:
  LargeGame() {
    const QString sample = QStringLiteral(SAMPLE_FOLDER "/");
    const auto copy = [&](const QString& from, const QString& to) {
      platform::writeFile(file(to), platform::readFile(sample + from));
    };
    for (const char* folder : {"Themes", "Languages"}) QDir(path()).mkpath(QString::fromLatin1(folder));
    for (int language = 0; language < Languages; ++language) {
      copy(language % 2 == 0 ? QStringLiteral("Languages/English.ini") : QStringLiteral("Languages/Deutsch.ini"),
           QStringLiteral("Languages/L%1.ini").arg(language));
    }
    for (int theme = 0; theme < Themes; ++theme) {
      const QString folder = QStringLiteral("Skins/T%1/").arg(theme);
      QDir(path()).mkpath(folder);
      copy(QStringLiteral("Themes/Stagelight.ini"), QStringLiteral("Themes/T%1.ini").arg(theme));
      for (const QString& name : QDir(sample + QStringLiteral("Skins/Stagelight")).entryList(QDir::Files)) {
        if (!name.endsWith(QStringLiteral(".ini"))) copy(QStringLiteral("Skins/Stagelight/") + name, folder + name);
      }
      for (int skin = 0; skin < Skins; ++skin) {
        copy(skin % 2 == 0 ? QStringLiteral("Skins/Stagelight/Dusk.ini") : QStringLiteral("Skins/Stagelight/Neon.ini"),
             folder + QStringLiteral("S%1.ini").arg(skin));
      }
    }
  }
  QString path() const { return folder_.path(); }

 private:
  QString file(const QString& name) const { return folder_.filePath(name); }

  QTemporaryDir folder_;
};

const LargeGame& largeGame() {
  static const LargeGame game;
  return game;
}

/// Reports that nobody reads.
class Unread : public platform::StatusLine {
 protected:
  void showReport(const QString& /*text*/) override {}
};

/// The screens of a theme with one skin and one language, and the same drawings of them that a check has to make.
class Drawings {
 public:
  Drawings(const themefiles::ModuleState& state, renderer::PreparedPictures& pictures) {
    for (const themefiles::ScreenRow& screen : state.ScreenTable) {
      auto chosen = std::make_unique<renderer::ChosenScreen>(state, screen.Name, QStringLiteral("Blue"), status_);
      chosen->pictures = &pictures;
      screens_.push_back(std::move(chosen));
    }
  }

  void draw(renderer::Parts parts, const themefiles::ThemePaths& paths) {
    renderer::TrialFrame frame(files_);
    for (const auto& screen : screens_) {
      screen->state.paths = paths;
      renderer::RenderContext context = contextOf(*screen, screen->tags, parts, frame);
      if (parts == renderer::Parts::Pictures) {
        renderer::DrawBackground(context, themefiles::stemOf(context.state, context.host.screenName()));
        renderer::DrawStatics(context);
      } else {
        renderer::DrawTexts(context);
      }
      drawButtons(context, 0);
      if (parts == renderer::Parts::Texts) continue;
      for (const QString& tag : screen->tags.rows()) {
        if (!renderer::isButton(tag)) continue;
        themefiles::SortedTags button;
        button.AddItem(tag);
        renderer::RenderContext alone = contextOf(*screen, button, parts, frame);
        drawButtons(alone, 1);
      }
    }
  }

 private:
  static renderer::RenderContext contextOf(renderer::ChosenScreen& screen, const themefiles::TagList& tags,
                                           renderer::Parts parts, renderer::TrialFrame& frame) {
    screen.account = {};
    renderer::RenderContext context = screen.context(tags);
    context.parts = parts;
    context.trial = &frame;
    return context;
  }
  static void drawButtons(renderer::RenderContext& context, quint8 selected) {
    context.state.SelectedButton = selected;
    context.state.ButtonCount = 0;
    renderer::DrawButtons(context);
  }

  Unread status_;
  renderer::TrialFiles files_;
  std::vector<std::unique_ptr<renderer::ChosenScreen>> screens_;
};

/// Draws a theme once with each skin and once in each language.
void drawTheme(const QString& game, const QString& theme) {
  const QStringList skins = themefiles::skinsOf(game, theme);
  const QStringList languages = themefiles::languagesOf(game);
  Unread status;
  themefiles::ModuleState state;
  state.paths = themefiles::pathsOf(game, theme, skins[0], languages[0]);
  themefiles::InitScreenTable(state);
  themefiles::ReadColors(state, status);
  renderer::PreparedPictures pictures;
  Drawings drawings(state, pictures);
  for (const QString& skin : skins) {
    drawings.draw(renderer::Parts::Pictures, themefiles::pathsOf(game, theme, skin, languages[0]));
  }
  for (const QString& language : languages) {
    drawings.draw(renderer::Parts::Texts, themefiles::pathsOf(game, theme, skins[0], language));
  }
}

}  // namespace

void registerThemeCheck() {
  registerBenchmark(
      {"theme check", 1.5, Held::AtMost},
      [](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) {
          const auto findings = themecheck::checkGame({largeGame().path(), {}, {}, {}}, [](auto&&...) {});
          benchmark::DoNotOptimize(findings.data());
        }
      },
      [](benchmark::State& state) {
        const QString game = platform::programPath(largeGame().path() + QStringLiteral("/"));
        for ([[maybe_unused]] auto turn : state) {
          for (const QString& theme : themefiles::themesOf(game)) drawTheme(game, theme);
        }
      });
}

}  // namespace bench
