#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "platform/files.h"

using platform::ReadFile;
using platform::WriteFile;

namespace {

constexpr int Screens = 32;
const QString Sample = QStringLiteral(SAMPLE_FOLDER);

struct Result {
  int status = -1;
  QString errors;
};

Result draw(const QStringList& arguments, const QProcessEnvironment& environment) {
  QProcess tool;
  tool.setProcessEnvironment(environment);
  tool.start(QStringLiteral(CONTACT_SHEET), arguments);
  if (!tool.waitForFinished(120'000) || tool.exitStatus() != QProcess::NormalExit) return {};
  return {tool.exitCode(), QString::fromLocal8Bit(tool.readAllStandardError())};
}

/// As on a machine without a display.
QProcessEnvironment noDisplay() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const auto* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QString::fromLatin1(name));
  }
  return environment;
}

QStringList sampleTheme(const QString& output) {
  return {Sample, QStringLiteral("Stagelight"), QStringLiteral("Dusk"), QStringLiteral("English"), output};
}

/// Names, sizes and times of all that lies in a folder.
QStringList contentsOf(const QString& folder) {
  QStringList entries;
  QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (walk.hasNext()) {
    const QFileInfo entry(walk.next());
    entries += QStringLiteral("%1 %2 %3")
                   .arg(entry.filePath())
                   .arg(entry.size())
                   .arg(entry.lastModified().toString(Qt::ISODateWithMs));
  }
  entries.sort();
  return entries;
}

QString pictureName(int screen) {
  return QStringLiteral("%1.png").arg(screen, 2, 10, QChar(u'0'));
}

QString reportOf(const QString& output) {
  return QString::fromUtf8(ReadFile(output + QStringLiteral("/report.tsv")));
}

}  // namespace

class ContactSheetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase();
  void drawsEveryScreen();
  void drawsTheSameAnywhere();
  void options_data();
  void options();
  void reports_data();
  void reports();
  void refuses_data();
  void refuses();

 private:
  QTemporaryDir folder_;
  QString sheet_;     ///< the sample theme, drawn once for all
  QString smallOne_;  ///< the report on a theme of one screen
};

void ContactSheetTest::initTestCase() {
  sheet_ = folder_.filePath(QStringLiteral("sheet"));
  const QStringList before = contentsOf(Sample);
  const Result result = draw(sampleTheme(sheet_), noDisplay());
  QVERIFY2(result.status == 0, qPrintable(result.errors));
  QCOMPARE(contentsOf(Sample), before);
  QVERIFY2(result.errors.contains(u"32/32 Error Popup"), qPrintable(result.errors));

  const QDir game(folder_.filePath(QStringLiteral("game")));
  for (const auto* part : {"Themes", "Skins/Small", "Languages"}) QVERIFY(game.mkpath(QString::fromLatin1(part)));
  WriteFile(game.filePath(QStringLiteral("Themes/Small.ini")),
            "[Colors]\r\nInk=250 10 20\r\n"
            "[LoadingBackground]\r\nTex=Gone\r\n"
            "[Loading]\r\nLoop=1\r\n"
            "[LoadingStaticLost]\r\nTex=Nothing\r\nX=1\r\nY=1\r\nW=9\r\nH=9\r\n"
            "[LoadingStaticPlain]\r\nTex=Block\r\nX=10\r\nY=20\r\nW=30\r\nH=40\r\nType=Font Black\r\nColor=Ink\r\n"
            "[LoadingTextHere]\r\nText=WORD\r\nX=5\r\nY=5\r\nFont=0\r\nSize=10\r\nColor=Ink\r\n"
            "[LoadingButtonOne]\r\nTex=Block\r\nX=300\r\nY=9\r\nW=30\r\nH=9\r\nType=Font Black\r\nColor=Ink\r\n"
            "INT=1\r\nDColor=Ink\r\nDINT=1\r\nTEXTS=1\r\n"
            "[LoadingButtonOneText1]\r\nText=WORD\r\nX=1\r\nY=1\r\nFont=0\r\nSize=10\r\nColor=Ink\r\n"
            "[LoadingButtonOneText2]\r\nText=WORD\r\nX=1\r\nY=1\r\nFont=0\r\nSize=10\r\nColor=Ink\r\n"
            "[LoadingTextHalf]\r\nText=WORD\r\nX=5\r\nY=5\r\nFont=0\r\nSize=0\r\n"
            "[LoadingStatic\tTab]\r\nTex=a\tb\r\n"
            "[Main]\r\nLoop=1\r\n");
  WriteFile(game.filePath(QStringLiteral("Skins/Small/Only.ini")),
            "[Textures]\r\nBlock=block.png\r\nGone=gone.png\r\n");
  WriteFile(game.filePath(QStringLiteral("Languages/Some.ini")), "[Text]\r\nWORD=Wort\r\n");
  QImage block(4, 4, QImage::Format_RGB32);
  block.fill(Qt::black);
  QVERIFY(block.save(game.filePath(QStringLiteral("Skins/Small/block.png"))));
  const QString output = folder_.filePath(QStringLiteral("small"));
  const Result small =
      draw({game.path(), QStringLiteral("Small"), QStringLiteral("Only"), QStringLiteral("Some"), output}, noDisplay());
  QVERIFY2(small.status == 0, qPrintable(small.errors));
  smallOne_ = reportOf(output);
  const QImage loading(output + QStringLiteral("/01.png"));
  QCOMPARE(loading.pixelColor(25, 40), QColor(250, 10, 20));
  QCOMPARE(loading.pixelColor(500, 500), QColor(Qt::white));
}

void ContactSheetTest::drawsEveryScreen() {
  const QString report = reportOf(sheet_);
  QSet<QByteArray> pictures;
  for (int screen = 1; screen <= Screens; ++screen) {
    const QString file = sheet_ + u'/' + pictureName(screen);
    QCOMPARE(QImage(file).size(), QSize(800, 600));
    pictures += ReadFile(file);
    QVERIFY2(report.contains(QStringLiteral("\n%1\t").arg(screen)), qPrintable(file));
  }
  QCOMPARE(pictures.size(), Screens);
  QVERIFY(!QImage(sheet_ + QStringLiteral("/overview.png")).isNull());
}

void ContactSheetTest::drawsTheSameAnywhere() {
  QProcessEnvironment environment = noDisplay();
  for (const auto& [name, value] : std::initializer_list<std::pair<const char*, const char*>>{
           {"DISPLAY", ":4711"},
           {"QT_QPA_PLATFORM", "xcb"},
           {"QT_SCALE_FACTOR", "2"},
           {"QT_FONT_DPI", "192"},
           {"LC_ALL", "de_DE.UTF-8"},
       }) {
    environment.insert(QString::fromLatin1(name), QString::fromLatin1(value));
  }
  const QTemporaryDir output;
  const Result result = draw(sampleTheme(output.path()), environment);
  QVERIFY2(result.status == 0, qPrintable(result.errors));
  for (const QString& file : QDir(sheet_).entryList(QDir::Files)) {
    QVERIFY2(ReadFile(output.filePath(file)) == ReadFile(sheet_ + u'/' + file), qPrintable(file));
  }
}

void ContactSheetTest::options_data() {
  QTest::addColumn<QStringList>("added");
  QTest::addColumn<bool>("changesMain");
  QTest::addColumn<bool>("changesLoading");
  QTest::newRow("what stands in force anyway")
      << QStringList{QStringLiteral("--scheme=Blue"), QStringLiteral("--selected=1")} << false << false;
  QTest::newRow("another scheme") << QStringList{QStringLiteral("--scheme"), QStringLiteral("Red")} << true << true;
  QTest::newRow("another button") << QStringList{QStringLiteral("--selected=3")} << true << false;
}

void ContactSheetTest::options() {
  QFETCH(const QStringList, added);
  QFETCH(const bool, changesMain);
  QFETCH(const bool, changesLoading);
  const QTemporaryDir output;
  const Result result = draw(sampleTheme(output.path()) + added, noDisplay());
  QVERIFY2(result.status == 0, qPrintable(result.errors));
  const auto changed = [&](int screen) {
    return ReadFile(output.filePath(pictureName(screen))) != ReadFile(sheet_ + u'/' + pictureName(screen));
  };
  QCOMPARE(changed(2), changesMain);
  QCOMPARE(changed(1), changesLoading);
}

void ContactSheetTest::reports_data() {
  QTest::addColumn<QString>("line");
  QTest::newRow("header") << "screen\tsection\tresult\treason";
  QTest::newRow("background without its file") << "1\tLoadingBackground\tleft out\tno file 'gone.png'";
  QTest::newRow("background of a screen without one") << "2\tMainBackground\tleft out\ttexture '' has no entry in the "
                                                         "skin";
  QTest::newRow("section of the running game") << "1\tLoading\tleft out\tnot part of the preview";
  QTest::newRow("static") << "1\tLoadingStaticPlain\tdrawn\t";
  QTest::newRow("static without a texture") << "1\tLoadingStaticLost\tleft out\ttexture 'Nothing' has no entry in the "
                                               "skin";
  QTest::newRow("text") << "1\tLoadingTextHere\tdrawn\t";
  QTest::newRow("text without a size") << "1\tLoadingTextHalf\tleft out\tSize: '0' is no size of a text";
  QTest::newRow("button") << "1\tLoadingButtonOne\tdrawn\t";
  QTest::newRow("child text, as the file spells it") << "1\tLoadingButtonOneText1\tdrawn\t";
  QTest::newRow("child text beyond the button's number") << "1\tLoadingButtonOneText2\tleft out\tnot part of the "
                                                            "preview";
  QTest::newRow("tabs don't open a field") << "1\tLoadingStatic Tab\tleft out\ttexture 'a b' has no entry in the skin";
}

void ContactSheetTest::reports() {
  QFETCH(const QString, line);
  QVERIFY2(smallOne_.split(u'\n').count(line) == 1, qPrintable(smallOne_));
}

void ContactSheetTest::refuses_data() {
  QTest::addColumn<QStringList>("arguments");
  QTest::addColumn<QString>("message");
  const auto with = [](int place, const char* name) {
    QStringList arguments = sampleTheme(QStringLiteral("OUTPUT"));
    arguments[place] = QString::fromLatin1(name);
    return arguments;
  };
  QTest::newRow("nothing") << QStringList() << "Usage";
  QTest::newRow("one name too many") << (with(0, "Game") += QStringLiteral("more")) << "Usage";
  QTest::newRow("game folder") << with(0, "/nowhere") << "/nowhere/Themes/Stagelight.ini";
  QTest::newRow("theme") << with(1, "Nix") << "Themes/Nix.ini";
  QTest::newRow("skin") << with(2, "Nix") << "Skins/Stagelight/Nix.ini";
  QTest::newRow("language") << with(3, "Nix") << "Languages/Nix.ini";
  QTest::newRow("unknown option") << (sampleTheme(QStringLiteral("OUTPUT")) << QStringLiteral("--skin=x")) << "'skin'";
  QTest::newRow("platform") << (sampleTheme(QStringLiteral("OUTPUT"))
                                << QStringLiteral("-platform") << QStringLiteral("xcb"))
                            << "'platform'";
  QTest::newRow("scheme") << (sampleTheme(QStringLiteral("OUTPUT")) << QStringLiteral("--scheme=Mauve"))
                          << "no colour scheme 'Mauve'; there are: Blue, Green";
  QTest::newRow("output in the game folder")
      << sampleTheme(Sample + QStringLiteral("/../Cantorama/Themes/sheet")) << "lies in the game folder";
  for (const auto* number : {"0", "256", "-1", "two", ""}) {
    QTest::addRow("button '%s'", number) << (sampleTheme(QStringLiteral("OUTPUT"))
                                             << QStringLiteral("--selected=%1").arg(QString::fromLatin1(number)))
                                         << "--selected takes a number from 1 to 255";
  }
}

void ContactSheetTest::refuses() {
  QFETCH(QStringList, arguments);
  QFETCH(const QString, message);
  const QTemporaryDir place;
  arguments.replaceInStrings(QStringLiteral("OUTPUT"), place.filePath(QStringLiteral("out")));
  const QStringList before = contentsOf(Sample);
  const Result result = draw(arguments, noDisplay());
  QCOMPARE(result.status, 2);
  QVERIFY2(result.errors.contains(message), qPrintable(result.errors));
  QVERIFY(QDir(place.path()).isEmpty());
  QCOMPARE(contentsOf(Sample), before);
}

QTEST_GUILESS_MAIN(ContactSheetTest)
#include "contact_sheet_test.moc"
