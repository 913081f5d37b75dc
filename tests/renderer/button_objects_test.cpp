#include <QTest>

#include "support/stage.h"

using namespace support;

namespace {

/// A button of the size of its texture.
QByteArray button(const QByteArray& name, int x, const QByteArray& keys = {}) {
  return '[' + name + "]|" + keys + "Tex=Red|Color=P1Dark|DColor=P1Dark|W=8|H=4|Y=100|X=" + QByteArray::number(x) + '|';
}

}  // namespace

class ButtonObjectsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void looks_data() {
    QTest::addColumn<QByteArray>("keys");  // of the second of three buttons, the selected one
    QTest::addColumn<QRect>("ink");        // of that button
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("steps");
    const auto row = [](const char* name, const char* keys, QRect ink, int count = 3, int steps = 3) {
      QTest::newRow(name) << QByteArray(keys) << ink << count << steps;
    };
    const QRect place(50, 100, 8, 4);
    row("as it stands", "", place);
    row("higher", "SelectH=9.5|", QRect(50, 100, 8, 10));
    row("SelectH -1", "SelectH=-1|X=40|", QRect(40, 100, 8, 4));
    row("no colour", "Color=|", {});
    row("hidden", "Visible=0|", {}, 2, 2);
    row("False is visible", "Visible=False|", place);
    row("0.0 is visible", "Visible=0.0|", place);
    row("no texture", "Tex=|", {}, 3, 2);
    row("number too large", "H=40000|", {}, 3, 2);
    row("SelectH too large", "SelectH=40000|", {}, 3, 2);
    row("TEXTS too large", "TEXTS=40000|", place, 3, 2);
    row("intensity beyond the range", "TYPE=Font Black|Tex=Black|INT=9|", {});
    row("intensity of the other state", "TYPE=Font Black|Tex=Black|DINT=9|", place);
  }

  void looks() {
    QFETCH(QByteArray, keys);
    QFETCH(QRect, ink);
    QFETCH(int, count);
    QFETCH(int, steps);
    Stage stage;
    stage.setTheme(button("MainButton1", 0) + button("MainButton2", 50, keys) +
                   button("MainButton3", 90, "SelectH=9|"));
    stage.state.ButtonListFilled = true;
    stage.state.SelectedButton = 2;
    stage.draw();
    QCOMPARE(inkOf(stage.surface.image().copy(0, 0, 89, 600)).right(), ink.isEmpty() ? 7 : ink.right());
    QCOMPARE(inkOf(stage.surface.image().copy(20, 0, 69, 600)).translated(20, 0),
             ink.isEmpty() ? QRect(20, 0, 0, 0) : ink);
    QCOMPARE(inkOf(stage.surface.image().copy(90, 0, 99, 600)).height(), keys == "Visible=0|" ? 9 : 4);
    QCOMPARE(int(stage.state.ButtonCount), count);
    QCOMPARE(stage.steps(), steps);
    const bool tooLarge = keys.contains("40000");
    QCOMPARE(stage.panel.texts.size(), tooLarge ? 1 : 0);
    if (tooLarge) QVERIFY(stage.panel.texts[0].startsWith(u"Error while Draw Screen [MainButton2: "));
  }

  void childTexts_data() {
    QTest::addColumn<QByteArray>("keys");  // of the selected button, in front of those of its child texts
    QTest::addColumn<QByteArray>("tag");
    QTest::addColumn<QList<int>>("tops");  // of the texts drawn, in order, less the button's top
    const auto row = [](const char* name, const char* keys, QList<int> tops, const char* tag = "MainButton1") {
      QTest::newRow(name) << QByteArray(keys) << QByteArray(tag) << tops;
    };
    row("a gap", "TEXTS=3|", {10, 30, 2000});
    row("none told", "", {2000});
    row("shift for the first", "TEXTS=3|SelectH=60|", {30, 30, 2000});
    row("negative shift", "TEXTS=3|SelectH=20|", {-10, 30, 2000});
    row("shift beyond 16 bits", "TEXTS=1|SelectH=32767|H=-32768|", {65545, 2000});
    row("shift left for the next button", "SelectH=60|", {2020});
    row("a collection's texts stay", "TEXTS=1|SelectH=60|", {10, 2000}, "MainButtonCollection");
  }

  void childTexts() {
    QFETCH(QByteArray, keys);
    QFETCH(QByteArray, tag);
    QFETCH(QList<int>, tops);
    Stage stage;
    // The last button has a text of its own where the first one has fewer than three.
    const QByteArray size = "Size=10|";
    stage.setTheme('[' + tag + "]|" + keys + "Tex=Red|X=100|Y=50|H=40|[MainButtonZ]|Tex=Red|Y=50|TEXTS=1|");
    stage.folder.put(QStringLiteral("theme.ini"),
                     stage.folder.get(QStringLiteral("theme.ini")) +
                         linesOf('[' + tag + "text1]|X=5|Y=10|" + size + '[' + tag + "TEXT2]|Y=20|" + size + '[' + tag +
                                 "Text3]|X=5|Y=30|" + size + "[MainButtonZTEXT1]|X=5|Y=2000|" + size));
    QList<double> ys;
    stage.host.yielded = [&] {
      if (stage.account.Objects.size() > std::size_t(ys.size())) {
        ys += double(stage.surface.CurrentY) - stage.surface.TextHeight({}) / 5 - 50;
      }
    };
    stage.draw();
    QCOMPARE(ys.size(), tops.size());
    for (int i = 0; i < ys.size(); ++i) QVERIFY2(qAbs(ys[i] - tops[i]) < 0.01, qPrintable(QString::number(ys[i])));
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
