#include <QAbstractItemView>
#include <QSignalSpy>

#include "controls/active_window.h"
#include "controls/combo_box.h"
#include "controls/number_bar.h"
#include "controls/twips.h"
#include "platform/failure.h"

using controls::Cause;
using controls::ComboBox;
using controls::NumberBar;
using namespace Qt::StringLiterals;

namespace {

struct Window : ActiveWindow {
  Window() {
    for (const QString& entry : {u"Main"_s, u"Score"_s, u"Song"_s, u"score"_s}) box.AddItem(entry);
    box.setGeometry(0, 0, 90, 21);
    bar.setGeometry(100, 0, 17, 19);
    open();
  }
  ComboBox box{this};
  NumberBar bar{10000, 5, this};
  QSignalSpy clicks{&box, &ComboBox::Click};
  QSignalSpy changes{&bar, &NumberBar::Change};
};

}  // namespace

class ValueControlsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void fillingAndRemovingSelectNothing() {
    Window window;
    QCOMPARE(window.box.ListIndex(), -1);
    window.box.setCurrentIndex(2);
    window.box.RemoveItem(0);
    QCOMPARE(window.box.Text(), u"Song"_s);
    window.box.RemoveItem(1);
    QCOMPARE(window.box.ListIndex(), -1);
    QCOMPARE(window.clicks.size(), 0);
  }

  void writtenIndexFiresEachTime() {
    Window window;
    window.box.SetListIndex(1);
    window.box.SetListIndex(1);
    window.box.SetText(u"score"_s);
    QCOMPARE(window.clicks.last().first().value<Cause>(), Cause::Code);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, window.box.SetListIndex(4));
    QVERIFY_THROWS_EXCEPTION(platform::Failure, window.box.SetText(u"SCORE"_s));
    QCOMPARE(window.box.ListIndex(), 3);
    window.box.SetListIndex(-1);
    QCOMPARE(window.clicks.size(), 3);
  }

  void keysChoose() {
    const auto chosen = [](int before, Qt::Key key) {
      Window window;
      window.box.setCurrentIndex(before);
      window.box.setFocus();
      QTest::keyClick(&window.box, key);
      return std::pair(window.box.ListIndex(), int(window.clicks.size()));
    };
    QCOMPARE(chosen(0, Qt::Key_S), std::pair(1, 1));
    QCOMPARE(chosen(-1, Qt::Key_S), std::pair(1, 1));
    QCOMPARE(chosen(0, Qt::Key_X), std::pair(0, 0));
    QCOMPARE(chosen(-1, Qt::Key_Down), std::pair(0, 1));
    QCOMPARE(chosen(0, Qt::Key_Up), std::pair(0, 0));
  }

  void choiceOfTheSelectedEntryFires() {
    Window window;
    window.box.setCurrentIndex(1);
    window.box.showPopup();
    const QPoint entry = window.box.view()->visualRect(window.box.model()->index(1, 0)).center();
    QTest::mouseClick(window.box.view()->viewport(), Qt::LeftButton, {}, entry);
    QCOMPARE(window.clicks.size(), 1);
    QCOMPARE(window.clicks.first().first().value<Cause>(), Cause::User);
  }

  void popupShowsTwentyWholeEntries() {
    Window window;
    const QString longest = u"the longest entry of all, much wider than its box"_s;
    window.box.AddItem(longest);
    for (int i = 0; i < 30; ++i) window.box.AddItem(QString::number(i));
    window.box.showPopup();
    const QAbstractItemView& list = *window.box.view();
    QVERIFY(list.viewport()->width() >= list.fontMetrics().horizontalAdvance(longest));
    QCOMPARE(list.viewport()->height() / list.sizeHintForRow(0), 20);
  }

  void wheelNeedsTheFocus() {
    Window window;
    window.box.setCurrentIndex(1);
    const auto turned = [&](QWidget& focused) {
      focused.setFocus();
      TurnWheel(window.box, -120);
      TurnWheel(window.bar, 120);
      return QList<int>{window.box.ListIndex(), window.bar.Value()};
    };
    QCOMPARE(turned(window.neighbour), (QList<int>{1, 5}));
    QCOMPARE(turned(window.box), (QList<int>{2, 5}));
    QCOMPARE(turned(window.bar), (QList<int>{2, 6}));
  }

  void upRaisesTheNumber() {
    Window window;
    window.bar.setFocus();
    QTest::mouseClick(&window.bar, Qt::LeftButton, {}, {8, 3});
    QTest::keyClick(&window.bar, Qt::Key_Up);
    QCOMPARE(window.bar.Value(), 7);
    QTest::mouseClick(&window.bar, Qt::LeftButton, {}, {8, 16});
    QTest::keyClick(&window.bar, Qt::Key_Down);
    TurnWheel(window.bar, -120);
    QCOMPARE(window.bar.Value(), 4);
    QCOMPARE(window.changes.size(), 5);
  }

  void writtenNumberStaysInItsRange() {
    Window window;
    window.bar.SetValue(5);
    window.bar.SetValueQuietly(32767);
    QCOMPARE(window.bar.Value(), 10000);
    QCOMPARE(window.changes.size(), 0);
    window.bar.SetValue(-32768);
    QCOMPARE(window.bar.Value(), -10000);
    QCOMPARE(window.changes.size(), 1);
  }

  void edgesAreRounded() {
    const auto place = [](double left, double width) {
      const QRect pixels = controls::ToPixels({left, 0, width, 15});
      return std::pair(pixels.left(), pixels.width());
    };
    QCOMPARE(place(120, 855), std::pair(8, 57));
    QCOMPARE(place(10, 310), std::pair(1, 20));  // the width by the edges, not by itself
    QCOMPARE(place(7.5, 15), std::pair(1, 1));
    QCOMPARE(place(30, -45), std::pair(2, -3));
  }
};

QTEST_MAIN(ValueControlsTest)
#include "value_controls_test.moc"
