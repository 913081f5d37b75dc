#include <QAbstractItemView>
#include <QHelpEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/look.h"
#include "controls/number_bar.h"
#include "platform/failure.h"
#include "support/mouse.h"

using namespace controls;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

constexpr int Rows = 30;

/// Both lists with the same thirty rows, a combo box, a number bar, and a widget that can have the focus instead.
struct Window : QWidget {
  Window() {
    applyLook(*qApp);
    list.setGeometry(0, 0, 150, 100);
    view.setGeometry(150, 0, 150, 100);
    combo.setGeometry(0, 110, 90, 21);
    bar.setGeometry(100, 110, 17, 19);
    neighbour.setFocusPolicy(Qt::StrongFocus);
    view.setColumns({u"Item"_s, u"Value"_s}, {63, 87});
    for (int i = 0; i < Rows; ++i) {
      list.AddItem(u"%1 row"_s.arg(QChar(u'O' - i / 2)));
      view.addRow(list.List(i), u"<b>a long value</b> %1"_s.arg(i));
    }
    for (const QString& entry : {u"Main"_s, u"Score"_s, u"Song"_s, u"score"_s}) combo.AddItem(entry);
    show();
    activateWindow();
    if (!QTest::qWaitForWindowActive(this)) qFatal("no active window");
  }

  ListBox list{ListBox::Order::AsAdded, this};
  ListView view{this};
  ComboBox combo{this};
  NumberBar bar{10000, 5, this};
  QWidget neighbour{this};
  QSignalSpy listClicks{&list, &ListBox::Click};
  QSignalSpy viewClicks{&view, &ListView::ItemClick};
  QSignalSpy comboClicks{&combo, &ComboBox::Click};
  QSignalSpy changes{&bar, &NumberBar::Change};
  /// The selected row and the number of clicks so far, of the one list and of the other.
  QList<qsizetype> state() const {
    return {list.ListIndex(), listClicks.size(), view.selectedRow(), viewClicks.size()};
  }
  QPoint listPlace(int row) const { return list.visualItemRect(list.item(row)).center(); }
  QPoint viewPlace(int row) const { return view.visualItemRect(view.topLevelItem(row)).center(); }
};

void drag(QWidget* viewport, const QPoint& from, const QPoint& to) {
  QTest::mousePress(viewport, Qt::LeftButton, {}, from);
  moveMouse(*viewport, to);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
}

}  // namespace

class ChoiceControlsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void sortedRowsKeepTheirSelection() {
    ListBox box(ListBox::Order::Sorted);
    for (const char* name : {"b", "Static2", "static1", "_x", "B"}) box.AddItem(QString::fromLatin1(name));
    box.SetListIndex(0);
    for (const char* name : {"A", "a", "Static10"}) box.AddItem(QString::fromLatin1(name));
    QStringList rows;
    for (int i = 0; i < box.ListCount(); ++i) rows += box.List(i);
    QCOMPARE(rows.join(u' '), u"A a b B static1 Static10 Static2 _x"_s);
    QCOMPARE(box.ListIndex(), 2);
  }

  void writtenIndexFiresEachTime() {
    Window window;
    window.list.setFocus(Qt::TabFocusReason);
    window.view.setFocus(Qt::TabFocusReason);
    QCOMPARE(window.state(), (QList<qsizetype>{-1, 0, -1, 0}));
    for (const int row : {3, 3, -1}) window.list.SetListIndex(row);
    window.view.selectRow(3);
    QCOMPARE(window.state(), (QList<qsizetype>{-1, 2, 3, 0}));
    QCOMPARE(window.listClicks.first().first().value<Cause>(), Cause::Code);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, window.list.SetListIndex(Rows));

    for (const int entry : {1, -1}) window.combo.SetListIndex(entry);
    window.combo.SetText(u"score"_s);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, window.combo.SetText(u"SCORE"_s));
    QCOMPARE(window.combo.ListIndex(), 3);
    window.combo.RemoveItem(3);
    QCOMPARE(window.combo.ListIndex(), -1);
    QCOMPARE(window.comboClicks.size(), 2);
    window.combo.setSwatches([](const QString& entry) { return QColor(entry); });
    window.combo.AddItem(u"#010203"_s);
    QCOMPARE(window.combo.itemIcon(3).pixmap(QSize(11, 11), QIcon::Selected).toImage().pixelColor(5, 5),
             QColor(1, 2, 3));
    window.list.allowSeveral();
    window.list.SetListIndex(5);
    window.list.selectToo(2);
    QCOMPARE(window.list.selectedRows(), (std::vector<int>{2, 5}));
  }

  void mousePicksOneRow() {
    Window window;
    for (int i = 0; i < 2; ++i) {
      QTest::mouseClick(window.list.viewport(), Qt::LeftButton, {}, window.listPlace(2));
      QTest::mouseClick(window.view.viewport(), Qt::LeftButton, Qt::ControlModifier, window.viewPlace(2));
    }
    QTest::mouseClick(window.view.viewport(), Qt::RightButton, {}, window.viewPlace(4));
    QCOMPARE(window.state(), (QList<qsizetype>{2, 2, 2, 2}));
    drag(window.list.viewport(), window.listPlace(1), window.listPlace(4));
    drag(window.view.viewport(), window.viewPlace(1), window.viewPlace(4));
    QCOMPARE(window.state(), (QList<qsizetype>{1, 3, 1, 3}));
    QCOMPARE(window.listClicks.last().first().value<Cause>(), Cause::User);
    // The second press of a double click counts only on another row.
    for (const int row : {1, 2}) {
      QTest::mouseDClick(window.list.viewport(), Qt::LeftButton, {}, window.listPlace(row));
      QTest::mouseDClick(window.view.viewport(), Qt::LeftButton, {}, window.viewPlace(row));
      QCOMPARE(window.state(), (QList<qsizetype>{row, 2 + row, row, 2 + row}));
    }
  }

  void keysPick() {
    // The row before and behind the key, and the clicks; in both lists and in the combo box.
    const struct {
      int before;
      Qt::Key key;
      int row, clicks, entry, entryClicks;
    } rows[] = {
        {-1, Qt::Key_Down, 0, 1, 0, 1}, {0, Qt::Key_Up, 0, 0, 0, 0}, {0, Qt::Key_End, Rows - 1, 1, 3, 1},
        {-1, Qt::Key_O, 0, 1, -1, 0},   {0, Qt::Key_M, 4, 1, 0, 0},  {0, Qt::Key_S, 0, 0, 1, 1},
    };
    for (const auto& row : rows) {
      Window window;
      if (row.before >= 0) window.list.setCurrentRow(row.before);
      window.view.selectRow(row.before);
      window.combo.setCurrentIndex(row.before);
      for (QWidget* widget : {static_cast<QWidget*>(&window.list), static_cast<QWidget*>(&window.view),
                              static_cast<QWidget*>(&window.combo)}) {
        widget->setFocus();
        QTest::keyClick(widget, row.key);
        if (widget != &window.combo) QTest::keyClick(widget, Qt::Key_Space, Qt::ControlModifier);
      }
      QCOMPARE(window.state(), (QList<qsizetype>{row.row, row.clicks, row.row, row.clicks}));
      QCOMPARE(window.combo.ListIndex(), row.entry);
      QCOMPARE(window.comboClicks.size(), row.entryClicks);
    }
    Window window;
    window.list.setCurrentRow(9);
    for (const auto key : {Qt::Key_PageDown, Qt::Key_PageUp}) QTest::keyClick(&window.list, key);
    QCOMPARE(window.list.ListIndex(), 9);
  }

  void cutValueShowsWholeAsPlainText() {
    Window window;
    const QPoint value = window.view.visualRect(window.view.model()->index(0, 1)).center();
    QHelpEvent event(QEvent::ToolTip, value, window.view.viewport()->mapToGlobal(value));
    QApplication::sendEvent(window.view.viewport(), &event);
    QVERIFY(QToolTip::text().contains(u"&lt;b&gt;a long value&lt;/b&gt; 0"_s));
    window.view.setSubItem(0, QString(20'000'000, u'x'));
    const QString whole = window.list.List(0);
    window.list.item(0)->setText(window.view.subItem(0));
    window.grab();
    QApplication::sendEvent(window.view.viewport(), &event);
    QVERIFY(QToolTip::text().contains(u"xxx...<"_s));
    window.list.item(0)->setText(whole);
    // One tip holds a cut name and what is told of the row.
    const QString name(40, u'W');
    window.list.item(1)->setText(name);
    const std::pair<int, QString> tips[] = {{0, u"told"_s}, {1, name + u"\ntold"_s}, {2, QString()}};
    const auto ask = [&](int row) {
      const QPoint place(10, window.listPlace(row).y());
      QHelpEvent help(QEvent::ToolTip, place, window.list.viewport()->mapToGlobal(place));
      QApplication::sendEvent(window.list.viewport(), &help);
    };
    for (const auto& [row, tip] : tips) {
      if (row < 2) window.list.setRowToolTip(row, u"told"_s);
      ask(row);
      QTRY_COMPARE(QToolTip::text(), tip);
    }
    window.list.setRowToolTip(0, QString(20'000'000, u'y'));
    ask(0);
    QTRY_VERIFY(QToolTip::text().contains(u"yy..."));
  }

  void selectionIsGreyWithoutTheKeyboard() {
    Window window;
    window.list.setCurrentRow(1);
    QTRY_VERIFY(window.list.updatesEnabled());  // new rows come with the next frame
    const auto lightness = [&](QWidget& focused) {
      focused.setFocus();
      return window.list.grab().toImage().pixelColor(window.list.width() / 2, window.listPlace(1).y()).lightness();
    };
    QVERIFY(lightness(window.list) < 80);
    QVERIFY(lightness(window.view) > 150 && lightness(window.view) < 230);
  }

  void popup() {
    Window window;
    for (int i = 0; i < 30; ++i) window.combo.AddItem(QString(i, u'W'));
    window.combo.setCurrentIndex(1);
    window.move(window.screen()->availableGeometry().topRight() - QPoint(95, 0));
    window.combo.showPopup();
    const QAbstractItemView& popup = *window.combo.view();
    QVERIFY(window.screen()->availableGeometry().contains(popup.window()->geometry()));
    QVERIFY(popup.viewport()->width() >= popup.sizeHintForColumn(0));
    QCOMPARE(popup.viewport()->height() / popup.sizeHintForRow(0), 20);
    // The choice of the selected entry is one as well.
    const QPoint entry = popup.visualRect(window.combo.model()->index(1, 0)).center();
    QTest::mouseClick(popup.viewport(), Qt::LeftButton, {}, entry);
    QCOMPARE(window.comboClicks.size(), 1);
    QCOMPARE(window.comboClicks.first().first().value<Cause>(), Cause::User);
  }

  void wheelNeedsTheFocus() {
    Window window;
    window.combo.setCurrentIndex(1);
    const auto turned = [&](QWidget& focused) {
      focused.setFocus();
      turnWheel(window.combo, -120);
      turnWheel(window.bar, 120);
      return QList<int>{window.combo.ListIndex(), window.bar.Value()};
    };
    QCOMPARE(turned(window.neighbour), (QList<int>{1, 5}));
    QCOMPARE(turned(window.combo), (QList<int>{2, 5}));
    QCOMPARE(turned(window.bar), (QList<int>{2, 6}));
  }

  void upRaisesTheNumber() {
    Window window;
    QTest::mouseClick(&window.bar, Qt::LeftButton, {}, {8, 3});
    QTest::keyClick(&window.bar, Qt::Key_Up);
    QCOMPARE(window.bar.Value(), 7);
    QTest::mouseClick(&window.bar, Qt::LeftButton, {}, {8, 16});
    QTest::keyClick(&window.bar, Qt::Key_Down);
    QCOMPARE(window.bar.Value(), 5);
    window.bar.setValueQuietly(32767);
    QCOMPARE(window.bar.Value(), 10000);
    QCOMPARE(window.changes.size(), 4);
  }
};

QTEST_MAIN(ChoiceControlsTest)
#include "choice_controls_test.moc"
