#include "controls/combo_box.h"

#include <QAbstractItemView>
#include <QSignalSpy>

#include "controls/active_window.h"
#include "platform/failure.h"

using controls::Cause;
using controls::ComboBox;

namespace {

struct Window : ActiveWindow {
  Window() {
    for (const char* entry : {"Main", "Score", "Song", "score"}) box.AddItem(QString::fromLatin1(entry));
    box.setGeometry(0, 0, 90, 21);
    open();
  }
  ComboBox box{this};
  QSignalSpy clicks{&box, &ComboBox::Click};
};

}  // namespace

class ComboBoxTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void fillingAndRemovingSelectNothing() {
    Window window;
    QCOMPARE(window.box.ListIndex(), -1);
    window.box.setCurrentIndex(2);
    window.box.RemoveItem(0);
    QCOMPARE(window.box.Text(), QStringLiteral("Song"));
    window.box.RemoveItem(1);
    QCOMPARE(window.box.ListIndex(), -1);
    QCOMPARE(window.clicks.size(), 0);
  }

  void writtenIndexFiresEachTime() {
    Window window;
    window.box.SetListIndex(1);
    window.box.SetListIndex(1);
    window.box.SetText(QStringLiteral("score"));
    QCOMPARE(window.clicks.last().first().value<Cause>(), Cause::Code);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, window.box.SetListIndex(4));
    QVERIFY_THROWS_EXCEPTION(platform::Failure, window.box.SetText(QStringLiteral("SCORE")));
    QCOMPARE(window.box.ListIndex(), 3);
    window.box.SetListIndex(-1);
    QCOMPARE(window.clicks.size(), 3);
  }

  void keysChoose_data() {
    QTest::addColumn<int>("before");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("after");
    QTest::addColumn<int>("clicks");
    QTest::newRow("letter") << 0 << Qt::Key_S << 1 << 1;
    QTest::newRow("letter, nothing selected") << -1 << Qt::Key_S << 1 << 1;
    QTest::newRow("letter of none") << 0 << Qt::Key_X << 0 << 0;
    QTest::newRow("down, nothing selected") << -1 << Qt::Key_Down << 0 << 1;
    QTest::newRow("up at the head") << 0 << Qt::Key_Up << 0 << 0;
  }
  void keysChoose() {
    QFETCH(int, before);
    QFETCH(Qt::Key, key);
    Window window;
    window.box.setCurrentIndex(before);
    window.box.setFocus();
    QTest::keyClick(&window.box, key);
    QTEST(window.box.ListIndex(), "after");
    QTEST(int(window.clicks.size()), "clicks");
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

  void wheelNeedsTheFocus() {
    Window window;
    window.box.setCurrentIndex(1);
    window.neighbour.setFocus();
    TurnWheel(window.box, -120);
    QCOMPARE(window.box.ListIndex(), 1);
    window.box.setFocus();
    TurnWheel(window.box, -120);
    QCOMPARE(window.box.ListIndex(), 2);
  }

  void popupShowsTwentyWholeEntries() {
    Window window;
    const QString longest = QStringLiteral("the longest entry of all, much wider than its box");
    window.box.AddItem(longest);
    for (int i = 0; i < 30; ++i) window.box.AddItem(QString::number(i));
    window.box.showPopup();
    const QAbstractItemView& list = *window.box.view();
    QVERIFY(list.viewport()->width() >= list.fontMetrics().horizontalAdvance(longest));
    QCOMPARE(list.viewport()->height() / list.sizeHintForRow(0), 20);
  }
};

QTEST_MAIN(ComboBoxTest)
#include "combo_box_test.moc"
