#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

#include "support/results.h"
#include "support/tool_runs.h"

using platform::writeFile;
using support::Game;
using support::ToolRun;
using namespace Qt::StringLiterals;

namespace {

const QString Sample = QStringLiteral(SAMPLE_FOLDER);

ToolRun check(int status, const QStringList& arguments) {
  return support::runTool(QStringLiteral(THEME_CHECK), status, arguments);
}

}  // namespace

class ThemeCheckTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void cleanupTestCase() { QCOMPARE(support::contentsOf(Sample), before_); }

  void findsInSample() {
    const ToolRun run = check(1, {Sample});
    // As it is called in the tree.
    QStringList found = QString::fromUtf8(run.output).chopped(1).replace(Sample, u"sample/Cantorama"_s).split(u'\n');
    const qsizetype count = found.size() - 1;  // less the line of counts
#ifdef Q_OS_WIN
    // There a file's name holds in any case, so that one warning isn't given.
    const qsizetype next = found.indexOf(QRegularExpression(u".*/leftover.png:.*"_s));
    found.insert(next,
                 u"sample/Cantorama/Skins/Workbench/Spare.ini:8:5: warning: textures: Key: 'KEY.PNG' is found only "
                 "without regard to case, as 'key.png'"_s);
    found.last().replace(u" 33 warnings"_s, u" 34 warnings"_s);
#endif
    support::compareText(u"findings_of_sample.txt"_s, found);

    const QJsonArray array = QJsonDocument::fromJson(check(1, {Sample, u"--format=json"_s}).output).array();
    QCOMPARE(array.size(), count);
#ifndef Q_OS_WIN
    QStringList objects;
    for (const auto& each : array)
      objects += QString::fromUtf8(QJsonDocument(each.toObject()).toJson(QJsonDocument::Compact));
    support::compareText(u"json_of_sample.txt"_s, objects.replaceInStrings(Sample, u"sample/Cantorama"_s));
#endif
  }

  void statuses() {
    const Game empty;
    QFile::remove(empty.file(u"Themes/T.ini"_s));
    const Game game;  // with one warning
    game.put("Themes/T.ini: [Main]|[MainThing]|Tex=A|");
    support::compareRows(u"calls_of_check.txt"_s, [&](QString row) {
      const QStringList places{Sample, empty.path(), game.path()};
      row.replace(u"SAMPLE"_s, places[0]).replace(u"EMPTY"_s, places[1]).replace(u"GAME"_s, places[2]);
      return support::shortly(check(-1, row.split(u' ', Qt::SkipEmptyParts)), places);
    });
    // What is to be ignored doesn't count, nor do warnings unless they are to.
    const QString patterns = empty.file(u"patterns"_s);
    writeFile(patterns, "# on purpose\n\nNOTE: MainButtonEditor: Visible: *\n? no pattern\n");
    QCOMPARE(check(0, {Sample, u"Stagelight"_s, u"--ignore"_s, patterns}).output,
             "0 errors, 0 warnings, 0 notes, 1 ignored\n");
    const ToolRun json = check(0, {Sample, u"Stagelight"_s, u"--ignore"_s, patterns, u"--format=json"_s});
    QCOMPARE(json.output.simplified() + json.errors, "[ ]1 ignored\n");
#ifdef Q_OS_UNIX
    for (const QString& format : {u"text"_s, u"json"_s}) {
      QProcess full;
      full.setStandardOutputFile(u"/dev/full"_s);
      full.start(QStringLiteral(THEME_CHECK), {Sample, u"Workbench"_s, u"--format"_s, format});
      QVERIFY(full.waitForFinished() && full.exitCode() == 2);
      QCOMPARE(full.readAllStandardError(), "cantorama-theme-check: the output can't be written\n");
    }
    QProcess unread;  // as in `cantorama-theme-check ... | head`
    unread.start(u"sh"_s,
                 {u"-c"_s, u"(sleep 0.2; \"$0\" \"$1\"; echo $? >&2) | true"_s, QStringLiteral(THEME_CHECK), Sample});
    QVERIFY(unread.waitForFinished());
    QCOMPARE(unread.readAllStandardError(), "cantorama-theme-check: the output can't be written\n2\n");
#endif
  }

  void survivesManySections() {
    const Game game;
    QByteArray theme = "Themes/T.ini: [Main]|";
    for (int section = 1; section < 20'000; ++section) {
      theme += (section % 20 == 0 ? "[MainButton" : "[Thing") + QByteArray::number(section) +
               "]|Tex=A|X=1|Y=1|W=9|H=9|Color=P1Dark|DColor=P1Dark|";
    }
    game.put(theme);
    const ToolRun run = check(0, {game.path(), u"--skin=Dusk"_s, u"--language=English"_s});
    QCOMPARE(run.errors, QByteArray());  // it takes long, but no terminal shows how far it is
    const QByteArrayList found = run.output.split('\n');
    const auto strays = std::count_if(found.begin(), found.end(),
                                      [](const auto& line) { return line.endsWith("belongs to no screen"); });
    QCOMPARE(strays, 19'000);
    QVERIFY(found.contains("0 errors, 19000 warnings, 0 notes"));
  }

 private:
  const QStringList before_ = support::contentsOf(Sample);
};

QTEST_GUILESS_MAIN(ThemeCheckTest)
#include "theme_check_test.moc"
