#include <array>

#include "figures.h"
#include "platform/files.h"
#include "support/folder.h"
#include "themefiles/screen_table.h"
#include "themefiles/theme_search.h"

namespace bench {
namespace {

constexpr int Sections = 800;
constexpr int Words = 2'000;

/// The sections shared out among screens, those with filters too.
QByteArray themeText() {
  constexpr std::array<const char*, 5> Stems{"Main", "SongText", "SingP1Text", "ScoreTextTotal", "OptionsStatic"};
  QByteArray text = "[Theme]\r\n[Colors]\r\n";
  int number = 0;
  for (const char* stem : Stems) {
    for (int i = 0; i < Sections / static_cast<int>(Stems.size()); ++i, ++number) {
      text += "[" + QByteArray(stem) + QByteArray::number(i) + "]\r\nText=WORD" + QByteArray::number(number) + "\r\n";
      for (const char* line : {"X=100", "Y=200", "W=64", "H=24", "Color=P1Dark", "Size=12"}) {
        text += QByteArray(line) + "\r\n";
      }
    }
  }
  return text;
}

QByteArray languageText() {
  QByteArray text = "[Text]\r\n";
  for (int i = 0; i < Words; ++i) {
    const QByteArray number = QByteArray::number(i);
    text += "WORD" + number + "=Some words of the language " + number + "\r\n";
  }
  return text;
}

std::size_t countLines(const QByteArray& bytes) {
  return static_cast<std::size_t>(bytes.count('\n'));
}

}  // namespace

void registerFinding() {
  const auto folder = std::make_shared<support::Folder>();
  folder->put(QStringLiteral("theme.ini"), themeText());
  folder->put(QStringLiteral("language.ini"), languageText());
  const auto state = std::make_shared<themefiles::ModuleState>();
  state->paths.ThemeFile = folder->path(QStringLiteral("theme.ini"));
  state->paths.LanguageFile = folder->path(QStringLiteral("language.ini"));
  themefiles::InitScreenTable(*state);
  // One letter more in the finder's line.
  registerBenchmark(
      {"Finding", 50, Held::Within},
      [state, folder](benchmark::State& turns) {
        for ([[maybe_unused]] auto turn : turns) {
          const themefiles::Hits hits = themefiles::ThemeSearch(*state).find(QStringLiteral("words 12"), 300);
          if (hits.count == 0) qFatal("nothing was found");
        }
      },
      [state, folder](benchmark::State& turns) {
        for ([[maybe_unused]] auto turn : turns) {
          benchmark::DoNotOptimize(countLines(platform::readFile(state->paths.ThemeFile)));
          benchmark::DoNotOptimize(countLines(platform::readFile(state->paths.LanguageFile)));
        }
      });
}

}  // namespace bench
