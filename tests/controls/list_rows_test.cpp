#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>

#include "controls/active_window.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "platform/failure.h"

using controls::Cause;
using controls::ListBox;
using controls::ListView;
using namespace Qt::StringLiterals;

namespace {

constexpr int Rows = 30;

/// Both lists with the same thirty rows.
struct Window : ActiveWindow {
  Window() {
    box.setGeometry(0, 0, 150, 100);
    view.setGeometry(150, 0, 150, 100);
    view.SetColumns({u"Item"_s, u"Value"_s}, {63, 87});
    for (int i = 0; i < Rows; ++i) {
      box.AddItem(u"%1 row"_s.arg(QChar(u'O' - i / 2)));
      view.AddRow(box.List(i), u"<b>a long value</b> %1"_s.arg(i));
    }
    open();
  }
  ListBox box{ListBox::Order::AsAdded, this};
  ListView view{this};
  QSignalSpy clicks{&box, &ListBox::Click};
  QSignalSpy itemClicks{&view, &ListView::ItemClick};

  /// The selected row and the number of clicks so far, of the one list and of the other.
  QList<qsizetype> state() const { return {box.ListIndex(), clicks.size(), view.SelectedRow(), itemClicks.size()}; }
  QPoint boxPlace(int row) const { return box.visualItemRect(box.item(row)).center(); }
  QPoint viewPlace(int row) const { return view.visualItemRect(view.topLevelItem(row)).center(); }
};

void drag(QWidget* viewport, const QPoint& from, const QPoint& to) {
  QTest::mousePress(viewport, Qt::LeftButton, {}, from);
  QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(viewport, &move);
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
}

void askForTip(QWidget* viewport, const QPoint& place) {
  QHelpEvent event(QEvent::ToolTip, place, viewport->mapToGlobal(place));
  QApplication::sendEvent(viewport, &event);
}

}  // namespace

class ListRowsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void sortedRowsKeepTheirSelection() {
    ListBox box(ListBox::Order::Sorted);
    const QSignalSpy clicks(&box, &ListBox::Click);
    for (const char* name : {"b", "Static2", "static1", "_x", "B"}) box.AddItem(QString::fromLatin1(name));
    box.SetListIndex(0);
    for (const char* name : {"A", "a", "Static10"}) box.AddItem(QString::fromLatin1(name));
    QStringList rows;
    for (int i = 0; i < box.ListCount(); ++i) rows += box.List(i);
    QCOMPARE(rows.join(u' '), u"A a b B static1 Static10 Static2 _x"_s);
    QCOMPARE(box.ListIndex(), 2);
    box.Clear();
    QCOMPARE(box.ListIndex(), -1);
    QCOMPARE(clicks.size(), 1);
  }

  void writtenIndexFiresEachTime() {
    Window window;
    window.box.setFocus(Qt::TabFocusReason);
    window.view.setFocus(Qt::TabFocusReason);
    QCOMPARE(window.state(), (QList<qsizetype>{-1, 0, -1, 0}));
    window.box.SetListIndex(3);
    window.box.SetListIndex(3);
    window.box.SetListIndex(-1);
    QCOMPARE(window.box.Text(), QString());
    QCOMPARE(window.clicks.first().first().value<Cause>(), Cause::Code);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, window.box.SetListIndex(Rows));
    window.view.SelectRow(3);
    QCOMPARE(window.state(), (QList<qsizetype>{-1, 2, 3, 0}));
  }

  void mousePicksOneRow() {
    Window window;
    QWidget* box = window.box.viewport();
    QWidget* view = window.view.viewport();
    for (int i = 0; i < 2; ++i) {
      QTest::mouseClick(box, Qt::LeftButton, {}, window.boxPlace(2));
      QTest::mouseClick(view, Qt::LeftButton, Qt::ControlModifier, window.viewPlace(2));
      QTest::qWait(QApplication::doubleClickInterval() + 1);
    }
    QCOMPARE(window.state(), (QList<qsizetype>{2, 2, 2, 2}));
    drag(box, window.boxPlace(1), window.boxPlace(4));
    drag(view, window.viewPlace(1), window.viewPlace(4));
    QCOMPARE(window.state(), (QList<qsizetype>{1, 3, 1, 3}));
    QCOMPARE(window.clicks.last().first().value<Cause>(), Cause::User);
  }

  void secondPressOfADoubleClick() {
    Window window;
    for (const int row : {0, 1}) {  // the second press may come on a neighbour of the first one's row
      QTest::mouseClick(window.box.viewport(), Qt::LeftButton, {}, window.boxPlace(0));
      QTest::mouseDClick(window.box.viewport(), Qt::LeftButton, {}, window.boxPlace(row));
      QTest::mouseClick(window.view.viewport(), Qt::LeftButton, {}, window.viewPlace(0));
      QTest::mouseDClick(window.view.viewport(), Qt::LeftButton, {}, window.viewPlace(row));
      QCOMPARE(window.state(), (QList<qsizetype>{row, 1 + 2 * row, row, 1 + 2 * row}));
    }
  }

  void keysPickARow() {
    const auto picked = [](int before, Qt::Key key) {
      Window window;
      window.box.setFocus();
      window.view.setFocus();
      if (before >= 0) window.box.setCurrentRow(before);
      window.view.SelectRow(before);
      QTest::keyClick(&window.box, key);
      QTest::keyClick(&window.view, key);
      return window.state();
    };
    const auto both = [](int row, int clicks) { return QList<qsizetype>{row, clicks, row, clicks}; };
    QCOMPARE(picked(-1, Qt::Key_Down), both(0, 1));
    QCOMPARE(picked(3, Qt::Key_Down), both(4, 1));
    QCOMPARE(picked(0, Qt::Key_Up), both(0, 0));
    QCOMPARE(picked(3, Qt::Key_End), both(Rows - 1, 1));
    QCOMPARE(picked(Rows - 2, Qt::Key_PageDown), both(Rows - 1, 1));
    QCOMPARE(picked(3, Qt::Key_D), both(22, 1));
    QCOMPARE(picked(-1, Qt::Key_O), both(0, 1));
    QCOMPARE(picked(3, Qt::Key_Z), both(3, 0));
  }

  void cutValueShowsWholeAsPlainText() {
    Window window;
    const QPoint value = window.view.visualRect(window.view.model()->index(0, 1)).center();
    askForTip(window.view.viewport(), value);
    QVERIFY(QToolTip::text().contains(u"&lt;b&gt;a long value&lt;/b&gt; 0"_s));
    window.view.SetSubItem(0, u"short"_s);
    QCOMPARE(window.view.SubItem(0), u"short"_s);
    askForTip(window.view.viewport(), value);
    QTRY_COMPARE(QToolTip::text(), QString());
  }

  void toolTipsAreNeverRichText() {
    const QString shell = u"<span style=\"white-space:pre-wrap\">%1</span>"_s;
    QCOMPARE(controls::PlainToolTip(u"a < b & c"_s), u"a < b & c"_s);
    QCOMPARE(controls::PlainToolTip(u"<img src=\"x\">"_s), shell.arg(u"&lt;img src=&quot;x&quot;&gt;"_s));
    QCOMPARE(controls::PlainToolTip(QString(100, u'<')), shell.arg(u"&lt;"_s.repeated(100)));
  }
};

QTEST_MAIN(ListRowsTest)
#include "list_rows_test.moc"
