#include <algorithm>
#include <cstdio>

#include <QDir>

#include "arguments.h"
#include "platform/console.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "sheet.h"
#include "windowless_tool.h"

namespace {

using platform::print;

/// Writes every report to the standard error output.
class ErrorOutput : public platform::StatusLine {
 protected:
  void showReport(const QString& text) override { print(stderr, platform::onOneLine(text)); }
};

/// The path of a file of the output folder, which is made when it isn't there.
QString outputPath(const QString& folder, const QString& name) {
  if (!QDir().mkpath(folder)) throw platform::Failure(QStringLiteral("can't make the folder ") + folder);
  return platform::programPath(QDir(folder).absoluteFilePath(name));
}

void drawSheet(const contactsheet::Arguments& arguments) {
  ErrorOutput status;
  const contactsheet::Theme theme(arguments.gameFolder, arguments.theme, arguments.skin, arguments.language, status);
  const QString scheme = theme.schemeNamed(arguments.scheme);
  renderer::PreparedPictures pictures;
  std::vector<contactsheet::Screen> screens;
  std::vector<std::vector<contactsheet::ReportRow>> report;
  for (const themefiles::ScreenRow& row : theme.state().ScreenTable) {
    const contactsheet::Screen& screen =
        screens.emplace_back(contactsheet::DrawScreen(theme, row, scheme, arguments.selected, pictures, status));
    report.push_back(screen.rows);
    const QString number = QStringLiteral("%1").arg(screens.size(), 2, 10, QChar(u'0'));
    contactsheet::writePng(screen.picture, outputPath(arguments.outputFolder, number + QStringLiteral(".png")));
    const auto drawn =
        std::count_if(screen.rows.begin(), screen.rows.end(), [](const auto& line) { return line.drawn; });
    const auto leftOut = static_cast<qsizetype>(screen.rows.size()) - drawn;
    print(stderr, QStringLiteral("%1/%2 %3: %4 drawn, %5 left out")
                      .arg(number, QString::number(theme.state().ScreenTable.size()), screen.name,
                           QString::number(drawn), QString::number(leftOut)));
  }
  contactsheet::writePng(contactsheet::overview(screens),
                         outputPath(arguments.outputFolder, QStringLiteral("overview.png")));
  platform::writeFile(outputPath(arguments.outputFolder, QStringLiteral("report.tsv")),
                      contactsheet::reportText(report), platform::AtLink::Replace);
}

}  // namespace

int main(int argc, char** argv) {
  return windowless::runTool(QStringLiteral("cantorama-contact-sheet"), argc, argv, [](const QStringList& words) {
    const contactsheet::Arguments arguments = contactsheet::parseArguments(words);
    if (arguments.answer.isEmpty()) {
      drawSheet(arguments);
    } else {
      print(stdout, arguments.answer);
    }
    return 0;
  });
}
