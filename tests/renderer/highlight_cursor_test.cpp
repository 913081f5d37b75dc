#include "renderer/highlight_cursor.h"

#include <QTest>

#include "support/stage.h"

using namespace support;

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

const char* const NoMark = "still hidden ";

}  // namespace

class HighlightCursorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void marks_data() {
    QTest::addColumn<QString>("fields");  // X, Y, W, H between "/"
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QByteArray>("calls");  // "*" for the height of a line
    QTest::addColumn<bool>("fails");
    const auto row = [](const char* fields, const char* tag, const char* calls, bool fails = false) {
      QTest::newRow(fields) << QString::fromLatin1(fields) << QString::fromLatin1(tag) << QByteArray(calls) << fails;
    };
    row("10/ 20.5/30/x", "MainButton1", "L10 T20.5 W30 H0 blinks shown ");
    row("-5/0/0/ ", "MainStatic", "L-5 T0 W0 H0 blinks shown ");
    row("1/2/-3/4", "MainStatic", "L1 T2 ", true);
    row("1/2//4", "MainStatic", NoMark);
    row("1/2/3/", "MainStatic", NoMark);
    row("/2//", "MainText", NoMark);
    row("1/2//", "MainText1", "W0 H* L1 T2 blinks shown ");
    row("10/5//", "mainBUTTONtext1", "W0 H* L110 T205 blinks shown ");
    row("10/5.5//", "mainBUTTONtext12", "W0 H* L10 T5.5 blinks shown ");
    row("7/9//", "Name", "W0 H* L7 T9 blinks shown ");
  }

  void marks() {
    QFETCH(QString, fields);
    QFETCH(QString, tag);
    QFETCH(QByteArray, calls);
    QFETCH(bool, fails);
    Stage stage;
    stage.setTheme("[MainButton]|X=100|Y=200|");
    const QStringList parts = fields.split(u'/');
    stage.state.CursorRect = {parts[0], parts[1], parts[2], parts[3], QStringLiteral("Words"), 20, 1};
    stage.tags.rows = {tag};
    stage.tags.index = 0;
    Mark mark;
    renderer::DrawCursor(stage.state, stage.tags, stage.surface, mark, stage.panel);
    QCOMPARE(mark.calls, calls.replace('*', QByteArray::number(mark.height)));
    QCOMPARE(stage.panel.texts.size(), fails ? 1 : 0);
    if (fails) QVERIFY(stage.panel.texts[0].startsWith(u"Error while drawing highlighting cursor ["));
  }

  void measures() {
    struct Case {
      quint8 font;
      qint16 size;
      const char* face;
      float points;
    };
    for (const Case& each : {Case{0, 20, "Courier New", 20},
                             {1, 20, "Arial Black", 20},
                             {2, 20, "MS Sans Serif", 20},
                             {1, 0, "Arial Black", 8.25},
                             {1, -9, "Arial Black", 8.25}}) {
      Stage stage;
      const QString one = QStringLiteral("1");
      stage.state.CursorRect = {one, one, {}, {}, {}, each.size, each.font};
      Mark mark;
      renderer::DrawCursor(stage.state, stage.tags, stage.surface, mark, stage.panel);
      platform::Surface measuring;
      measuring.SetFontName(QString::fromLatin1(each.face));
      measuring.SetFontSize(each.points);
      QCOMPARE(mark.height, measuring.TextHeight(one) * 1.5);
    }
  }
};

QTEST_MAIN(HighlightCursorTest)
#include "highlight_cursor_test.moc"
