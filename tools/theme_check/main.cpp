#include <cstdio>

#include "arguments.h"
#include "ignored.h"
#include "output.h"
#include "platform/console.h"
#include "progress.h"
#include "windowless_tool.h"

namespace {

using platform::print;

std::vector<themecheck::Finding> check(const themecheck::Request& request) {
  themechecktool::ProgressLine line;
  return themecheck::checkGame(
      request, [&](const QString& theme, const QString& about) { line.show(theme + QStringLiteral(", ") + about); });
}

int run(const QStringList& words) {
  const themechecktool::Arguments arguments = themechecktool::parseArguments(words);
  if (!arguments.answer.isEmpty()) {
    print(stdout, arguments.answer);
    return 0;
  }
  const auto ignored =
      arguments.ignored.isEmpty() ? themechecktool::Ignored() : themechecktool::Ignored(arguments.ignored);
  std::vector<themecheck::Finding> findings = check(arguments.request);
  const int takenOut = ignored.takeOut(findings);
  themechecktool::Counts counts = themechecktool::countsOf(findings);
  counts.ignored = takenOut;
  if (arguments.json) {
    platform::write(stdout, QString::fromUtf8(themechecktool::jsonOf(findings)));
    if (counts.ignored > 0) print(stderr, themechecktool::ignoredText(counts));
  } else {
    for (const themecheck::Finding& finding : findings) print(stdout, themechecktool::lineOf(finding));
    print(stdout, themechecktool::countsText(counts));
  }
  return counts.errors > 0 || (arguments.strict && counts.warnings > 0) ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  return windowless::runTool(QStringLiteral("cantorama-theme-check"), argc, argv, run);
}
