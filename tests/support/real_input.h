#pragma once

#include <QAbstractItemView>
#include <QProcess>

#include "support/windows.h"
#ifdef Q_OS_WIN
#include "platform/windows_api.h"
#endif

// Mouse and keyboard on the program's real windows, as a user has them.

namespace support {

/// A click of the mouse on the window at a place of one of its widgets: the window finds out what lies there.
inline void clickAt(QWidget& widget, const QPoint& place) {
  const QPoint inWindow = widget.mapTo(widget.window(), place);
  QWindow* const window = widget.window()->windowHandle();
  // A window that has just grown for an editor may have to wait for the window manager.
  if (!QTest::qWaitFor([&] { return QRect({}, window->size()).contains(inWindow); })) qFatal("a click beside a window");
  QTest::mouseClick(window, Qt::LeftButton, {}, inWindow);
}

inline void press(QWidget& widget) {
  clickAt(widget, widget.rect().center());
}

inline void key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  QTest::keyClick(widget.window()->windowHandle(), key, modifiers);
}

inline void pickNamed(QAbstractItemView& list, const char* name) {
  const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, QLatin1StringView(name), 1,
                                         Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (found.isEmpty()) qFatal("no row %s", name);
  list.scrollTo(found.first());
  clickAt(*list.viewport(), list.visualRect(found.first()).center());
}

/// Opens the drop-down list and takes an entry of it.
inline void pickEntry(QComboBox& box, int entry) {
  press(box);
  QWidget* const popup = box.view()->window();
  if (!QTest::qWaitForWindowExposed(popup)) qFatal("no drop-down list");
  key(*popup, Qt::Key_Home);
  for (int i = 0; i < entry; ++i) key(*popup, Qt::Key_Down);
  key(*popup, Qt::Key_Return);
}

inline void letters(QWidget& widget, const char* text) {
  for (const char letter : QByteArrayView(text)) QTest::keyClick(widget.window()->windowHandle(), letter);
}

inline void type(QLineEdit& box, const char* text) {
  press(box);
  key(box, Qt::Key_A, Qt::ControlModifier);
  letters(box, text);
}

inline void toolBar(Program& program, int button) {
  clickAt(*program.form.ToolBar, QPoint(32 * button - 16, 16));
}

/// Opens the theme Alpha, the tool window beside the preview.
inline void openOnScreen(Program& program) {
  if (!QTest::qWaitForWindowExposed(&program.form)) qFatal("no main window");
  program.open();
  if (!QTest::qWaitForWindowExposed(&program.tools())) qFatal("no tool window");
  program.tools().move(program.form.geometry().bottomRight() + QPoint(40, -300));
  settle();
}

/// Opens a theme with the mouse and the keyboard.
inline void open(Program& program, const char* theme, const char* skin, Qt::Key language) {
  program.openDialog([=](mainwindows::Form3& dialog) {
    if (!QTest::qWaitForWindowExposed(&dialog)) qFatal("no dialog");
    pickNamed(dialog.themes(), theme);
    pickNamed(dialog.skins(), skin);
    dialog.languages().setFocus();
    key(dialog, language);
    press(dialog.openButton());
  });
  if (program.form.toolWindow() == nullptr || !QTest::qWaitForWindowActive(program.form.toolWindow()))
    qFatal("not open");
}

#ifdef Q_OS_WIN

/// Real keys, such as "shift+F10", all in the queue before the program sees the first.
inline void realKeys(const QStringList& words) {
  const QMap<QString, WORD> codes{
      {u"shift"_s, VK_SHIFT}, {u"F10"_s, VK_F10}, {u"Escape"_s, VK_ESCAPE}, {u"Right"_s, VK_RIGHT}};
  std::vector<INPUT> input;
  const auto add = [&](const QString& name, DWORD flags) {
    if (!codes.contains(name)) qFatal("no key %s", qPrintable(name));
    INPUT one{};
    one.type = INPUT_KEYBOARD;
    one.ki.wVk = codes[name];
    one.ki.dwFlags = flags | (codes[name] == VK_RIGHT ? KEYEVENTF_EXTENDEDKEY : 0);
    input.push_back(one);
  };
  for (const QString& word : words) {
    const QStringList keys = word.split(u'+');
    for (const QString& key : keys) add(key, 0);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) add(*key, KEYEVENTF_KEYUP);
  }
  ::SendInput(static_cast<UINT>(input.size()), input.data(), sizeof(INPUT));
}

inline void bringToFront(const QWidget& window) {
  ::SetForegroundWindow(reinterpret_cast<HWND>(window.winId()));
}

#else

inline void realKeys(const QStringList& words) {
  QProcess::execute(u"xdotool"_s, QStringList(u"key"_s) + words);
}

/// Has the window manager bring a window to the front, as a taskbar does. The window's own request is lost when the
/// last event that the program knows of is older than the last change of focus; events made by a test have no time.
inline void bringToFront(const QWidget& window) {
  QProcess::execute(u"xdotool"_s, {u"windowactivate"_s, QString::number(window.winId())});
}

#endif

}  // namespace support
