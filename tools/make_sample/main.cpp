#include <cstdio>
#include <exception>

#include <QCoreApplication>
#include <QStringList>

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
  QCoreApplication application(argc, argv);
  QStringList arguments = application.arguments().mid(1);
  const bool assets = arguments.removeAll(QStringLiteral("--assets")) > 0;
  const bool icons = arguments.removeAll(QStringLiteral("--icons")) > 0;
  if (arguments.size() != 1) {
    std::fputs("usage: make_sample [--assets | --icons] OUTPUT_FOLDER\n", stderr);
    return 2;
  }
  try {
    const sample::Output output(arguments.front());
    if (assets) {
      sample::writeAssets(output);
    } else if (icons) {
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
