#include "themefiles/tag_reader.h"

#include <QTest>

#include "support/theme_doubles.h"

using namespace themefiles;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

const QString Name = u"a.ini"_s;

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
  void rows() {
    const auto rows = [](const char* table) {
      const Result result = readTag(linesOf(table), u"S"_s);
      return result.rows + result.reports.join(u' ');
    };
    QCOMPARE(rows("[T]|a=0|[s]|Tex= b |x=1|Y=|[T]|z=1"), u"Tex:b/x:1/Y:"_s);
    QCOMPARE(rows("[S]|#a=1||;b=2|no sign|c=3| #a=1| ;b=2| [T]=3|d =4"), u"c:3/ #a:1/ ;b:2/ [T]:3/d :4"_s);
    QCOMPARE(rows("[S]|\ta\t=\tb\t|a=b=c|d==e|=f"), u"\ta\t:\tb\t/a:b/d:/:f"_s);
    QCOMPARE(rows("[S]|[S]|a=1"), QString());
    QCOMPARE(rows("[S] |a=1|[S]|b=2"), u"b:2"_s);
    QCOMPARE(rows("[S]\na=1\rb=2"), u"a:1/b:2"_s);
  }

  void record() {
    const Result full = readTag(linesOf("[S]|x=1| Y = 2 |W=3|h=4|Text=a=b|SIZE=12.5|Font=1|X= 5|size=13.5"), u"s"_s);
    QCOMPARE(full.record.X, u" 5"_s);
    QCOMPARE(full.record.Y, u" 2 "_s);
    QCOMPARE(full.record.W + full.record.H + full.record.Text, u"34a"_s);
    QVERIFY(full.record.Size == 14 && full.record.Font == 1);
    const CursorRecord none = readTag("[S]\nsize=none\n", u"S"_s).record;
    QVERIFY((none.X + none.Y + none.W + none.H + none.Text).isEmpty() && none.Size == 0 && none.Font == 7);
  }

  void numbersOutOfRange() {
    const Result result = readTag("[S]\nSize=5\nSize=32767.5\nFont=256\nFont=-1\nSize=99999999999\nX=3\n", u"S"_s);
    QVERIFY(result.record.Size == 5 && result.record.Font == 7 && result.record.X == u"3");
    QCOMPARE(result.reports.size(), 4);
    for (const QString& report : result.reports) QVERIFY(report.startsWith(u"Error while reading Tag ["));
    QCOMPARE(result.rows.count(u'/'), 5);
  }

  void missingFileIsReported() {
    ModuleState state;
    state.CursorRect.X = u"1"_s;
    Panel panel;
    QVERIFY(ReadTag(state, u"S"_s, panel).empty());
    QVERIFY(panel.texts.value(0).startsWith(u"Error while reading Tag ["));
    QVERIFY(state.CursorRect.X.isEmpty());
  }
};

QTEST_MAIN(TagReaderTest)
#include "tag_reader_test.moc"
