#include <cstdio>
#include <exception>

#include <QCommandLineParser>
#include <QCoreApplication>

#include "pictures/assets.h"
#include "themes/themes.h"

namespace {

constexpr const char* Placeholder =
    "This file is a placeholder and not a program.\n"
    "It marks the folder of the sample game, so that the theme editor can be pointed at it.\n";

void writeGame(const sample::Output& output) {
  output.writeLines("Vocora.exe", Placeholder);
  sample::writeLanguages(output);
  sample::writeStagelight(output);
  sample::writeWorkbench(output);
  sample::writeBare(output);
}

}  // namespace

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QCommandLineOption assets(QStringLiteral("assets"));
  const QCommandLineOption icons(QStringLiteral("icons"));
  QCommandLineParser parser;
  parser.addOptions({assets, icons});
  const bool isRead = parser.parse(QCoreApplication::arguments());
  const QStringList folders = parser.positionalArguments();
  if (!isRead || folders.size() != 1 || (parser.isSet(assets) && parser.isSet(icons))) {
    std::fputs("usage: make_sample [--assets | --icons] OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  try {
    const sample::Output output(folders.front());
    if (parser.isSet(assets)) {
      sample::writeAssets(output);
    } else if (parser.isSet(icons)) {
      sample::writeProgramIcons(output);
    } else {
      writeGame(output);
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "make_sample: %s\n", failure.what());
    return 1;
  }
  return 0;
}
