#include "support/diary.h"
#include "support/real_input.h"

using namespace support;
using platform::BoxAnswer;

/// Sessions with finder, menus, keys and mouse, step by step, against the diaries kept.
class KeysAndMouseTest : public DiaryTest {
  Q_OBJECT

 private Q_SLOTS:
  void finder() {
    Diary& d = openedAt(false);
    QWidget& tools = program->tools();
    const auto find = [&](const char* words) {
      QTRY_COMPARE(QApplication::activeWindow(), &tools);
      d.step(u"Ctrl+F"_s, [&] {
        QTest::keyClick(&tools, Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(QApplication::activeWindow() != &tools && QApplication::activeWindow() != nullptr);
      });
      QWidget& finder = *QApplication::activeWindow();
      d.step(u"words: "_s + QLatin1StringView(words),
             [&] { finder.findChild<QLineEdit*>()->setText(QLatin1StringView(words)); });
      d.step(u"Enter"_s, [&] { QTest::keyClick(&finder, Qt::Key_Return); });
      if (finder.isVisible()) d.step(u"Esc"_s, [&] { QTest::keyClick(&finder, Qt::Key_Escape); });
    };
    for (const char* words : {"hello", "x=10 static", "colr", "check pop", "nothing of this"}) find(words);
  }

  void putBack() {
    Diary& d = opened();
    d.step(u"edit"_s, [&] { program->edit(); });
    d.menuOfRow(u"X"_s);
    d.menuOfRow(u"Y"_s);
    d.row(u"Color"_s);
    d.menuOfRow(u"X"_s, 0);
    d.tag(u"LoadingTextFree"_s);
    d.change(u"Text"_s, "Text2", u"Hi"_s);
    d.menuOfRow(u"Text"_s, 0);
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.press("Command7");
    d.choose("Combo5", 0);
    d.type("Text2", u"Ho"_s);
    d.press("Command1");
    d.menuOfRow(u"Text"_s, 0);
    d.type("Text2", u"Ha"_s);
    d.press("Command1");
    d.screen(u"Main Screen"_s);
    d.tag(u"MainTextFree"_s);
    d.menuOfRow(u"Text"_s, 0);
    d.screen(u"Loading Screen"_s);
    d.tag(u"LoadingStaticA"_s);
    d.row(u"Color"_s);
    program->dialogs.colors = {QColor(1, 2, 3)};
    d.press("Command2");
    d.menu(u"the colour"_s, d.find<QWidget>("Command2"), {4, 4}, 0);
    program->dialogs.colors = {QColor(1, 2, 3)};
    d.press("Command2");
    d.menuOfRow(u"Color"_s, 0);
    program->dialogs.inputs = {u"Leaf"_s};
    d.press("Command3");
    d.menu(u"a new colour"_s, d.find<QWidget>("Command2"), {4, 4});
    d.row(u"X"_s);
    QGuiApplication::clipboard()->setText(u"1-2"_s);
    for (const int entry : {0, 7, 5, 4, 0, 4, 7, 3, 2})
      d.menu(u"the number"_s, d.find<QWidget>("Text1"), {5, 5}, entry);
    auto& bar = d.find<QWidget>("VScroll1");
    d.menu(u"the bar"_s, bar, {5, 5});
    d.step(u"the bar's upper arrow"_s, [&] { QTest::mouseClick(&bar, Qt::LeftButton, {}, {8, 3}); });
    d.row(u"Y"_s);
    d.menu(u"the list"_s, *d.find<QListWidget>("List1").viewport(), {20, 20});
    d.menu(u"the preview"_s, *program->form.Workspace, {700, 500});
  }

  void keys() {
    Diary& d = openedAt(false);
    const auto press = [&](const char* control, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
      auto& widget = d.find<QWidget>(control);
      d.step(u"%1 gets %2"_s.arg(QLatin1StringView(control), QKeySequence(key | modifiers).toString()), [&] {
        widget.setFocus();
        QTest::keyClick(&widget, key, modifiers);
      });
    };
    press("Combo1", Qt::Key_Down);
    press("Combo1", Qt::Key_Up);
    press("List1", Qt::Key_End);
    press("List1", Qt::Key_L);
    press("List1", Qt::Key_PageUp);
    d.tag(u"LoadingStaticA"_s);
    press("ListView1", Qt::Key_Down);
    press("ListView1", Qt::Key_Down);
    press("ListView1", Qt::Key_Return);
    press("Text1", Qt::Key_Up);
    press("Text1", Qt::Key_PageDown);
    press("Text1", Qt::Key_Return);
    press("ListView1", Qt::Key_C);
    press("Combo3", Qt::Key_Return);
    press("Command1", Qt::Key_Space);
    press("Command1", Qt::Key_Return);
    press("ListView1", Qt::Key_S, Qt::ControlModifier);
    press("ListView1", Qt::Key_F5);
    press("ListView1", Qt::Key_F10, Qt::ShiftModifier);
    press("ListView1", Qt::Key_F, Qt::ControlModifier);
    press("ListView1", Qt::Key_W, Qt::ControlModifier);
    d.menu(u"the preview"_s, *program->form.Workspace, {700, 500});
  }

  void hand() {
    Diary& d = openedAt(true);
    mainwindows::Workspace& preview = *program->form.Workspace;
    const auto drag = [&](const char* what, const QPoint& from, const QPoint& by, Qt::KeyboardModifiers keys = {}) {
      d.step(u"%1: press at %2,%3"_s.arg(QLatin1StringView(what)).arg(from.x()).arg(from.y()),
             [&] { QTest::mousePress(&preview, Qt::LeftButton, keys, from); });
      if (!by.isNull()) {
        d.step(u"move by %1,%2"_s.arg(by.x()).arg(by.y()), [&] {
          const QString before = preview.accessibleDescription();
          moveMouse(preview, from + by / 2, Qt::LeftButton, keys);
          moveMouse(preview, from + by, Qt::LeftButton, keys);
          QTRY_VERIFY(preview.accessibleDescription() != before);
        });
      }
      d.step(u"release"_s, [&] { QTest::mouseRelease(&preview, Qt::LeftButton, keys, from + by); });
    };
    drag("pick", {90, 80}, {});
    drag("pick again", {90, 80}, {});
    d.row(u"X"_s);
    d.find<QWidget>("Text1").setFocus();  // the open editor follows
    drag("move", {90, 80}, {40, 25});
    drag("size", {178, 133}, {12, 7});
    drag("pick a text", {400, 110}, {});
    drag("pick nothing", {700, 500}, {});
    drag("move a button", {340, 230}, {-10, 20}, Qt::ControlModifier);
    drag("move its text", {305, 235}, {9, 9});
    for (int times = 0; times < 2; ++times) {
      d.menu(u"the preview"_s, preview, {700, 500}, 7);
      drag("move beside a guide", {150 + 115 * times, 100}, {115 - 230 * times, 0});
    }
    d.step(u"right, twice, and down, which stays held"_s, [&] {
      for (const auto key : {Qt::Key_Right, Qt::Key_Right}) QTest::keyClick(&preview, key);
      QTest::keyPress(&preview, Qt::Key_Down);
      QTRY_VERIFY(!preview.accessibleDescription().isEmpty());
      QTest::qWait(400);  // longer than keys are waited for
    });
    d.step(u"no key is held"_s, [&] {
      QTest::keyRelease(&preview, Qt::Key_Down);
      QTRY_VERIFY(preview.accessibleDescription().isEmpty());
    });
    d.step(u"left, Esc"_s, [&] {
      for (const auto key : {Qt::Key_Left, Qt::Key_Escape}) QTest::keyClick(&preview, key);
    });
    d.step(u"left, up, Save"_s, [&] {
      QTest::keyClick(&preview, Qt::Key_Left);
      QTest::keyClick(&preview, Qt::Key_Up, Qt::ShiftModifier);
      program->click(2);
    });
  }
};

QTEST_MAIN(KeysAndMouseTest)
#include "keys_and_mouse_test.moc"
