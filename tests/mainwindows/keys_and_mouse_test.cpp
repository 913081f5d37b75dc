#include "support/diary.h"

using namespace support;
using platform::BoxAnswer;

/// Sessions with menus, keys and mouse, step by step, against the diaries kept.
class KeysAndMouseTest : public DiaryTest {
  Q_OBJECT

 private Q_SLOTS:
  void putBack() {
    Diary& d = opened();
    d.step(u"edit"_s, [&] { program->edit(); });
    d.run("menu of row X", "menu of row Y", "row Color", "menu of row X, entry 0", "object LoadingTextFree", "row Text",
          "Text2 becomes 'Hi'", "press Command1", "menu of row Text, entry 0");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.run("press Command7", "Combo5 becomes entry 0", "Text2 becomes 'Ho'", "press Command1",
          "menu of row Text, entry 0", "Text2 becomes 'Ha'", "press Command1", "screen Main Screen",
          "object MainTextFree", "menu of row Text, entry 0", "screen Loading Screen", "object LoadingStaticA",
          "row Color");
    program->dialogs.colors = {QColor(1, 2, 3)};
    d.run("press Command2", "menu of Command2, entry 0");
    program->dialogs.colors = {QColor(1, 2, 3)};
    d.run("press Command2", "menu of row Color, entry 0");
    program->dialogs.inputs = {u"Leaf"_s};
    d.run("press Command3", "menu of Command2", "row X");
    QGuiApplication::clipboard()->setText(u"1-2"_s);
    for (const int entry : {0, 7, 5, 4, 0, 4, 7, 3, 2}) d.run(u"menu of Text1, entry %1"_s.arg(entry));
    auto& bar = d.find<QWidget>("VScroll1");
    d.run("menu of VScroll1");
    d.step(u"the bar's upper arrow"_s, [&] { QTest::mouseClick(&bar, Qt::LeftButton, {}, {8, 3}); });
    d.run("row Y", "menu of List1", "menu of Form1.Workspace");
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
      d.step(u"release"_s, [&] {
        QTest::mouseRelease(&preview, Qt::LeftButton, keys, from + by);
        takeMouseAway(preview);
      });
    };
    drag("pick", {90, 80}, {});
    drag("pick again", {90, 80}, {});
    d.run("row X");
    d.find<QWidget>("Text1").setFocus();  // the open editor follows
    drag("move", {90, 80}, {40, 25});
    drag("size", {178, 133}, {12, 7});
    drag("pick a text", {400, 110}, {});
    drag("pick nothing", {700, 500}, {});
    drag("move a button", {340, 230}, {-10, 20}, Qt::ControlModifier);
    drag("move its text", {305, 235}, {9, 9});
    for (int times = 0; times < 2; ++times) {
      d.run("menu of Form1.Workspace, entry 7");
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
