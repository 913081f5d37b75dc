#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "platform/files.h"

using platform::ReadFile;
using platform::WriteFile;
using namespace Qt::StringLiterals;

namespace {

constexpr int Screens = 32;
const QString Sample = QStringLiteral(SAMPLE_FOLDER);

struct Result {
  int status = -1;
  QString errors;
};

Result draw(const QStringList& arguments, const QMap<QString, QString>& variables = {}) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  // As on a machine without a display.
  for (const auto& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s}) environment.remove(name);
  for (const auto& [name, value] : variables.asKeyValueRange()) environment.insert(name, value);
  QProcess tool;
  tool.setProcessEnvironment(environment);
  tool.start(QStringLiteral(CONTACT_SHEET), arguments);
  if (!tool.waitForFinished(120'000) || tool.exitStatus() != QProcess::NormalExit) return {};
  return {tool.exitCode(), QString::fromLocal8Bit(tool.readAllStandardError())};
}

QStringList sampleTheme(const QString& output) {
  return {Sample, u"Stagelight"_s, u"Dusk"_s, u"English"_s, output};
}

/// Names, sizes and times of all that lies in a folder.
QStringList contentsOf(const QString& folder) {
  QStringList entries;
  QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QFileInfo entry(walk.next());
    entries += entry.filePath() + QString::number(entry.size()) + entry.lastModified().toString(Qt::ISODateWithMs);
  }
  entries.sort();
  return entries;
}

/// A theme of one screen, "|" for a line end.
constexpr const char* SmallTheme =
    "[Colors]|Ink=250 10 20|[LoadingBackground]|Tex=Gone|[Loading]|Loop=1|"
    "[LoadingStaticLost]|Tex=Nothing|X=1|Y=1|W=9|H=9|"
    "[LoadingStaticPlain]|Tex=Block|X=10|Y=20|W=30|H=40|Type=Font Black|Color=Ink|"
    "[LoadingTextHere]|Text=WORD|X=5|Y=5|Font=0|Size=10|Color=Ink|"
    "[LoadingButtonOne]|Tex=Block|X=300|Y=9|W=30|H=9|Type=Font Black|Color=Ink|INT=1|DColor=Ink|DINT=1|TEXTS=1|"
    "[LoadingButtonOneText1]|Text=WORD|X=1|Y=1|Font=0|Size=10|Color=Ink|"
    "[LoadingButtonOneText2]|Text=WORD|X=1|Y=1|Font=0|Size=10|Color=Ink|"
    "[LoadingTextHalf]|Text=WORD|X=5|Y=5|Font=0|Size=0|[LoadingStatic\tTab]|Tex=a\tb|[Main]|Loop=1|";

}  // namespace

class ContactSheetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    const QStringList before = contentsOf(Sample);
    const Result result = draw(sampleTheme(sheet_));
    QVERIFY2(result.status == 0 && result.errors.contains(u"32/32 Error Popup"), qPrintable(result.errors));
    QCOMPARE(contentsOf(Sample), before);
  }

  void drawsEveryScreen() {
    const QByteArray report = ReadFile(sheet_ + u"/report.tsv"_s);
    QSet<QByteArray> pictures;
    for (int screen = 1; screen <= Screens; ++screen) {
      QCOMPARE(QImage(pictureOf(sheet_, screen)).size(), QSize(800, 600));
      pictures += ReadFile(pictureOf(sheet_, screen));
      QVERIFY(report.contains('\n' + QByteArray::number(screen) + '\t'));
    }
    QCOMPARE(pictures.size(), Screens);
    QVERIFY(!QImage(sheet_ + u"/overview.png"_s).isNull());
  }

  void drawsTheSameAnywhere() {
    const QTemporaryDir output;
    const Result result = draw(sampleTheme(output.path()), {{u"DISPLAY"_s, u":4711"_s},
                                                            {u"QT_QPA_PLATFORM"_s, u"xcb"_s},
                                                            {u"QT_SCALE_FACTOR"_s, u"2"_s},
                                                            {u"QT_FONT_DPI"_s, u"192"_s},
                                                            {u"LC_ALL"_s, u"de_DE.UTF-8"_s}});
    QVERIFY2(result.status == 0, qPrintable(result.errors));
    for (const QString& file : QDir(sheet_).entryList(QDir::Files)) {
      QVERIFY2(ReadFile(output.filePath(file)) == ReadFile(sheet_ + u'/' + file), qPrintable(file));
    }
  }

  void options() {
    // What stands in force anyway; what changes both screens; what changes the one with buttons.
    for (const auto& [added, changes] : {std::pair(u"--scheme=Blue --selected=1"_s, u""_s),
                                         std::pair(u"--scheme Red"_s, u"12"_s), std::pair(u"--selected=3"_s, u"2"_s)}) {
      const QTemporaryDir output;
      const Result result = draw(sampleTheme(output.path()) + added.split(u' '));
      QVERIFY2(result.status == 0, qPrintable(result.errors));
      QString changed;
      for (const int screen : {1, 2}) {
        if (ReadFile(pictureOf(output.path(), screen)) != ReadFile(pictureOf(sheet_, screen))) {
          changed += QString::number(screen);
        }
      }
      QCOMPARE(changed, changes);
    }
  }

  void reports() {
    const QDir game(folder_.filePath(u"game"_s));
    for (const auto& part : {u"Themes"_s, u"Skins/Small"_s, u"Languages"_s}) QVERIFY(game.mkpath(part));
    WriteFile(game.filePath(u"Themes/Small.ini"_s), QByteArray(SmallTheme).replace("|", "\r\n"));
    WriteFile(game.filePath(u"Skins/Small/Only.ini"_s), "[Textures]\r\nBlock=block.png\r\nGone=gone.png\r\n");
    WriteFile(game.filePath(u"Languages/Some.ini"_s), "[Text]\r\nWORD=Wort\r\n");
    QImage block(4, 4, QImage::Format_RGB32);
    block.fill(Qt::black);
    QVERIFY(block.save(game.filePath(u"Skins/Small/block.png"_s)));
    const QString output = folder_.filePath(u"small"_s);
    const Result result = draw({game.path(), u"Small"_s, u"Only"_s, u"Some"_s, output});
    QVERIFY2(result.status == 0, qPrintable(result.errors));
    const QImage loading(pictureOf(output, 1));
    QCOMPARE(loading.pixelColor(25, 40), QColor(250, 10, 20));
    QCOMPARE(loading.pixelColor(500, 500), QColor(Qt::white));

    const QByteArrayList lines = ReadFile(output + u"/report.tsv"_s).split('\n');
    for (const char* line : {
             "screen\tsection\tresult\treason", "1\tLoadingBackground\tleft out\tno file 'gone.png'",
             "2\tMainBackground\tleft out\ttexture '' has no entry in the skin",
             "1\tLoading\tleft out\tnot part of the preview", "1\tLoadingStaticPlain\tdrawn\t",
             "1\tLoadingStaticLost\tleft out\ttexture 'Nothing' has no entry in the skin",
             "1\tLoadingTextHere\tdrawn\t", "1\tLoadingTextHalf\tleft out\tSize: '0' is no size of a text",
             "1\tLoadingButtonOne\tdrawn\t",
             "1\tLoadingButtonOneText1\tdrawn\t",  // as the file spells it
             "1\tLoadingButtonOneText2\tleft out\tnot part of the preview",
             "1\tLoadingStatic Tab\tleft out\ttexture 'a b' has no entry in the skin",  // tabs don't open a field
         }) {
      QVERIFY2(lines.count(line) == 1, line);
    }
  }

  void refuses() {
    const QTemporaryDir place;
    const QString output = place.filePath(u"out"_s);
    const auto with = [&](int argument, const QString& name) {
      QStringList arguments = sampleTheme(output);
      arguments[argument] = name;
      return arguments;
    };
    const auto adding = [&](const QString& option) { return sampleTheme(output) + option.split(u' '); };
    const QString selected = u"--selected takes a number from 1 to 255"_s;
    const std::pair<QStringList, QString> rows[] = {
        {{}, u"Usage"_s},
        {adding(u"more"_s), u"Usage"_s},
        {with(0, u"/nowhere"_s), u"/nowhere/Themes/Stagelight.ini"_s},
        {with(1, u"Nix"_s), u"Themes/Nix.ini"_s},
        {with(2, u"Nix"_s), u"Skins/Stagelight/Nix.ini"_s},
        {with(3, u"Nix"_s), u"Languages/Nix.ini"_s},
        {with(4, Sample + u"/../Cantorama/Themes/sheet"_s), u"lies in the game folder"_s},
        {adding(u"--skin=x"_s), u"'skin'"_s},
        {adding(u"-platform xcb"_s), u"'platform'"_s},
        {adding(u"--scheme=Mauve"_s), u"no colour scheme 'Mauve'; there are: Blue, Green"_s},
        {adding(u"--selected=0"_s), selected},
        {adding(u"--selected=256"_s), selected},
        {adding(u"--selected=-1"_s), selected},
        {adding(u"--selected=two"_s), selected},
        {adding(u"--selected="_s), selected},
    };
    const QStringList before = contentsOf(Sample);
    for (const auto& [arguments, message] : rows) {
      const Result result = draw(arguments);
      QVERIFY2(result.status == 2 && result.errors.contains(message), qPrintable(message + result.errors));
      QVERIFY(QDir(place.path()).isEmpty());
    }
    QCOMPARE(contentsOf(Sample), before);
  }

 private:
  static QString pictureOf(const QString& output, int screen) {
    return QStringLiteral("%1/%2.png").arg(output).arg(screen, 2, 10, QChar(u'0'));
  }

  QTemporaryDir folder_;
  QString sheet_ = folder_.filePath(u"sheet"_s);  ///< the sample theme, drawn once for all
};

QTEST_GUILESS_MAIN(ContactSheetTest)
#include "contact_sheet_test.moc"
