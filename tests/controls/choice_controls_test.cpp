#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "controls/combo_box.h"
#include "controls/cut_label.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/look.h"
#include "controls/native_dialogs.h"
#include "controls/number_bar.h"
#include "platform/failure.h"
#include "support/keys.h"
#include "support/mouse.h"
#include "support/picture_results.h"

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
      view.addRow(list.List(i), u" <b>a long value</b> %1"_s.arg(i));
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
  QSignalSpy comboClicks{&combo, &ComboBox::Click};
  QPoint listPlace(int row) const { return list.visualItemRect(list.item(row)).center(); }
};

/// A user's steps on a control of the window, and what it tells of them.
class Steps : Window {
 public:
  explicit Steps(const QString& name) {
    const QMap<QString, QWidget*> controls{{u"view"_s, &view}, {u"combo"_s, &combo}, {u"bar"_s, &bar}};
    control_ = controls.value(name, &list);
    rows_ = qobject_cast<QAbstractItemView*>(control_);
    area_ = rows_ == nullptr ? control_ : rows_->viewport();
    if (name == u"several") list.allowSeveral();
    list.setJoining(name == u"joining");
    view.setTakesDigits([](int row) { return row % 2 == 0; });
    combo.setCurrentIndex(1);
    note(list, &ListBox::Click, "Click");
    note(list, &ListBox::joinAsked, "join");
    note(list, &ListBox::menuAsked, "menu");
    note(view, &ListView::ItemClick, "ItemClick");
    note(view, &ListView::opened, "opened");
    note(view, &ListView::menuAsked, "menu");
    note(combo, &ComboBox::Click, "Click");
    note(bar, &NumberBar::Change, "Change");
    control_->setFocus();
  }

  /// A key, or what the mouse does at a row: "Ctrl+End", "press 4", "Ctrl+press 2", "wheel -120"; or what code does.
  void step(const QString& step) {
    const QString what = step.section(u' ', 0, 0).section(u'+', -1);
    const QString text = step.section(u' ', 1), behind = step.section(u' ', 2);
    const int number = step.section(u' ', 1, 1).toInt();
    const auto keys = step.startsWith(u"Ctrl+")    ? Qt::ControlModifier
                      : step.startsWith(u"Shift+") ? Qt::ShiftModifier
                                                   : Qt::NoModifier;
    const QModelIndex cell = rows_ == nullptr ? QModelIndex() : rows_->model()->index(number, behind.toInt());
    const QPoint place = rows_ == nullptr ? QPoint(8, number) : rows_->visualRect(cell).center();
    const QMap<QString, std::function<void()>> known{
        {u"press"_s, [&] { QTest::mousePress(area_, Qt::LeftButton, keys, place); }},
        {u"release"_s, [&] { QTest::mouseRelease(area_, Qt::LeftButton, keys, place); }},
        {u"double"_s, [&] { QTest::mouseDClick(area_, Qt::LeftButton, keys, place); }},
        {u"right"_s, [&] { QTest::mouseClick(area_, Qt::RightButton, keys, place); }},
        {u"move"_s, [&] { moveMouse(*area_, place); }},
        {u"wheel"_s, [&] { turnWheel(*control_, number); }},
        {u"menu"_s, [&] { askMenu(text.isEmpty() ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse, place); }},
        {u"elsewhere"_s, [&] { neighbour.setFocus(); }},
        {u"set"_s, [&] { set(number); }},
        {u"quietly"_s, [&] { bar.setValueQuietly(number); }},
        {u"text"_s, [&] { combo.SetText(text); }},
        {u"add"_s, [&] { combo.AddItem(text); }},
        {u"swatch"_s, [&] { swatch(text); }},
        {u"remove"_s, [&] { combo.RemoveItem(number); }},
        {u"like"_s, [&] { words_ += QString::number(combo.entryLike(text)); }},
        {u"name"_s, [&] { list.item(number)->setText(behind); }},
        {u"tip"_s, [&] { list.setRowToolTip(number, behind); }},
        {u"bold"_s, [&] { list.setBold(number, behind); }},
        {u"joined"_s, [&] { list.setJoined(number, behind); }},
        {u"grey"_s, [&] { list.setGrey(number, !behind.isEmpty()); }},
        {u"saved"_s, [&] { view.setSaved(number, behind); }},
        {u"value"_s, [&] { view.setSubItem(number, behind); }},
        {u"huge"_s, [&] { setHuge(QString(20'000'000, u'x')); }},
        {u"look"_s, [&] { look(number); }},
        {u"point"_s, [&] { point(place); }},
    };
    try {
      known.contains(what) ? known[what]() : pressKey(*control_, step);
    } catch (const platform::Failure&) {
      words_ += u"failure"_s;
    }
  }

  /// What was told, and what is chosen now.
  QString told() const {
    QStringList chosen;
    for (const int row : list.selectedRows()) chosen += QString::number(row);
    const QMap<const QWidget*, QString> states{{&list, u"%1 of %2"_s.arg(list.ListIndex()).arg(chosen.join(u' '))},
                                               {&view, QString::number(view.selectedRow())},
                                               {&combo, u"%1 %2"_s.arg(combo.ListIndex()).arg(combo.Text())},
                                               {&bar, QString::number(bar.Value())}};
    return (words_ + QStringList{u"at "_s + states[control_]}).join(u", "_s).trimmed();
  }

 private:
  void note(auto& control, auto signal, const char* word) {
    QObject::connect(&control, signal, [this, word](auto... told) {
      words_ += (QStringList{QLatin1StringView(word)} << ... << textOf(told)).join(u' ');
    });
  }
  static QString textOf(int row) { return QString::number(row); }
  static QString textOf(Cause cause) { return cause == Cause::User ? u"user"_s : u"code"_s; }
  static QString textOf(const QString& typed) { return u'"' + typed + u'"'; }
  QString textOf(const QPoint& place) const {
    const QPoint inside = area_->mapFromGlobal(place);
    return u"%1,%2"_s.arg(inside.x()).arg(inside.y());
  }
  void set(int number) {
    if (control_ == &list) list.SetListIndex(number);
    if (control_ == &view) view.selectRow(number);
    if (control_ == &combo) combo.SetListIndex(number);
    if (control_ == &bar) bar.SetValue(number);
  }
  void swatch(const QString& color) {
    combo.setSwatches([](const QString& entry) { return QColor(entry); });
    combo.AddItem(color);
    const QImage icon = combo.itemIcon(combo.count() - 1).pixmap(QSize(11, 11), QIcon::Selected).toImage();
    for (const int at : {0, 1, 9, 10}) words_ += icon.pixelColor(at, at).name();
  }
  void askMenu(QContextMenuEvent::Reason reason, const QPoint& place) {
    QContextMenuEvent event(reason, place, area_->mapToGlobal(place));
    QApplication::sendEvent(area_, &event);
  }
  void point(const QPoint& place) {
    QHelpEvent event(QEvent::ToolTip, place, area_->mapToGlobal(place));
    QToolTip::hideText();
    QApplication::sendEvent(area_, &event);
    words_ += u"tip "_s + QToolTip::text().remove(QString(1000, u'x')).replace(u'\n', u'|');
  }
  void setHuge(const QString& text) {
    view.setSubItem(0, text);
    list.item(0)->setText(text);
    list.setRowToolTip(1, text);
    grab();
  }
  void look(int row) {
    for (int column = 0; column < rows_->model()->columnCount(); ++column) {
      const QModelIndex cell = rows_->model()->index(row, column);
      words_ += cell.data().toString();
      for (const auto role : {Qt::ToolTipRole, Qt::AccessibleDescriptionRole})
        words_.last() += u'/' + cell.data(role).toString().replace(u'\n', u'|');
      if (cell.data(Qt::FontRole).value<QFont>().bold()) words_.last() += u"/bold"_s;
      for (const auto role : {Qt::ForegroundRole, Qt::BackgroundRole}) {
        const QVariant brush = cell.data(role);
        if (brush.isValid()) words_.last() += u'/' + brush.value<QBrush>().color().name();
      }
    }
  }

  QWidget* control_;
  QWidget* area_;
  QAbstractItemView* rows_;
  QStringList words_;
};

}  // namespace

class ChoiceControlsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void steps() {
    compareRows(u"steps.txt"_s, [](const QString& row) {
      const qsizetype colon = row.indexOf(u": ");
      Steps steps(row.first(colon));
      for (const QString& step : row.sliced(colon + 2).split(u", "_s)) steps.step(step);
      return steps.told();
    });
  }

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

  /// An entry may only tell something.
  void keysReachDisabledEntries() {
    QMenu menu;
    menu.addAction(u"told"_s)->setEnabled(false);
    menu.addAction(u"taken"_s);
    menu.popup({});
    for (const char* entry : {"told", "taken"}) {
      QTest::keyClick(&menu, Qt::Key_Down);
      QCOMPARE(menu.activeAction()->text(), QLatin1StringView(entry));
    }
  }

  /// Both lists with a selection, and one of them with the keyboard.
  void looks() {
    Window window;
    window.list.setCurrentRow(1);
    window.view.selectRow(2);
    window.view.resize(170, 100);
    window.view.setColumnWidth(0, 1);
    window.list.setFocus();
    compareSettled(u"window.png"_s, window);
  }

  /// The filters of a dialog, a tip, or a text in a label of so many pixels: what is shown, its tip, and what is told.
  void texts() {
    compareRows(u"texts.txt"_s, [](const QString& row) {
      const QString what = row.section(u": "_s, 0, 0), text = row.section(u": "_s, 1);
      if (what == u"filters") return nameFilters(text).join(u", ");
      if (what == u"tip") return plainToolTip(text);
      CutLabel label(nullptr);
      label.resize(what.toInt(), 20);
      label.setWhole(text);
      return QStringList{label.text(), label.toolTip(), label.accessibleName()}.join(u" / ").trimmed();
    });
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
};

QTEST_MAIN(ChoiceControlsTest)
#include "choice_controls_test.moc"
