#include "mainwindows/command_line.h"

#include <QCommandLineParser>
#include <QDir>

#include "mainwindows/sample_game.h"
#include "platform/failure.h"
#include "platform/paths.h"

namespace mainwindows {
namespace {

constexpr QStringView Usage =
    u"Usage: cantorama-theme-edit [GAME_FOLDER | --sample]\n"
    u"Edits the themes of the game. GAME_FOLDER, the folder of the game's program file, counts for this run only.\n"
    u"  --sample     take the sample game, from a copy in the user's documents\n"
    u"  -h, --help   print this and end\n"
    u"  --version    print the version and end";

const QString Help = QStringLiteral("help");
const QString VersionOption = QStringLiteral("version");
const QString Sample = QStringLiteral("sample");

void addOptions(QCommandLineParser& parser) {
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), Help}));
  parser.addOption(QCommandLineOption(VersionOption));
  parser.addOption(QCommandLineOption(Sample));
}

}  // namespace

QString commandLineAnswer(const QStringList& words) {
  QCommandLineParser parser;
  addOptions(parser);
  // What is wrong besides may be the toolkit's own options.
  parser.parse(words);
  if (parser.isSet(Help)) return Usage.toString();
  if (parser.isSet(VersionOption)) return QStringLiteral("cantorama-theme-edit " CANTORAMA_VERSION);
  return {};
}

CommandLine parseCommandLine(const QStringList& words) {
  QCommandLineParser parser;
  addOptions(parser);
  if (!parser.parse(words)) throw platform::Failure(parser.errorText());
  const QStringList names = parser.positionalArguments();
  const bool takesSample = parser.isSet(Sample);
  if (names.isEmpty() && !takesSample) return {};
  if (names.size() + (takesSample ? 1 : 0) > 1) {
    throw platform::Failure(QStringLiteral("more than one game folder is named"));
  }
  const QString folder = takesSample ? ownSampleGame() : names.constFirst();
  if (folder.isEmpty() || !QDir(folder).exists()) throw platform::Failure(QStringLiteral("no folder '%1'").arg(folder));
  return {platform::programPath(QDir(folder).absolutePath()) + u'\\'};
}

}  // namespace mainwindows
