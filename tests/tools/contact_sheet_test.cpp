#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include "platform/files.h"
#include "support/pictures.h"
#include "support/results.h"
#include "support/tool_runs.h"

using platform::readFile;
using namespace Qt::StringLiterals;

namespace {

const QString Sample = QStringLiteral(SAMPLE_FOLDER);

QStringList sampleTheme(const QString& output) {
  return {Sample, u"Stagelight"_s, u"Dusk"_s, u"English"_s, output};
}

/// A theme of one screen, "|" for a line end.
constexpr const char* SmallTheme =
    "Themes/T.ini: [Colors]|Ink=250 10 20|[LoadingBackground]|Tex=Gone|[Loading]|Loop=1|"
    "[LoadingButtonOne]|Tex=Block|X=300|Y=9|W=30|H=9|Color=Ink|DColor=Ink|TEXTS=1|"
    "[LoadingButtonTwo]|Tex=Block|X=9|Y=9|W=30|H=9|Color=Ink|DColor=Ink|TEXTS=2|"
    "[LoadingButtonOneText1]|Text=A|X=1|Y=1|Size=10|[LoadingButtonOneText2]|Text=B|X=1|Y=1|Size=10|"
    "[LoadingButtonOff]|Visible=0|[LoadingButtonOffText1]|X=1|"
    "[LoadingTextHalf]|Text=A|X=5|Y=5|Size=0|[LoadingStatic\tTab]|Tex=a\tb|[loadingstatic\ttab]|[Main]|Loop=1|"
    "[LoadingButtonTwoText1]|X=1|[loadingbuttontwotext2]|X=1|Size=9|[Name]|Visible=0|[NameBackground]|Tex=Block|"
    "Visible=0|[NameStaticBar]|Tex=Block|W=9|H=9|Color=Ink|Visible=0|";

}  // namespace

class ContactSheetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { draw(0, sampleTheme(sheet_)); }

  void cleanupTestCase() { QCOMPARE(support::contentsOf(Sample), before_); }

  /// The same pixels on every system: their sums are kept.
  void screensOfTheSample() {
    QStringList lines;
    for (int screen = 1; screen <= 33; ++screen) {  // the last one is the overview
      const QString file = screen > 32 ? sheet_ + u"/overview.png"_s : pictureOf(sheet_, screen);
      lines += u"%1 "_s.arg(screen, 2, 10, QChar(u'0')) + sumOf(file);
    }
    support::compareText(u"pixels_of_sample.txt"_s, lines);
  }

  /// Of a theme with faults, all that isn't just drawn, and why; the check says the same of it, or of the cause.
  void reasonsInTheSample() {
    const QString output = folder_.filePath(u"workbench"_s);
    draw(0, {Sample, u"Workbench"_s, u"Grey"_s, u"English"_s, output});
    QStringList rows = QString::fromUtf8(readFile(output + u"/report.tsv"_s)).split(u'\n');
    rows.removeIf([](const QString& row) { return row.endsWith(u'\t') || row.endsWith(u"part of the preview"_s); });
    support::compareText(u"reasons_in_sample.txt"_s, rows);
  }

  void drawsTheSameAnywhere() {
    const QTemporaryDir output;
    draw(0, sampleTheme(output.path()),
         {u"DISPLAY=:4711"_s, u"QT_QPA_PLATFORM=xcb"_s, u"QT_SCALE_FACTOR=2"_s, u"QT_FONT_DPI=192"_s});
    for (const QString& file : QDir(sheet_).entryList(QDir::Files)) {
      QVERIFY2(readFile(output.filePath(file)) == readFile(sheet_ + u'/' + file), qPrintable(file));
    }
  }

  void reports() {
    const support::Game game;
    game.put(SmallTheme);
    game.put("Skins/T/Dusk.ini: [Textures]|Block=a.png|Gone=gone.png|");
    const QString output = folder_.filePath(u"small"_s);
#ifdef Q_OS_UNIX
    QVERIFY(QDir().mkdir(output));
    for (const auto& name : {u"/01.png"_s, u"/overview.png"_s, u"/report.tsv"_s}) {
      QVERIFY(QFile::link(game.file(u"Themes/T.ini"_s), output + name));
    }
#endif
    const QByteArray told = draw(0, {game.path(), u"T"_s, u"Dusk"_s, u"English"_s, output});
    QVERIFY2(told.contains("01/32 Loading Screen: 5 drawn, 7 left out\n"), told);
    QVERIFY(readFile(game.file(u"Themes/T.ini"_s)).startsWith("[Colors]"));  // links in the folder are replaced
    const QString report = QString::fromUtf8(readFile(output + u"/report.tsv"_s));
    support::compareText(u"small_report.txt"_s, report.chopped(1).split(u'\n'));
  }

  void refuses() {
    const QTemporaryDir place;
    const QTemporaryDir links;
#ifdef Q_OS_UNIX
    QVERIFY(QFile::link(Sample + u"/Skins"_s, links.filePath(u"link"_s)));
#endif
    const auto told = [&](QString row) {
      row = QString::fromUtf8(support::bytesOf(row.toUtf8()));
      row.replace(u"SAMPLE"_s, Sample).replace(u"LINKS"_s, links.path()).replace(u"OUT"_s, place.filePath(u"out"_s));
      const QStringList arguments = row.split(u'\n', Qt::SkipEmptyParts);
      const auto run = support::runTool(QStringLiteral(CONTACT_SHEET), -1, arguments, {u"-uXDG_RUNTIME_DIR"_s});
      QDir drawn(place.filePath(u"out"_s));
      const QString sum = drawn.exists() ? u" and draws "_s + sumOf(drawn.filePath(u"02.png"_s)) : QString();
      drawn.removeRecursively();
      return support::shortly(run, {Sample, place.path(), links.path()}) + sum;
    };
    support::compareRows(u"calls_of_sheet.txt"_s, told);
#ifdef Q_OS_UNIX
    support::compareRows(u"calls_with_links.txt"_s, told);
#endif
  }

 private:
  static QByteArray draw(int status, const QStringList& arguments, const QStringList& variables = {}) {
    return support::runTool(QStringLiteral(CONTACT_SHEET), status, arguments, variables).errors;
  }

  static QString sumOf(const QString& file) {
    const QImage picture = QImage(file).convertToFormat(QImage::Format_ARGB32);
    const QByteArrayView pixels(picture.constBits(), picture.sizeInBytes());
    return QString::fromLatin1(QCryptographicHash::hash(pixels, QCryptographicHash::Sha1).toHex());
  }

  static QString pictureOf(const QString& output, int screen) {
    return QStringLiteral("%1/%2.png").arg(output).arg(screen, 2, 10, QChar(u'0'));
  }

  QTemporaryDir folder_;
  const QStringList before_ = support::contentsOf(Sample);
  QString sheet_ = folder_.filePath(u"sheet"_s);  ///< the sample theme, drawn once for all
};

QTEST_GUILESS_MAIN(ContactSheetTest)
#include "contact_sheet_test.moc"
