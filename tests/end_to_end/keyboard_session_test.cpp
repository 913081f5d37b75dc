#include <QAccessible>
#include <QTest>

#include "support/real_input.h"
#include "themefiles/ini_access.h"

using namespace Qt::StringLiterals;
using namespace support;

namespace {

/// The window that has the keyboard, once it has it.
QWidget& activeWindow(const QWidget* expected) {
  const auto active = [&] { return QApplication::activeWindow() == expected; };
  if (!QTest::qWaitFor(active, 20000)) qFatal("the window isn't active");
  return *QApplication::activeWindow();
}

void keys(QWidget& window, const QList<Qt::Key>& sequence) {
  for (const Qt::Key next : sequence) key(window, next);
}

void letters(QWidget& window, const char* text) {
  for (const char letter : QByteArrayView(text)) QTest::keyClick(window.windowHandle(), letter);
}

/// Goes on with the Tab key until the control has the focus.
void tabTo(QWidget& control) {
  QWidget& window = activeWindow(control.window());
  for (int step = 0; step < 30 && !control.hasFocus(); ++step) key(window, Qt::Key_Tab);
  if (!control.hasFocus()) qFatal("no way to %s", qPrintable(control.objectName()));
}

/// Goes down a list, from its first row, to the text.
template <typename Text>
void goDownTo(QWidget& control, const char* text, Text shown) {
  tabTo(control);
  key(*control.window(), Qt::Key_Home);
  for (int step = 0; step < 200 && shown() != QLatin1StringView(text); ++step) key(*control.window(), Qt::Key_Down);
  QCOMPARE(shown(), QLatin1StringView(text));
}

class MouseCounter : public QObject {
  Q_OBJECT

 public:
  int count = 0;
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Wheel) ++count;
    return false;
  }
};

/// The controls of a window that the keyboard reaches and a screen reader has no name for.
QStringList nameless(const QWidget& window) {
  QStringList found;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if ((control->focusPolicy() & Qt::TabFocus) == 0) continue;
    if (QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
      found += control->objectName();
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
    copyFolder(QStringLiteral(SAMPLE_FOLDER), game.native(QString()));
    Program program(game);
    mainwindows::Form1& form = program.form;
    MouseCounter mouse;
    qApp->installEventFilter(&mouse);
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
      goDownTo(*dialog->List1, "Stagelight", [&] { return dialog->List1->Text(); });
      goDownTo(*dialog->List2, "Neon", [&] { return dialog->List2->Text(); });
      goDownTo(*dialog->Combo1, "English", [&] { return dialog->Combo1->Text(); });
      key(*dialog, Qt::Key_Return);
    });
    watch.start(10);
    key(form, Qt::Key_O, Qt::ControlModifier);
    QVERIFY(form.ToolWindow != nullptr);
    toolwindow::Form2& tools = *form.ToolWindow;
    QCOMPARE(withoutName + nameless(tools) + nameless(form), QStringList());
    QVERIFY(&activeWindow(&tools) == &tools && tools.Combo1->hasFocus());
    goDownTo(*tools.Combo1, "Main Screen", [&] { return tools.Combo1->Text(); });

    const auto object = [&](const char* name) { goDownTo(*tools.List1, name, [&] { return tools.List1->Text(); }); };
    const auto row = [&](const char* name) {
      goDownTo(*tools.ListView1, name, [&] { return tools.ListView1->RowText(tools.ListView1->SelectedRow()); });
    };
    object("MainStaticBar");
    row("X");
    tabTo(*tools.Text1);
    letters(tools, "12");
    key(tools, Qt::Key_Return);
    QVERIFY(tools.ListView1->hasFocus());

    object("MainStaticIcon");
    row("Color");
    goDownTo(*tools.Combo4, "Player", [&] { return tools.Combo4->Text(); });
    goDownTo(*tools.Combo3, "P1Light", [&] { return tools.Combo3->Text(); });
    tabTo(*tools.Command1);
    key(tools, Qt::Key_Space);

    object("MainTextHelp");
    row("Text");
    program.dialogs.inputs = {u"BY_KEYBOARD"_s};
    tabTo(*tools.Command6);
    key(tools, Qt::Key_Space);
    tabTo(*tools.Text2);
    letters(tools, "Press a key");
    key(tools, Qt::Key_Return);

    program.dialogs.colors = {QColor(1, 2, 3)};
    key(tools, Qt::Key_F6);
    keys(activeWindow(&form), {Qt::Key_Tab});
    tabTo(*form.ToolBar);
    keys(form, {Qt::Key_End, Qt::Key_Return});
    QCOMPARE(program.state.BackgroundColor, 0x030201U);
    key(form, Qt::Key_F6);
    key(activeWindow(&tools), Qt::Key_S, Qt::ControlModifier);

    QVERIFY(!program.state.Changed);
    QVERIFY2(!program.status().startsWith(u"Error"), qPrintable(program.status()));
    const auto saved = [&](const char* file, const char* section, const char* name) {
      return themefiles::GetINI(QLatin1StringView(section), QString(QLatin1StringView(name)), QString(),
                                game.path() + QString(QLatin1StringView(file)).replace(u'/', u'\\'));
    };
    QCOMPARE(saved("Themes/Stagelight.ini", "MainStaticBar", "X"), u"12"_s);
    QCOMPARE(saved("Themes/Stagelight.ini", "MainStaticIcon", "Color"), u"P1Light"_s);
    QCOMPARE(saved("Themes/Stagelight.ini", "MainTextHelp", "Text"), u"BY_KEYBOARD"_s);
    QCOMPARE(saved("Languages/English.ini", "Text", "BY_KEYBOARD"), u"Press a key"_s);
    key(tools, Qt::Key_W, Qt::ControlModifier);
    settle();
    QVERIFY(form.ToolWindow == nullptr);
    QCOMPARE(mouse.count, 0);
  }
};

QTEST_MAIN(KeyboardSessionTest)
#include "keyboard_session_test.moc"
