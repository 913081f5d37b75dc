#include <QAccessibleWidget>
#include <QApplication>
#include <QPainter>
#include <QTest>

#include "controls/look.h"
#include "mainwindows/commands.h"
#include "mainwindows/main_window_tool_bar.h"
#include "propertybag/stored_bytes.h"
#include "support/bags.h"
#include "support/keys.h"
#include "support/mouse.h"
#include "support/picture_results.h"
#include "toolbar/mc_toolbar.h"
#include "toolbar/tip_window.h"

using toolbar::McToolBar;
using namespace Qt::StringLiterals;

namespace {

/// A toolbar on a form, from a bag, and what all tell of a user's steps.
class Session {
 public:
  explicit Session(const QString& bag, bool listens = false) {
    const auto note = [this](auto signal, const char* word) {
      QObject::connect(&bar_, signal, [this, word](auto... told) {
        QString text = QLatin1StringView(word);
        ((text += QString::number(told) + u','), ...);
        words_ += sizeof...(told) == 0 ? text : text.chopped(1);
      });
    };
    note(&McToolBar::MouseEnter, "Enter");
    note(&McToolBar::MouseLeave, "Leave");
    note(&McToolBar::Hover, "Hover");
    note(&McToolBar::Click, "Click");
    note(&McToolBar::DblClick, "DblClick");
    note(&McToolBar::MouseUp, "Up");
    note(&McToolBar::MouseDown, "Down");
    note(&McToolBar::MouseMove, "Move");
    hears_ = this;
    if (listens) QAccessible::installFactory(makeEar);
    isSound_ = bar_.UserControl_ReadProperties(propertybag::storedBytes(support::bagOf(bag)));
    bar_.installEventFilter(&paintings_);
    form_.resize(900, 200);
    other_.setGeometry(800, 150, 50, 20);
    other_.setFocusPolicy(Qt::StrongFocus);
    form_.show();
    form_.activateWindow();
    if (!QTest::qWaitForWindowActive(&form_)) qFatal("no active window");
    other_.setFocus();
    shown();
  }
  ~Session() { QAccessible::removeFactory(makeEar); }

  /// A key; the mouse, as in "move 5 5", "popup 5 5" (a move there) and what it does then: "press", "Ctrl+release
  /// right"; or what comes to pass.
  void step(const QString& step) {
    const QMap<QString, std::function<void()>> known{
        {u"leave"_s, [this] { send(QEvent::Leave); }},
        {u"lose focus"_s, [this] { other_.setFocus(); }},
        {u"tab in"_s, [this] { bar_.setFocus(Qt::TabFocusReason); }},
        {u"click in"_s, [this] { bar_.setFocus(Qt::MouseFocusReason); }},
        {u"hide"_s, [this] { form_.hide(); }},
        {u"form moves"_s, [this] { form_.move(form_.pos() + QPoint(10, 10)); }},
        {u"form grows"_s, [this] { form_.resize(901, 201); }},
        {u"read"_s, [this] { read(); }},
        {u"listen"_s, [] {}},
        {u"wider"_s, [this] { bar_.resize(bar_.width() + 32, bar_.height()); }},
        {u"one in a row"_s, [this] { bar_.buttons().setValue(&toolbar::Properties::ButtonsPerRow_Chev, 1); }},
        {u"tick"_s, [this] {
           auto& ticks = *bar_.findChild<QTimer*>(u"TipTicks"_s);
           QTimerEvent event(ticks.timerId());
           if (ticks.isActive()) QApplication::sendEvent(&ticks, &event);
         }}};
    const QMap<QString, QEvent::Type> kinds{{u"move"_s, QEvent::MouseMove},
                                            {u"popup"_s, QEvent::MouseMove},
                                            {u"press"_s, QEvent::MouseButtonPress},
                                            {u"release"_s, QEvent::MouseButtonRelease},
                                            {u"double"_s, QEvent::MouseButtonDblClick}};
    const QStringList words = step.split(u' ');
    const QString what = words[0].section(u'+', -1);
    if (known.contains(step)) {
      known[step]();
    } else if (what == u"act") {
      if (QAccessibleInterface* button = reader().child(words.at(1).toInt()))
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    } else if (kinds.contains(what)) {
      if (words.size() > 2) place_ = QPointF(words[1].toInt(), words[2].toInt());
      if (words.size() > 2) surface_ = what == u"popup" ? bar_.popupWindow() : &bar_;
      const QMap<QString, Qt::MouseButton> buttons{{u"right"_s, Qt::RightButton}, {u"middle"_s, Qt::MiddleButton}};
      const auto keys = QKeySequence(words[0].section(u'+', 0, -2) + u"+A"_s)[0].keyboardModifiers();
      send(kinds[what], buttons.value(words.last(), Qt::LeftButton), words[0].contains(u'+') ? keys : Qt::NoModifier);
    } else {
      support::pressKey(*QApplication::focusWidget(), step);
    }
    shown();
  }

  /// Writes down what shows now, where that is another than before.
  void shown() {
    const QWidget& popup = *bar_.popupWindow();
    const QPoint corner = popup.pos() - bar_.mapToGlobal(QPoint());
    QStringList now{u"closed"_s, u"notip"_s};
    if (popup.isVisible())
      now[0] = u"open%1,%2,%3,%4"_s.arg(corner.x()).arg(corner.y()).arg(popup.width()).arg(popup.height());
    for (const QWidget* window : bar_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
      if (window != &popup && window->isVisible()) now[1] = u"tip"_s + window->accessibleName();
    now += u"at%1"_s.arg(bar_.buttons().Button_Index());
    now += bar_.hasFocus() ? u"focus"_s : u"nofocus"_s;
    for (const QWidget* window : {static_cast<const QWidget*>(&bar_), &popup})
      now += window->cursor().shape() == Qt::PointingHandCursor ? u"hand"_s : u"arrow"_s;
    for (int i = 0; i < now.size(); ++i)
      if (i < shown_.size() && now[i] != shown_[i]) words_ += now[i];
    shown_ = now;
    // What it looks like otherwise than before has to be painted.
    QCoreApplication::sendPostedEvents(&form_, QEvent::UpdateRequest);
    const QImage look = bar_.inner().surfaceOf(toolbar::SurfaceName::Main).raster().image().copy();
    if (std::exchange(paintings_.count, 0) == 0 && look != look_ && bar_.isVisible()) words_ += u"unpainted"_s;
    look_ = look;
  }
  /// Writes down all that a screen reader reads.
  void read() {
    for (int i = 0; i < reader().childCount(); ++i) {
      const QAccessibleInterface& button = *reader().child(i);
      const QAccessible::State state = button.state();
      const QRect place = button.rect().translated(-bar_.mapToGlobal(QPoint()));
      QString text = u"%1/%2/%3,%4,%5,%6"_s.arg(button.text(QAccessible::Name), button.text(QAccessible::Description))
                         .arg(place.x())
                         .arg(place.y())
                         .arg(place.width())
                         .arg(place.height());
      for (const auto& [is, word] : {std::pair<bool, const char*>(button.role() == QAccessible::Separator, "separator"),
                                     {button.role() == QAccessible::ButtonMenu, "menu"},
                                     {state.disabled, "disabled"},
                                     {state.pressed, "pressed"},
                                     {state.invisible, "hidden"},
                                     {state.focusable, "reached"},
                                     {state.focused, "focus"},
                                     {reader().focusChild() == &button, "chosen"},
                                     {reader().childAt(button.rect().x(), button.rect().y()) == &button, "found"}})
        if (is) text += u'/' + QLatin1StringView(word);
      words_ += text + u'/' + const_cast<QAccessibleInterface&>(button).actionInterface()->actionNames().join(u'+');
    }
  }
  QAccessibleInterface& reader() { return *QAccessible::queryAccessibleInterface(&bar_); }
  QString told() const { return words_.join(u' ').trimmed(); }
  /// What it is when it is written again.
  QString stored() const {
    return (isSound_ ? QString() : u"refused "_s) +
           support::toldOf(*propertybag::bagOfBytes(bar_.UserControl_WriteProperties()));
  }
  void paint(QPainter& painter) const {
    const auto surface = [this](toolbar::SurfaceName name) { return bar_.inner().surfaceOf(name).raster().image(); };
    painter.drawImage(0, 0, surface(toolbar::SurfaceName::Main), 0, 0, 160, 72);
    painter.drawImage(0, 74, surface(toolbar::SurfaceName::Chevron), 0, 0, 160, 40);
  }

 private:
  void send(QEvent::Type type, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
    if (type == QEvent::Leave) {
      QEvent leave(type);
      QApplication::sendEvent(surface_, &leave);
      return;
    }
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) held_ |= button;
    if (type == QEvent::MouseButtonRelease) held_ &= ~button;
    QMouseEvent event(type, place_, surface_->mapToGlobal(place_), type == QEvent::MouseMove ? Qt::NoButton : button,
                      held_, keys);
    QApplication::sendEvent(surface_, &event);
  }

  /// In place of the bar's own interface: writes down which child is asked for, to tell of it.
  struct Ear : QAccessibleWidget {
    using QAccessibleWidget::QAccessibleWidget;
    QAccessibleInterface* child(int index) const override {
      hears_->words_ += u"heard%1"_s.arg(index);
      return nullptr;
    }
  };
  static QAccessibleInterface* makeEar(const QString& /*className*/, QObject* object) {
    return object == &hears_->bar_ ? new Ear(&hears_->bar_) : nullptr;
  }

  struct Paintings : QObject {
    bool eventFilter(QObject* /*bar*/, QEvent* event) override {
      count += event->type() == QEvent::Paint;
      return false;
    }
    int count = 0;
  };

  static inline Session* hears_ = nullptr;
  QWidget form_;
  QWidget other_{&form_};
  McToolBar bar_{toolbar::ambientOf(nullptr), &form_};
  QWidget* surface_ = &bar_;
  QPointF place_;
  Qt::MouseButtons held_;
  bool isSound_;
  QStringList words_;
  QStringList shown_;
  Paintings paintings_;
  QImage look_;
};

}  // namespace

class WidgetTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { controls::applyLook(*qApp); }

  void sessions() {
    support::compareRows(u"sessions.txt"_s, [](const QString& row) {
      Session session(
          u"_extentx=3942, _extenty=847, Button_Count=6, ButtonsPerRow=10, ShowChevron=true, ButtonEnabled2=false, "
          "Button_Type3=1, ButtonToolTipText1=\"first\", ButtonToolTipText4=\"fourth\", ButtonCaption4=\"\""_s,
          row.startsWith(u"listen"));
      for (const QString& step : row.split(u", "_s)) session.step(step);
      return session.told();
    });
  }

  // What a bag becomes when it is written again, and how such a bar and its popup look.
  void storedAndShown() {
    constexpr int Columns = 6;
    QImage sheet(Columns * 162, 14 * 116, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    int cell = 0;
    support::compareRows(u"stored.txt"_s, [&](const QString& row) {
      Session session(row.section(u"; "_s, 0, 0));
      for (const QString& step : row.section(u"; "_s, 1).split(u", "_s, Qt::SkipEmptyParts)) session.step(step);
      QPainter painter(&sheet);
      painter.translate(cell % Columns * 162, cell / Columns * 116);
      session.paint(painter);
      ++cell;
      return session.stored();
    });
    support::comparePicture(u"stored.png"_s, sheet);
  }

  void mainWindowBarGoesRound() {
    const QByteArray stored = mainwindows::mainWindowToolBar(mainwindows::commandRows());
    McToolBar bar({false, QFont()});
    QVERIFY(bar.UserControl_ReadProperties(stored));
    QCOMPARE(bar.UserControl_WriteProperties(), stored);
  }

  void tipsComeWhenTheMouseRests() {
    QWidget form;
    McToolBar bar(&form);
    bar.UserControl_ReadProperties({});
    bar.SetButtonValue(1, toolbar::ToolTipTextProperty, u"first"_s);
    form.show();
    support::moveMouse(bar, {5, 5}, {});
    QTRY_COMPARE(bar.findChildren<QWidget*>().size(), 2);  // the popup, and the tip
  }

  // The kind of a tip, its icon, the mouse on a screen of 800 by 800, and the title: where the tip comes up, and its
  // size.
  void tips() {
    QImage sheet(2 * 470, 6 * 90, QImage::Format_ARGB32);
    sheet.fill(Qt::transparent);
    int cell = 0;
    support::compareRows(u"tips.txt"_s, [&](const QString& row) {
      const QStringList given = row.section(u':', 0, 0).split(u' ');
      QWidget form;
      const QString title = row.section(u':', 1).trimmed();
      const QString text =
          title.isEmpty() ? u"words in one line, or in two where more of them come than fit into the width of a tip"_s
                          : u"<b>words</b>"_s;
      const bool balloon = given[0] == u"balloon";
      toolbar::TipWindow tip({text, title, given.at(1).toInt(), balloon, 0xE6FDFD, 0x800000}, &form);
      tip.showAt({given.at(2).toInt(), given.at(3).toInt()});
      QPainter(&sheet).drawPixmap(cell % 2 * 470, cell / 2 * 90, tip.grab());
      ++cell;
      return u"%1 %2, %3 %4"_s.arg(tip.x()).arg(tip.y()).arg(tip.width()).arg(tip.height());
    });
    support::comparePicture(u"tips.png"_s, sheet);
  }
};

QTEST_MAIN(WidgetTest)
#include "toolbar_widget_test.moc"
