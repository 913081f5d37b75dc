#include "arguments.h"

#include <QCommandLineParser>

#include "platform/failure.h"
#include "windowless_tool.h"

namespace themechecktool {
namespace {

QString usage() {
  return QStringLiteral(
      "Usage: cantorama-theme-check GAME_FOLDER [THEME]... [--skin NAME] [--language NAME] [--format text|json]\n"
      "       [--ignore FILE] [--strict]\n"
      "Tells what the preview leaves out of the themes in GAME_FOLDER, and what nothing uses, a line for each "
      "finding:\n"
      "FILE:LINE:COLUMN: LEVEL: SECTION: KEY: text (skins and languages, where it doesn't hold for all).\n"
      "Without a THEME it goes through all of them, each with all of its skins and all languages. Nothing is written.\n"
      "  --skin NAME        only this skin\n"
      "  --language NAME    only this language\n"
      "  --format FORMAT    text (else), or json: one array with all findings\n"
      "  --ignore FILE      leave out what matches a line of this file: LEVEL: SECTION: KEY: text, with * and ?\n"
      "  --strict           count warnings as errors\n"
      "The exit status is 0 without errors, 1 with errors, and 2 when the command line is wrong or there is no theme.");
}

/// The value of an option, which may not be empty when it is given.
QString given(const QCommandLineParser& parser, const QCommandLineOption& option) {
  const QString value = parser.value(option);
  if (parser.isSet(option) && value.isEmpty()) {
    throw platform::Failure(QStringLiteral("--%1 wants a value").arg(option.names().constFirst()));
  }
  return value;
}

}  // namespace

Arguments parseArguments(const QStringList& words) {
  const QCommandLineOption help(QStringList{QStringLiteral("help"), QStringLiteral("h")});
  const QCommandLineOption version(QStringLiteral("version"));
  const QCommandLineOption skin(QStringLiteral("skin"), {}, QStringLiteral("NAME"));
  const QCommandLineOption language(QStringLiteral("language"), {}, QStringLiteral("NAME"));
  const QCommandLineOption format(QStringLiteral("format"), {}, QStringLiteral("FORMAT"), QStringLiteral("text"));
  const QCommandLineOption ignore(QStringLiteral("ignore"), {}, QStringLiteral("FILE"));
  const QCommandLineOption strict(QStringLiteral("strict"));
  QCommandLineParser parser;
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  parser.addOptions({help, version, skin, language, format, ignore, strict});
  if (!parser.parse(words)) throw platform::Failure(parser.errorText());
  Arguments arguments;
  if (parser.isSet(help)) arguments.answer = usage();
  if (parser.isSet(version)) arguments.answer = QStringLiteral("cantorama-theme-check " CANTORAMA_VERSION);
  if (!arguments.answer.isEmpty()) return arguments;
  const QStringList names = parser.positionalArguments();
  if (names.isEmpty()) throw windowless::WrongUsage(QStringLiteral("no game folder is named"), usage());
  const QString form = parser.value(format);
  if (form != u"text" && form != u"json") {
    throw platform::Failure(QStringLiteral("--format takes text or json, not '%1'").arg(form));
  }
  arguments.request = {names[0], names.mid(1), given(parser, skin), given(parser, language)};
  arguments.ignored = given(parser, ignore);
  arguments.json = form == u"json";
  arguments.strict = parser.isSet(strict);
  return arguments;
}

}  // namespace themechecktool
