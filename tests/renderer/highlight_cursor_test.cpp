#include "renderer/highlight_cursor.h"

#include <QTest>

#include "support/row_name.h"
#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;

namespace {

/// Keeps what is set, in order: "L10 T20 ...".
class Mark : public renderer::CursorMark {
 public:
  void SetLeft(double left) override { note("L", left); }
  void SetTop(double top) override { note("T", top); }
  void SetWidth(double width) override { note("W", width); }
  void SetHeight(double value) override {
    height = value;
    note("H", value);
  }
  void SetVisible(bool visible) override { calls += visible ? "shown " : "hidden "; }
  void SetBlinking(bool blinking) override { calls += blinking ? "blinks " : "still "; }
  QByteArray calls;
  double height = 0;

 private:
  void note(const char* side, double value) { calls += side + QByteArray::number(value) + ' '; }
};

Mark drawn(Stage& stage, const themefiles::CursorRecord& record) {
  stage.state.CursorRect = record;
  Mark mark;
  renderer::DrawCursor(stage.state, stage.tags, stage.surface, mark, stage.panel);
  return mark;
}

}  // namespace

class HighlightCursorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void marks() {
    const char* const none = "still hidden ";
    const struct {
      QString fields;  // X, Y, W, H between "/"
      QString tag;
      QByteArray calls;  // "*" for the height of a line
      bool fails = false;
    } rows[] = {
        {u"10/ 20.5/30/x"_s, u"MainButton1"_s, "L10 T20.5 W30 H0 blinks shown "},
        {u"-5/0/0/ "_s, u"MainStatic"_s, "L-5 T0 W0 H0 blinks shown "},
        {u"1/2/-3/4"_s, u"MainStatic"_s, "L1 T2 ", true},
        {u"1/2//4"_s, u"MainStatic"_s, none},
        {u"1/2/3/"_s, u"MainStatic"_s, none},
        {u"/2//"_s, u"MainText"_s, none},
        {u"1/2//"_s, u"MainText1"_s, "W0 H* L1 T2 blinks shown "},
        {u"10/5//"_s, u"mainBUTTONtext1"_s, "W0 H* L110 T205 blinks shown "},
        {u"10/5.5//"_s, u"mainBUTTONtext12"_s, "W0 H* L10 T5.5 blinks shown "},
        {u"7/9//"_s, u"Name"_s, "W0 H* L7 T9 blinks shown "},
    };
    for (const auto& row : rows) {
      const RowName name(row.fields.toLatin1());
      Stage stage;
      stage.setTheme("[MainButton]|X=100|Y=200|");
      const QStringList parts = row.fields.split(u'/');
      stage.tags.rows = {row.tag};
      stage.tags.index = 0;
      const Mark mark = drawn(stage, {parts[0], parts[1], parts[2], parts[3], u"Words"_s, 20, 1});
      QCOMPARE(mark.calls, QByteArray(row.calls).replace('*', QByteArray::number(mark.height)));
      QCOMPARE(stage.panel.texts.size(), row.fails ? 1 : 0);
      QVERIFY(!row.fails || stage.panel.texts[0].startsWith(u"Error while drawing highlighting cursor ["));
    }
  }

  void heights() {
    const struct {
      quint8 font;
      qint16 size;
      QString face;
      float points;
    } rows[] = {
        {0, 20, u"Courier New"_s, 20},   {1, 20, u"Arial Black"_s, 20},    {2, 20, u"MS Sans Serif"_s, 20},
        {1, 0, u"Arial Black"_s, 8.25F}, {1, -9, u"Arial Black"_s, 8.25F},
    };
    for (const auto& row : rows) {
      Stage stage;
      platform::Surface measuring;
      measuring.SetFontName(row.face);
      measuring.SetFontSize(row.points);
      QCOMPARE(drawn(stage, {u"1"_s, u"1"_s, {}, {}, {}, row.size, row.font}).height, measuring.TextHeight({}) * 1.5);
    }
  }
};

QTEST_MAIN(HighlightCursorTest)
#include "highlight_cursor_test.moc"
