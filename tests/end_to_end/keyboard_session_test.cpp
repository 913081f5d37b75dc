#include <QFileDialog>
#include <QPointer>

#include "controls/native_dialogs.h"
#include "support/real_input.h"
#include "themefiles/ini_access.h"
#include "toolwindow/list_window.h"

using namespace support;

namespace {

/// The window that has the keyboard, once it has it.
QWidget& activeWindow(const QWidget* expected) {
  const auto active = [&] { return QApplication::activeWindow() == expected; };
  // On a busy machine the toolkit misses now and then that a window has the keyboard: it goes away and comes back.
  if (!QTest::qWaitFor(active) && QApplication::activeWindow() == nullptr) {
    QWidget other;
    other.show();
    if (!QTest::qWaitForWindowExposed(&other)) qFatal("no other window");
    bringToFront(other);
    bringToFront(*expected);
  }
  if (!QTest::qWaitFor(active, 20000)) {
    const QWidget* other = QApplication::activeWindow();
    const QString name = other == nullptr ? u"none"_s : other->windowTitle();
    qFatal("%s is active, not %s", qPrintable(name), qPrintable(expected->windowTitle()));
  }
  return *QApplication::activeWindow();
}

/// Goes on with the Tab key until the control has the focus.
void tabTo(QWidget& control) {
  // The window may lose the keyboard between two keys to a dialog that is just leaving.
  for (int step = 0; step < 60 && !control.hasFocus(); ++step) key(activeWindow(control.window()), Qt::Key_Tab);
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

}  // namespace

class KeyboardSessionTest : public QObject {
  Q_OBJECT

 private:
  GameFolder game;

 private Q_SLOTS:
  void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  void openToSaveWithoutAMouse() {
    game.copySample();
    Program program(game);
    mainwindows::Form1& form = program.form;
    form.activateWindow();
    activeWindow(&form);
    for (const QWidget* control : form.client->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const QRect inside = form.rect().adjusted(0, 0, 1, 0);
      QVERIFY2(inside.contains(control->geometry()), qPrintable(control->objectName()));
    }

    const auto choose = [](mainwindows::Form3& dialog) {
      activeWindow(&dialog);
      goDownTo(dialog.themes(), "Stagelight");
      goDownTo(dialog.skins(), "Neon");
      goDownTo(dialog.languages(), "English");
      key(dialog, Qt::Key_Return);
    };
    program.openDialog(choose, [&] {
      key(form, Qt::Key_Tab);
      key(form, Qt::Key_Return);
    });
    QVERIFY(form.toolWindow() != nullptr);
    toolwindow::Form2& tools = *form.toolWindow();
    QVERIFY(&activeWindow(&tools) == &tools && tools.screens().hasFocus());
    goDownTo(tools.screens(), "Main Screen");

    goDownTo(tools.objects(), "MainStaticIcon");
    goDownTo(tools.values(), "Color");
    goDownTo(*Editors(tools).Combo4, "Player");
    goDownTo(*Editors(tools).Combo3, "P1Light");
    tabTo(*Editors(tools).Command1);
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
    QCOMPARE(themefiles::GetINI(u"MainStaticIcon"_s, u"Color"_s, QString(), theme), u"P1Light"_s);
    key(tools, Qt::Key_W, Qt::ControlModifier);
    settle();
    QVERIFY(form.toolWindow() == nullptr);
    key(activeWindow(&form), Qt::Key_Tab);
    QCOMPARE(form.ToolBar->buttons().Button_Index(), 1);
  }

  /// From the first start, by the finder, to a saved edit.
  void findFromTheFirstStart() {
    const GameFolder fresh;
    controls::NativeDialogs native;
    Program program(fresh, false, &native);
    mainwindows::Form1& form = program.form;
    activeWindow(&form);
    QTimer answers;
    QPointer<QWidget> typedInto;
    answers.callOnTimeout([&] {
      QWidget* const dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || QApplication::activeWindow() != dialog) return;
      if (qobject_cast<QFileDialog*>(dialog) != nullptr && typedInto != dialog) {
        letters(*dialog, qPrintable(fresh.native(u"Vocora.exe"_s)));
        typedInto = dialog;
      }
      key(*dialog, Qt::Key_Return);
    });
    answers.start(10);
    key(form, Qt::Key_O, Qt::ControlModifier);
    QVERIFY(form.toolWindow() != nullptr);
    toolwindow::Form2& tools = *form.toolWindow();
    key(activeWindow(&tools), Qt::Key_F, Qt::ControlModifier);
    auto& finder = *tools.findChild<toolwindow::ListWindow*>();
    activeWindow(&finder);
    letters(finder, "mainstatica x=10");
    key(finder, Qt::Key_Return);
    activeWindow(&tools);
    tabTo(*Editors(tools).Text1);
    letters(tools, "12");
    key(tools, Qt::Key_Return);
    QVERIFY(tools.values().hasFocus());
    key(tools, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(fresh.get(ThemeFile).contains("[MainStaticA]\r\nTex=Plate\r\nX=12\r\n"));
  }

  void keyboardComesBack() {
    controls::NativeDialogs native;
    Program program(game, true, &native);
    openOnScreen(program);
    toolwindow::Form2& tools = program.tools();
    const int height = tools.objects().height();
    QTimer escape;
    int dialogs = 0;
    escape.callOnTimeout([&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || QApplication::activeWindow() != dialog) return;
      ++dialogs;
      key(*dialog, Qt::Key_Escape);
    });
    escape.start(10);
    pickNamed(tools.objects(), "LoadingStaticA");
    pickNamed(tools.values(), "Color");
    for (QWidget* button :
         {static_cast<QWidget*>(Editors(tools).Command3), static_cast<QWidget*>(Editors(tools).Command5),
          static_cast<QWidget*>(Editors(tools).Command2)}) {
      tabTo(*button);
      key(tools, Qt::Key_Return);
      QVERIFY(&activeWindow(&tools) == button->window() && button->hasFocus());
    }
    key(tools, Qt::Key_O, Qt::ControlModifier);
    activeWindow(&tools);
    QCOMPARE(dialogs, 4);

    pickNamed(tools.values(), "X");
    type(*Editors(tools).Text1, "12");
    program.form.showMinimized();
    QTRY_VERIFY(QApplication::activeWindow() == nullptr);
    program.form.showNormal();
    QTRY_VERIFY(QApplication::activeWindow() != nullptr);
    bringToFront(tools);
    activeWindow(&tools);
    QVERIFY(Editors(tools).Text1->hasFocus());
    // However often an editor opens and closes, the lists keep their height.
    const QWidget& frame = *named<QWidget>(tools, "Frame1");
    for (const char* row : {"Color", "Tex", "Tex", "X"}) {
      pickNamed(tools.values(), row);
      QTRY_VERIFY(frame.isVisible());
      pickNamed(tools.objects(), "LoadingStaticA");
      QTRY_VERIFY(frame.isHidden());
      QTRY_COMPARE(tools.objects().height(), height);
    }
  }
};

QTEST_MAIN(KeyboardSessionTest)
#include "keyboard_session_test.moc"
