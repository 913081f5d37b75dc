#include "controls/number_bar.h"

#include <QSignalSpy>

#include "controls/active_window.h"

using controls::NumberBar;

namespace {

struct Window : ActiveWindow {
  Window() {
    bar.setGeometry(0, 0, 17, 19);
    open();
  }
  NumberBar bar{10000, 5, this};
  QSignalSpy changes{&bar, &NumberBar::Change};
};

}  // namespace

class NumberBarTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void upRaises() {
    Window window;
    window.neighbour.setFocus();
    TurnWheel(window.bar, 120);
    QCOMPARE(window.bar.Value(), 5);
    window.bar.setFocus();
    QTest::mouseClick(&window.bar, Qt::LeftButton, {}, {8, 3});
    QTest::keyClick(&window.bar, Qt::Key_Up);
    TurnWheel(window.bar, 120);
    QCOMPARE(window.bar.Value(), 8);
    QTest::mouseClick(&window.bar, Qt::LeftButton, {}, {8, 16});
    QTest::keyClick(&window.bar, Qt::Key_Down);
    TurnWheel(window.bar, -120);
    QCOMPARE(window.bar.Value(), 5);
    QCOMPARE(window.changes.size(), 6);
  }

  void writtenValue() {
    Window window;
    window.bar.SetValue(5);
    window.bar.SetValueQuietly(32767);
    QCOMPARE(window.bar.Value(), 10000);
    QCOMPARE(window.changes.size(), 0);
    window.bar.SetValue(-32768);
    QCOMPARE(window.bar.Value(), -10000);
    QCOMPARE(window.changes.size(), 1);
  }
};

QTEST_MAIN(NumberBarTest)
#include "number_bar_test.moc"
