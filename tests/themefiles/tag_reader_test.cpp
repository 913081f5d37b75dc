#include "themefiles/tag_reader.h"

#include <QTest>

#include "support/theme_doubles.h"

using namespace themefiles;
using namespace support;

namespace {

const QString Name = QStringLiteral("a.ini");

struct Result {
  QString rows;  ///< "item:value", joined by "/"
  CursorRecord record;
  QStringList reports;
};

Result readTag(const QByteArray& theme, const QString& section) {
  Folder folder;
  folder.put(Name, theme);
  ModuleState state;
  state.Paths.ThemeFile = folder.path(Name);
  state.CursorRect = {section, section, section, section, section, 99, 7};
  Panel panel;
  QStringList rows;
  for (const ValueRow& row : ReadTag(state, section, panel)) rows += row.Item + u':' + row.Value;
  return {rows.join(u'/'), state.CursorRect, panel.texts};
}

}  // namespace

class TagReaderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void rows_data() {
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QString>("rows");
    const auto row = [](const char* name, const QByteArray& theme, const char* rows) {
      QTest::newRow(name) << theme << QString::fromLatin1(rows);
    };
    row("order and spelling of the file", linesOf("[T]|a=0|[s]|Tex= b |x=1|Y=|[T]|z=1"), "Tex:b/x:1/Y:");
    row("comments and empty lines", linesOf("[S]|#a=1||;b=2|no sign|c=3"), "c:3");
    row("blank in front", linesOf("[S]| #a=1| ;b=2| [T]=3|d =4"), " #a:1/ ;b:2/ [T]:3/d :4");
    row("no trim of other white space", linesOf("[S]|\ta\t=\tb\t"), "\ta\t:\tb\t");
    row("two signs", linesOf("[S]|a=b=c|d==e|=f"), "a:b/d:/:f");
    row("first of two sections", linesOf("[S]|[S]|a=1"), "");
    row("blank behind the header", linesOf("[S] |a=1|[S]|b=2"), "b:2");
    row("LF to the end of the file", "[S]\na=1\nb=2", "a:1/b:2");
    row("CR", "[S]\ra=1\r\rb=2\r[T]\rc=3", "a:1/b:2");
  }

  void rows() {
    QFETCH(QByteArray, theme);
    QFETCH(QString, rows);
    const Result result = readTag(theme, QStringLiteral("S"));
    QCOMPARE(result.rows, rows);
    QVERIFY(result.reports.isEmpty());
  }

  void record() {
    const Result full =
        readTag(linesOf("[S]|x=1| Y = 2 |W=3|h=4|Text=a=b|SIZE=12.5|Font=1|X= 5|size=13.5"), QStringLiteral("s"));
    QCOMPARE(full.record.X, QStringLiteral(" 5"));
    QCOMPARE(full.record.Y, QStringLiteral(" 2 "));
    QCOMPARE(full.record.W + full.record.H + full.record.Text, QStringLiteral("34a"));
    QVERIFY(full.record.Size == 14 && full.record.Font == 1);
    const CursorRecord none = readTag("[S]\nsize=none\n", QStringLiteral("S")).record;
    QVERIFY((none.X + none.Y + none.W + none.H + none.Text).isEmpty() && none.Size == 0 && none.Font == 7);
  }

  void numbersOutOfRange() {
    const Result result =
        readTag("[S]\nSize=5\nSize=32767.5\nFont=256\nFont=-1\nSize=99999999999\nX=3\n", QStringLiteral("S"));
    QVERIFY(result.record.Size == 5 && result.record.Font == 7 && result.record.X == u"3");
    QCOMPARE(result.reports.size(), 4);
    for (const QString& report : result.reports) QVERIFY(report.startsWith(u"Error while reading Tag ["));
    QCOMPARE(result.rows.count(u'/'), 5);
  }

  void missingFileIsReported() {
    ModuleState state;
    state.CursorRect.X = QStringLiteral("1");
    Panel panel;
    QVERIFY(ReadTag(state, QStringLiteral("S"), panel).empty());
    QVERIFY(panel.texts.value(0).startsWith(u"Error while reading Tag ["));
    QVERIFY(state.CursorRect.X.isEmpty());
  }
};

QTEST_MAIN(TagReaderTest)
#include "tag_reader_test.moc"
