#include <QTest>

#include "support/row_name.h"
#include "support/stage.h"

using namespace support;
using namespace Qt::StringLiterals;

namespace {

/// A button of the size of its texture.
QByteArray button(const QByteArray& name, int x, const QByteArray& keys = {}) {
  return '[' + name + "]|" + keys + "Tex=Red|Color=P1Dark|DColor=P1Dark|W=8|H=4|Y=100|X=" + QByteArray::number(x) + '|';
}

}  // namespace

class ButtonObjectsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void looks() {
    const QRect place(50, 100, 8, 4);
    const struct {
      const char* name;
      QByteArray keys;  // of the second of three buttons, the selected one
      QRect ink;        // of that button
      int count = 3, steps = 3;
    } rows[] = {
        {"as it stands", "", place},
        {"higher", "SelectH=9.5|", QRect(50, 100, 8, 10)},
        {"SelectH -1", "SelectH=-1|X=40|", QRect(40, 100, 8, 4)},
        {"no colour", "Color=|", {}},
        {"hidden", "Visible=0|", {}, 2, 2},
        {"False is visible", "Visible=False|", place},
        {"0.0 is visible", "Visible=0.0|", place},
        {"no texture", "Tex=|", {}, 3, 2},
        {"number too large", "H=40000|", {}, 3, 2},
        {"SelectH too large", "SelectH=40000|", {}, 3, 2},
        {"TEXTS too large", "TEXTS=40000|", place, 3, 2},
        {"intensity beyond the range", "TYPE=Font Black|Tex=Black|INT=9|", {}},
        {"intensity of the other state", "TYPE=Font Black|Tex=Black|DINT=9|", place},
    };
    for (const auto& row : rows) {
      const RowName name(row.name);
      Stage stage;
      stage.setTheme(button("MainButton1", 0) + button("MainButton2", 50, row.keys) +
                     button("MainButton3", 90, "SelectH=9|"));
      stage.state.ButtonListFilled = true;
      stage.state.SelectedButton = 2;
      stage.draw();
      const QImage& shown = stage.surface.image();
      QCOMPARE(inkOf(shown.copy(0, 0, 20, 600)), QRect(0, 100, 8, 4));
      QCOMPARE(inkOf(shown.copy(20, 0, 70, 600)), row.ink.translated(row.ink.isEmpty() ? 0 : -20, 0));
      QCOMPARE(inkOf(shown.copy(90, 0, 10, 600)).height(), row.count == 2 ? 9 : 4);
      QCOMPARE(int(stage.state.ButtonCount), row.count);
      QCOMPARE(stage.steps(), row.steps);
      const bool tooLarge = row.keys.contains("40000");
      QCOMPARE(stage.panel.texts.size(), tooLarge ? 1 : 0);
      QVERIFY(!tooLarge || stage.panel.texts[0].startsWith(u"Error while Draw Screen [MainButton2: "));
    }
  }

  void childTexts() {
    const struct {
      const char* name;
      QByteArray keys;  // of the selected button, in front of those of its child texts
      QList<int> tops;  // of the texts drawn, in order, less the button's top
      QByteArray tag = "MainButton1";
    } rows[] = {
        {"a gap", "TEXTS=3|", {10, 30, 2000}},
        {"none told", "", {2000}},
        {"shift for the first", "TEXTS=3|SelectH=60|", {30, 30, 2000}},
        {"negative shift", "TEXTS=3|SelectH=20|", {-10, 30, 2000}},
        {"shift beyond 16 bits", "TEXTS=1|SelectH=32767|H=-32768|", {65545, 2000}},
        {"shift left for the next button", "SelectH=60|", {2020}},
        {"a collection's texts stay", "TEXTS=1|SelectH=60|", {10, 2000}, "MainButtonCollection"},
    };
    for (const auto& row : rows) {
      const RowName name(row.name);
      Stage stage;
      // The last button has a text of its own where the first one has fewer than three.
      stage.setTheme('[' + row.tag + "]|" + row.keys + "Tex=Red|X=100|Y=50|H=40|[MainButtonZ]|Tex=Red|Y=50|TEXTS=1|");
      stage.addToTheme('[' + row.tag + "text1]|X=5|Y=10|Size=10|[" + row.tag + "TEXT2]|Y=20|Size=10|[" + row.tag +
                       "Text3]|X=5|Y=30|Size=10|[MainButtonZTEXT1]|X=5|Y=2000|Size=10|");
      QList<int> tops;
      stage.host.yielded = [&] {
        if (stage.account.Objects.size() == std::size_t(tops.size())) return;
        tops += qRound(100 * (double(stage.surface.CurrentY) - stage.surface.TextHeight({}) / 5 - 50));
      };
      stage.draw();
      QList<int> hundredths;
      for (const int top : row.tops) hundredths += 100 * top;
      QCOMPARE(tops, hundredths);
    }
  }

  void moreThanAByteOfButtons() {
    Stage stage;
    QByteArray theme;
    for (int i = 0; i < 260; ++i) theme += "[MainButton" + QByteArray::number(1000 + i) + "]|";
    stage.setTheme(theme);
    stage.draw();
    QCOMPARE(int(stage.state.ButtonCount), 255);
    QCOMPARE(stage.host.buttons.size(), 255);
  }
};

QTEST_MAIN(ButtonObjectsTest)
#include "button_objects_test.moc"
