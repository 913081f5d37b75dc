#include <algorithm>
#include <random>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include "support/results.h"
#include "support/row_name.h"
#include "support/tool_runs.h"

using platform::readFile;
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
    const QStringList found = QString::fromUtf8(run.output).chopped(1).split(u'\n');
    support::compareText(u"findings_of_sample.txt"_s, found);
    QVERIFY(!run.errors.contains("Screen"));  // no progress where there is no terminal

    const QJsonArray array = QJsonDocument::fromJson(check(1, {Sample, u"--format=json"_s}).output).array();
    QCOMPARE(array.size(), found.size() - 1);  // less the counts
    const QJsonObject plate = {{u"file"_s, u"Skins/Workbench/Grey.ini"_s},
                               {u"line"_s, 8},
                               {u"level"_s, u"warning"_s},
                               {u"section"_s, u"Textures"_s},
                               {u"key"_s, u"CutBG"_s},
                               {u"text"_s, u"texture that another skin lacks"_s},
                               {u"skins"_s, QJsonArray{u"Spare"_s}},
                               {u"languages"_s, QJsonArray()}};
    QVERIFY(array.contains(plate));
  }

  /// What the contact sheet leaves out of a theme, and why, is what the check says of it.
  void agreesWithContactSheet() {
    const QTemporaryDir sheet;
    support::runTool(QStringLiteral(CONTACT_SHEET), 0, {Sample, u"Workbench"_s, u"Grey"_s, u"English"_s, sheet.path()});
    const QByteArray findings = check(1, {Sample, u"workbench"_s, u"--skin=Grey"_s, u"--language=English"_s}).output;
    QVERIFY(!findings.contains(" (Grey)"));
    int reasons = 0;
    for (const QByteArray& line : readFile(sheet.filePath(u"report.tsv"_s)).split('\n').sliced(1)) {
      const QByteArrayList fields = line.split('\t');
      if (fields.size() != 4 || fields[3].isEmpty() || fields[3] == "not part of the preview" ||
          fields[3].contains(" with its button ") ||
          (fields[1].endsWith("ackground") && fields[3].startsWith("texture ''")) || fields[1] == "Name") {
        continue;
      }
      for (const QString& reason : QString::fromUtf8(fields[3]).split(u"; "_s)) {
        const QString section = QString::fromUtf8(fields[1]);
        const QStringList lines = QString::fromUtf8(findings).split(u'\n');
        QVERIFY2(std::any_of(lines.begin(), lines.end(),
                             [&](const QString& found) {
                               return found.contains(u": %1: "_s.arg(section)) && found.endsWith(u": "_s + reason);
                             }),
                 line);
        ++reasons;
      }
    }
    QVERIFY(reasons > 20);
  }

  void tellsOfATheme_data() {
    QTest::addColumn<QByteArrayList>("files");
    QTest::addColumn<QByteArrayList>("lines");
    const auto row = [](const char* name, const QByteArrayList& files, const QByteArrayList& lines) {
      QTest::newRow(name) << files << lines;
    };
    const QByteArray button = "Themes/T.ini: [Main]|[MainButtonA]|Tex=A|X=1|Y=1|W=9|H=9|Color=P1Dark|DColor=P1Dark|";
    const QByteArray second = "[MainButtonB]|Tex=A|X=1|Y=1|W=9|H=9|DColor=P1Dark|";
    row("as it should be", {button}, {});
    row("one skin lacks it", {button, "Skins/T/Neon.ini: [Textures]|"},
        {"Skins/T/Dusk.ini:2: warning: Textures: A: texture that another skin lacks (Neon)",
         "Themes/T.ini:3: error: MainButtonA: Tex: texture 'A' has no entry in the skin (Neon)"});
    row("a button that is left out when it is the selected one", {button + second},
        {"Themes/T.ini:10: error: MainButtonB: Color: Color: colour '' is in no table"});
    row("as many colours as there is room for",
        {"Themes/T.ini: " + support::manyColors(99) + "[Main]|[MainButtonA]|Tex=A|W=9|H=9|Color=C1|DColor=C99|"},
        {"97 notes"});
    row("one more",
        {"Themes/T.ini: " + support::manyColors(100) + "[Main]|[MainButtonA]|Tex=A|W=9|H=9|Color=C1|DColor=C99|"},
        {"Themes/T.ini:101: error: Colors: C100: more than 99 colours", "98 notes"});
    row("a text in a colour that isn't there", {"Themes/T.ini: [Main]|[MainTextA]|Size=9|Text=A|Color=Gone|"},
        {"Skins/T/Dusk.ini:2: note: Textures: A: texture that no object uses",
         "Skins/T/Neon.ini:2: note: Textures: A: texture that no object uses",
         "Themes/T.ini:5: error: MainTextA: Color: Color: colour 'Gone' is in no table"});
    row("long words in one language only",
        {button + "[MainTextA]|X=-90|Size=9|Text=A|",
         "Languages/Deutsch.ini: [Text]|A=more than fits into ninety pixels|", "Languages/English.ini: [Text]|A=A|"},
        {"Themes/T.ini:10: warning: MainTextA: -: lies wholly outside the 800 x 600 (English)"});
    row("a text without words shows nothing, one without a key its name",
        {button + "[MainTextA]|X=900|Size=9|Text=A|[MainTextB]|X=900|Size=9|Text=|",
         "Languages/English.ini: [Text]|A=|", "Languages/Deutsch.ini: [Text]|A=|"},
        {"Themes/T.ini:14: warning: MainTextB: -: lies wholly outside the 800 x 600"});
    row("the growth of a button moves the text of the next one out",
        {button + "[MainButtonB]|Tex=A|X=1|Y=1|W=9|H=9|SelectH=900|Color=P1Dark|DColor=P1Dark|"
                  "[MainButtonC]|Tex=A|X=1|Y=1|W=9|H=9|Texts=1|Color=P1Dark|DColor=P1Dark|[MainButtonCText1]|X=1|Size="
                  "9|Text=A|"},
        {"Themes/T.ini:28: warning: MainButtonCText1: -: lies wholly outside the 800 x 600"});
    row("a section behind another screen's", {button + "[Song]|[MainTextLate]|Size=9|Text=|"},
        {"Themes/T.ini:11: warning: MainTextLate: -: belongs to no screen"});
    row("control characters", {button + "[MainTextA]|Size=9|Text=A|\x1b[2J\x07=1|"},
        {"Themes/T.ini:13: note: MainTextA: ?[2J?: key without an editor"});
    row("a theme that is there in two cases of its ending",
        {button + "[Song]|[MainTextLate]|Size=9|Text=|", "Themes/T.INI -> T.ini"},
        {"Themes/T.ini:11: warning: MainTextLate: -: belongs to no screen"});
    // A file of no length that fails at the first byte, for the superuser as well.
    row("a file that can't be read", {button, "Skins/T/Lost.ini -> /proc/self/mem"},
        {"Skins/T/Lost.ini:0: error: -: -: can't be read: Lost.ini: Input/output error"});
    row("a folder that can't be looked into",
        {button, "Skins/T/loop -> loop", "Skins/T/Dusk.ini: [Textures]|A=a.png|B=loop\\x.png|"},
        {"Skins/T/Dusk.ini:3: note: Textures: B: texture that no object uses",
         "Skins/T/Dusk.ini:3: warning: Textures: B: texture that another skin lacks (Neon)"});
  }

  void tellsOfATheme() {
    QFETCH(QByteArrayList, files);
    QFETCH(QByteArrayList, lines);
    const Game game;
    for (const QByteArray& file : files) {
      const QStringList link = QString::fromLatin1(file).split(u" -> "_s);
      if (link.size() == 2) {
        QVERIFY(QFile::link(link[1], game.file(link[0])));
      } else {
        game.put(file);
      }
    }
    const bool failing =
        std::any_of(lines.begin(), lines.end(), [](const auto& line) { return line.contains("error"); });
    const QByteArrayList found = check(failing ? 1 : 0, {game.path()}).output.trimmed().split('\n');
    // The many that are alike are only counted.
    const bool counted = !lines.isEmpty() && lines.last().endsWith(" notes");
    for (const QByteArray& line : lines)
      QVERIFY2(found.contains(line) || found.last().endsWith(line), found.join('\n'));
    if (!counted) QVERIFY2(found.size() == lines.size() + 1, found.join('\n'));
  }

  void statuses() {
    const Game empty;
    QFile::remove(empty.file(u"Themes/T.ini"_s));
    for (const auto& [status, arguments, message] : {
             std::tuple(0, QStringList{u"--help"_s}, "Usage"),
             {0, {u"--version"_s}, "cantorama-theme-check 0"},
             {0, {Sample, u"Stagelight"_s, u"--strict"_s}, "0 errors, 0 warnings"},
             {1, {Sample, u"Stagelight"_s, u"Workbench"_s}, "error"},
             {2, {}, "no game folder is named"},
             {2, {Sample + u"/nowhere"_s}, "no folder '"},
             {2, {empty.path()}, "no themes in '"},
             {2, {Sample, u"Nix"_s}, "no theme 'Nix'; there are: Stagelight, Without Skin, Workbench"},
             {2, {Sample, u"--skin=Nix"_s}, "no skin 'Nix'; there are: Dusk, Neon, Grey, Spare"},
             {2, {Sample, u"--language"_s, u"Nix"_s}, "no language 'Nix'"},
             {2, {Sample, u"--format=xml"_s}, "--format takes text or json"},
             {2, {Sample, u"--nix"_s}, "nix"},
         }) {
      const ToolRun run = check(status, arguments);
      QVERIFY2((status == 2 ? run.errors : run.output).contains(message), message + run.errors);
    }
    // Warnings count only when they are to.
    const Game game;
    game.put("Themes/T.ini: [Main]|[MainThing]|Tex=A|Tex=A|");
    check(0, {game.path()});
    check(1, {game.path(), u"--strict"_s});
  }

  void survivesAnything() {
    std::mt19937 random(4711);
    for (int turn = 0; turn < 12; ++turn) {
      const support::RowName row(QByteArray::number(turn));
      const Game game;
      for (const char* name : {"Themes/T.ini", "Skins/T/Dusk.ini", "Languages/English.ini"}) {
        QByteArray bytes =
            readFile(Sample + (name[0] == 'T' ? u"/Themes/Workbench.ini"_s : u"/Skins/Workbench/Grey.ini"_s));
        for (char& byte : bytes) {
          if (random() % (turn < 4 ? 1 : 40) == 0) byte = static_cast<char>(random());
        }
        writeFile(game.file(QString::fromLatin1(name)), bytes);
      }
      const QByteArray counts = check(support::Either, {game.path()}).output.trimmed().split('\n').last();
      QVERIFY2(counts.contains(" error"), counts);
    }
  }

  void survivesManySections() {
    const Game game;
    QByteArray theme = "Themes/T.ini: [Main]|";
    for (int section = 1; section < 20'000; ++section) {
      theme += (section % 20 == 0 ? "[MainButton" : "[Thing") + QByteArray::number(section) +
               "]|Tex=A|X=1|Y=1|W=9|H=9|Color=P1Dark|DColor=P1Dark|";
    }
    game.put(theme);
    const QByteArrayList found = check(0, {game.path(), u"--skin=Dusk"_s, u"--language=English"_s}).output.split('\n');
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
