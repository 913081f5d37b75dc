#include <QAccessible>

#include "controls/native_dialogs.h"
#include "support/real_input.h"
#include "themefiles/ini_access.h"

using namespace support;

namespace {

/// The window that has the keyboard, once it has it.
QWidget& activeWindow(const QWidget* expected) {
  const auto active = [&] { return QApplication::activeWindow() == expected; };
  if (!QTest::qWaitFor(active, 20000)) qFatal("the window isn't active");
  return *QApplication::activeWindow();
}

/// Goes on with the Tab key until the control has the focus.
void tabTo(QWidget& control) {
  QWidget& window = activeWindow(control.window());
  for (int step = 0; step < 30 && !control.hasFocus(); ++step) key(window, Qt::Key_Tab);
  if (!control.hasFocus()) qFatal("no way to %s", qPrintable(control.objectName()));
}

QString shown(const controls::ListView& grid) {
  return grid.rowText(grid.selectedRow());
}
template <typename List>
QString shown(const List& list) {
  return list.Text();
}

/// Goes down a list, from its first row, to the text.
template <typename List>
void goDownTo(List& list, const char* text) {
  tabTo(list);
  key(list, Qt::Key_Home);
  for (int step = 0; step < 200 && shown(list) != QLatin1StringView(text); ++step) key(list, Qt::Key_Down);
  QCOMPARE(shown(list), QLatin1StringView(text));
}

/// The controls of a window that the keyboard reaches and a screen reader has no name for.
QStringList nameless(const QWidget& window) {
  QStringList found;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if ((control->focusPolicy() & Qt::TabFocus) == 0 || control->window() != &window) continue;
    if (QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
      found += control->objectName();
  }
  return found;
}

/// What stands beyond the edges of the main window.
QStringList outside(const mainwindows::Form1& form) {
  QStringList found;
  for (const QWidget* control : std::initializer_list<const QWidget*>{form.ToolBar, form.Combo1, form.Combo2,
                                                                      form.ProgressBar1, form.StatusBar}) {
    const QRect place(control->mapTo(&form, QPoint()), control->size());
    if (!form.rect().adjusted(0, 0, 1, 0).contains(place)) found += control->objectName();
  }
  return found;
}

}  // namespace

class KeyboardSessionTest : public QObject {
  Q_OBJECT

 private:
  GameFolder game;

 private Q_SLOTS:
  void openToSaveWithoutAMouse() {
    game.copySample();
    Program program(game);
    mainwindows::Form1& form = program.form;
    form.activateWindow();
    activeWindow(&form);

    QStringList withoutName;
    QTimer watch;
    watch.callOnTimeout([&] {
      auto* dialog = qobject_cast<mainwindows::Form3*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      watch.stop();
      activeWindow(dialog);
      withoutName += nameless(*dialog);
      goDownTo(*dialog->List1, "Stagelight");
      goDownTo(*dialog->List2, "Neon");
      goDownTo(*dialog->Combo1, "English");
      key(*dialog, Qt::Key_Return);
    });
    watch.start(10);
    QVERIFY(outside(form).isEmpty());
    key(form, Qt::Key_Tab);
    key(form, Qt::Key_Return);
    QVERIFY(form.toolWindow() != nullptr);
    toolwindow::Form2& tools = *form.toolWindow();
    QCOMPARE(withoutName + nameless(tools) + nameless(form), QStringList());
    QVERIFY(&activeWindow(&tools) == &tools && tools.Combo1->hasFocus());
    goDownTo(*tools.Combo1, "Main Screen");

    const auto pick = [&](const char* object, const char* key) {
      goDownTo(*tools.List1, object);
      goDownTo(*tools.ListView1, key);
    };
    pick("MainStaticBar", "X");
    tabTo(*tools.Text1);
    letters(tools, "12");
    key(tools, Qt::Key_Return);
    QVERIFY(tools.ListView1->hasFocus());

    pick("MainStaticIcon", "Color");
    goDownTo(*tools.Combo4, "Player");
    goDownTo(*tools.Combo3, "P1Light");
    tabTo(*tools.Command1);
    key(tools, Qt::Key_Space);

    program.dialogs.colors = {QColor(1, 2, 3)};
    key(tools, Qt::Key_F6);
    tabTo(*form.ToolBar);
    key(form, Qt::Key_End);
    key(form, Qt::Key_Return);
    QCOMPARE(program.state.BackgroundColor, 0x030201U);
    key(form, Qt::Key_F6);
    key(activeWindow(&tools), Qt::Key_S, Qt::ControlModifier);

    QVERIFY(!program.state.Changed);
    QVERIFY2(!program.status().startsWith(u"Error"), qPrintable(program.status()));
    const QString theme = game.path() + u"Themes\\Stagelight.ini"_s;
    QCOMPARE(themefiles::GetINI(u"MainStaticBar"_s, u"X"_s, QString(), theme), u"12"_s);
    QCOMPARE(themefiles::GetINI(u"MainStaticIcon"_s, u"Color"_s, QString(), theme), u"P1Light"_s);
    key(tools, Qt::Key_W, Qt::ControlModifier);
    settle();
    QVERIFY(form.toolWindow() == nullptr);
    key(activeWindow(&form), Qt::Key_Tab);
    QCOMPARE(form.ToolBar->buttons().Button_Index(), 1);
  }

  void keyboardComesBack() {
    controls::NativeDialogs native;
    Program program(game, true, &native);
    openOnScreen(program);
    toolwindow::Form2& tools = program.tools();
    const int height = tools.List1->height();
    QTimer escape;
    int dialogs = 0;
    escape.callOnTimeout([&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || QApplication::activeWindow() != dialog) return;
      ++dialogs;
      key(*dialog, Qt::Key_Escape);
    });
    escape.start(10);
    pickNamed(*tools.List1, "LoadingStaticA");
    pickNamed(*tools.ListView1, "Color");
    for (QWidget* button : {static_cast<QWidget*>(tools.Command3), static_cast<QWidget*>(tools.Command5),
                            static_cast<QWidget*>(tools.Command2)}) {
      tabTo(*button);
      key(tools, Qt::Key_Return);
      QVERIFY(&activeWindow(&tools) == button->window() && button->hasFocus());
    }
    key(tools, Qt::Key_O, Qt::ControlModifier);
    activeWindow(&tools);
    QCOMPARE(dialogs, 4);

    pickNamed(*tools.ListView1, "X");
    type(*tools.Text1, "12");
    program.form.showMinimized();
    QTRY_VERIFY(QApplication::activeWindow() == nullptr);
    program.form.showNormal();
    QTRY_VERIFY(QApplication::activeWindow() != nullptr);
    tools.activateWindow();
    activeWindow(&tools);
    QVERIFY(tools.Text1->hasFocus());
    // However often an editor opens and closes, the lists keep their height.
    for (const char* row : {"Color", "Tex", "Tex", "X"}) {
      pickNamed(*tools.ListView1, row);
      QTest::qWait(100);
      pickNamed(*tools.List1, "LoadingStaticA");
      QTest::qWait(100);
      QCOMPARE(tools.List1->height(), height);
    }
  }
};

QTEST_MAIN(KeyboardSessionTest)
#include "keyboard_session_test.moc"
