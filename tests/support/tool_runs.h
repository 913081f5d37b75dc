#pragma once

#include <QCryptographicHash>
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include "platform/files.h"
#include "support/folder.h"
#include "support/pictures.h"

// For tests of the programs that draw without a display.

namespace support {

struct ToolRun {
  QByteArray output, errors;
  int status = 0;
};

/// Runs the program, as on a machine without a display, to its end with the status, -1 for any; gives what it tells.
inline ToolRun runTool(const QString& program, int status, const QStringList& arguments,
                       const QStringList& variables = {}) {
  using namespace Qt::StringLiterals;
  QProcess tool;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QLatin1StringView(display));
  }
  for (const QString& variable : variables) environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
  tool.setProcessEnvironment(environment);
  tool.start(program, arguments);
  const bool ended = tool.waitForFinished(240'000) && tool.exitStatus() == QProcess::NormalExit;
  const ToolRun run{tool.readAllStandardOutput(), tool.readAllStandardError(), tool.exitCode()};
  if (!ended || (status >= 0 && run.status != status)) QTest::qFail(run.errors, __FILE__, __LINE__);
  return run;
}

/// What a run tells in short: its status, the last line of its output and the first of its errors, without the system's
/// own words. The first place is called "SAMPLE", the others "GAME".
inline QString shortly(const ToolRun& run, const QStringList& places) {
  const QString output = QString::fromUtf8(run.output).trimmed().section(u'\n', -1);
  QString told = u"%1 %2 | %3"_s.arg(run.status).arg(output, QString::fromUtf8(run.errors).section(u'\n', 0, 0));
  for (const QString& place : places) told.replace(place, place == places[0] ? u"SAMPLE"_s : u"GAME"_s);
  return told.section(u" ["_s, 0, 0).replace(QRegularExpression(u" 0[.]\\S+"_s), u" VERSION"_s);
}

/// Names, times and bytes of all that lies in the folder.
inline QStringList contentsOf(const QString& folder) {
  QStringList entries;
  QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QString entry = walk.next();
    const QFileInfo info = walk.fileInfo();
    const QByteArray bytes = info.isFile() ? platform::readFile(entry) : QByteArray();
    entries += entry + info.lastModified().toString(Qt::ISODateWithMs) +
               QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex());
  }
  entries.sort();
  return entries;
}

/// A game folder with one theme of the skins Dusk and Neon and the languages English and Deutsch. Files are told as
/// "NAME: lines", "|" being a line end.
class Game {
 public:
  Game() {
    for (const char* part : {"Themes", "Skins/T", "Languages"}) QDir(path()).mkpath(QLatin1StringView(part));
    for (const char* file :
         {"Themes/T.ini: [Loading]|", "Skins/T/Dusk.ini: [Textures]|A=a.png|", "Skins/T/Neon.ini: [Textures]|A=a.png|",
          "Languages/English.ini: [Text]|", "Languages/Deutsch.ini: [Text]|"}) {
      put(file);
    }
    if (!plainPicture(4, 4, qRgb(0, 0, 0)).save(file(QStringLiteral("Skins/T/a.png")))) qFatal("can't write a picture");
  }
  QString path() const { return folder_.path(); }
  QString file(const QString& name) const { return folder_.filePath(name); }
  void put(const QByteArray& told) const {
    const qsizetype colon = told.indexOf(": ");
    platform::writeFile(file(QString::fromLatin1(told.first(colon))), linesOf(told.sliced(colon + 2)));
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace support
