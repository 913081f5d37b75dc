#include "renderer/highlight_cursor.h"

#include <QTest>

#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;

namespace {

/// Keeps what is set, in order: "L10 T20 ...".
struct Mark : renderer::CursorMark {
  void SetLeft(double left) override { note("L", left); }
  void SetTop(double top) override { note("T", top); }
  void SetWidth(double width) override { note("W", width); }
  void SetHeight(double height) override { note("H", height); }
  void SetVisible(bool visible) override { calls += visible ? "shown " : "hidden "; }
  void SetBlinking(bool blinking) override { calls += blinking ? "blinks " : "still "; }
  void note(const char* side, double value) { calls += side + QByteArray::number(value) + ' '; }
  QByteArray calls;
};

/// What the mark is told for an object with these X, Y, W and H, and behind that the report.
QByteArray calls(const char* tag, const QStringList& fields, qint16 size = 20, quint8 font = 2) {
  Stage stage;
  stage.setTheme("[MainButton]|X=100|Y=200|");
  stage.tags.rows = {QString::fromLatin1(tag)};
  stage.tags.index = 0;
  stage.state.CursorRect = {fields[0], fields[1], fields[2], fields[3], u"Words"_s, size, font};
  Mark mark;
  renderer::DrawCursor(stage.state, stage.tags, stage.surface, mark, stage.panel);
  return mark.calls + stage.panel.texts.join(u' ').section(u'[', 0, 0).toLatin1();
}

/// The height of the mark over a text.
QByteArray height(const char* face, float points) {
  platform::Surface measuring;
  measuring.SetFontName(QString::fromLatin1(face));
  measuring.SetFontSize(points);
  return "H" + QByteArray::number(measuring.TextHeight({}) * 1.5) + ' ';
}

}  // namespace

class HighlightCursorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void frames() {
    QCOMPARE(calls("MainButton1", {u"10"_s, u" 20.5"_s, u"30"_s, u"x"_s}), "L10 T20.5 W30 H0 blinks shown ");
    QCOMPARE(calls("MainStatic", {u"-5"_s, u"0"_s, u"0"_s, u" "_s}), "L-5 T0 W0 H0 blinks shown ");
    QCOMPARE(calls("MainStatic", {u"1"_s, u"2"_s, u"-3"_s, u"4"_s}), "L1 T2 Error while drawing highlighting cursor ");
    QCOMPARE(calls("MainStatic", {u"1"_s, u"2"_s, {}, u"4"_s}), "still hidden ");
    QCOMPARE(calls("MainStatic", {u"1"_s, u"2"_s, u"3"_s, {}}), "still hidden ");
    QCOMPARE(calls("MainText", {{}, u"2"_s, {}, {}}), "still hidden ");
  }

  void textLines() {
    const QByteArray line = "W0 " + height("MS Sans Serif", 20);
    QCOMPARE(calls("MainText1", {u"1"_s, u"2"_s, {}, {}}), line + "L1 T2 blinks shown ");
    QCOMPARE(calls("mainBUTTONtext1", {u"10"_s, u"5"_s, {}, {}}), line + "L110 T205 blinks shown ");
    QCOMPARE(calls("mainBUTTONtext12", {u"10"_s, u"5.5"_s, {}, {}}), line + "L10 T5.5 blinks shown ");
    QCOMPARE(calls("Name", {u"7"_s, u"9"_s, {}, {}}), line + "L7 T9 blinks shown ");
    const auto sized = [](qint16 size, quint8 font) { return calls("MainText", {u"1"_s, u"1"_s, {}, {}}, size, font); };
    QVERIFY(sized(20, 0).contains(height("Courier New", 20)));
    QVERIFY(sized(20, 1).contains(height("Arial Black", 20)));
    QVERIFY(sized(0, 1).contains(height("Arial Black", 8.25F)));
    QVERIFY(sized(-9, 1).contains(height("Arial Black", 8.25F)));
  }
};

QTEST_MAIN(HighlightCursorTest)
#include "highlight_cursor_test.moc"
