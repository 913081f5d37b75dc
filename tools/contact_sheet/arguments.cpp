#include "arguments.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include "platform/failure.h"
#include "platform/paths.h"
#include "windowless_tool.h"

namespace contactsheet {
namespace {

constexpr int Names = 5;

QString usage() {
  return QStringLiteral(
      "Usage: cantorama-contact-sheet GAME_FOLDER THEME SKIN LANGUAGE OUTPUT_FOLDER [--scheme NAME] [--selected N]\n"
      "Draws the 32 screens of a theme into OUTPUT_FOLDER: 01.png to 32.png, overview.png with all of them, and\n"
      "report.tsv, which tells of every section whether it was drawn, and if not why.\n"
      "  --scheme NAME   colour scheme in force (else the first one)\n"
      "  --selected N    draw button N of every screen as the selected one (else the first)");
}

quint8 buttonNumber(const QString& text) {
  bool isNumber = false;
  const uint number = text.toUInt(&isNumber);
  if (!isNumber || number < 1 || number > 255) {
    throw platform::Failure(QStringLiteral("--selected takes a number from 1 to 255, not '%1'").arg(text));
  }
  return static_cast<quint8>(number);
}

/// The path without links and dots, as it is once what isn't there yet was made.
QString resolved(const QString& path) {
  const QFileInfo info(QDir().absoluteFilePath(path));
  if (info.exists() || info.isRoot()) return info.canonicalFilePath();
  return QDir::cleanPath(resolved(info.path()) + u'/' + info.fileName());
}

void refuseOutputInGame(const Arguments& arguments) {
  if ((arguments.outputFolder + u'/').startsWith(resolved(platform::nativePath(arguments.gameFolder)) + u'/')) {
    throw platform::Failure(QStringLiteral("the output folder '%1' lies in the game folder, where nothing is written")
                                .arg(arguments.outputFolder));
  }
}

}  // namespace

Arguments parseArguments(const QStringList& words) {
  const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
  const QCommandLineOption version(QStringLiteral("version"));
  const QCommandLineOption scheme(QStringLiteral("scheme"), QString(), QStringLiteral("NAME"));
  const QCommandLineOption selected(QStringLiteral("selected"), QString(), QStringLiteral("N"));
  QCommandLineParser parser;
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  parser.addOptions({help, version, scheme, selected});
  if (!parser.parse(words)) throw platform::Failure(parser.errorText());
  Arguments arguments;
  if (parser.isSet(help)) arguments.answer = usage();
  if (parser.isSet(version)) arguments.answer = QStringLiteral("cantorama-contact-sheet " CANTORAMA_VERSION);
  if (!arguments.answer.isEmpty()) return arguments;
  const QStringList names = parser.positionalArguments();
  if (names.size() != Names) {
    throw windowless::WrongUsage(QStringLiteral("%1 names given where %2 are wanted").arg(names.size()).arg(Names),
                                 usage());
  }
  arguments.gameFolder = names[0];
  arguments.theme = names[1];
  arguments.skin = names[2];
  arguments.language = names[3];
  arguments.outputFolder = resolved(platform::plainPath(names[4]));
  arguments.scheme = parser.value(scheme);
  if (parser.isSet(selected)) arguments.selected = buttonNumber(parser.value(selected));
  refuseOutputInGame(arguments);
  return arguments;
}

}  // namespace contactsheet
