#include "controls/look.h"
#include "support/diary.h"
#include "support/real_input.h"
#include "support/results.h"

using namespace support;
using mainwindows::Form3;
using platform::BoxAnswer;

/// Sessions at the windows, step by step, against the diaries kept.
class SessionsTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<GameFolder> game;
  std::unique_ptr<Program> program;
  std::unique_ptr<Diary> diary;

  /// The diary of a session begins with the theme open.
  Diary& opened() {
    program->open();
    diary = std::make_unique<Diary>(*program, *game);
    return *diary;
  }

 private Q_SLOTS:
  void initTestCase() { controls::applyLook(*qApp); }
  void init() {
    game = std::make_unique<GameFolder>();
    game->put(u"Themes/Beta.ini"_s, "[Main]\n[MainStaticB]\nX=1\n");
    QDir().mkdir(game->native(u"Skins/Beta"_s));
    game->put(u"Skins/Beta/Sole.ini"_s, "");
    program = std::make_unique<Program>(*game);
  }
  void cleanup() {
    compareText(QString::fromLatin1(QTest::currentTestFunction()) + u".txt"_s, diary->lines);
    diary.reset();
    program.reset();
  }

  void openSaveAndClose() {
    diary = std::make_unique<Diary>(*program, *game);
    Diary& d = *diary;
    d.step(u"Open, Cancel"_s, [&] { program->openDialog([](Form3& dialog) { dialog.reject(); }); });
    game->put(ThemeCopy, "[Left]\r\nby=a crash");
    d.step(u"Open"_s, [&] { program->open(); });
    d.tool(2);
    d.step(u"edit"_s, [&] { program->edit(); });
    d.tool(3);
    d.step(u"Open, No"_s, [&] { program->click(1); });
    game->protect(SkinFile);
    d.tool(2);
    game->protect(SkinFile, false);
    game->put(LanguageFile, game->get(LanguageFile) + "NEW=by another hand\r\n");
    d.tool(2);
    d.tool(2);
    game->put(ThemeCopy, game->get(ThemeCopy) + "; by another hand\r\n");
    d.step(u"edit of a copy that another program changed"_s, [&] { program->edit(u"Y"_s, u"7"_s); });
    program->dialogs.colors = {QColor(10, 20, 30)};
    d.tool(4);
    d.tool(4);
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.step(u"Open Beta, Yes"_s, [&] {
      program->openDialog([](Form3& dialog) {
        dialog.themes().SetListIndex(1);
        dialog.openButton().click();
      });
    });
    d.screen(u"Main Screen"_s);
    d.tool(3);
    d.step(u"Open"_s, [&] { program->open(); });
    d.tag(u"LoadingStaticA"_s);
    d.row(u"Y"_s);
    d.type("Text1", u"8"_s);
    QFile::remove(game->native(ThemeCopy));
    d.press("Command1");
    game->protect(ThemeCopy);
    d.type("Text1", u"9"_s);
    d.press("Command1");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.tool(3);
    d.step(u"end"_s, [&] { program->form.close(); });
  }

  void values() {
    Diary& d = opened();
    d.tag(u"LoadingStaticA"_s);
    d.row(u"X"_s);
    d.type("Text1", u"77"_s);
    d.press("Command1");
    d.row(u"Z"_s);
    d.type("Text4", u"1.5."_s);
    d.press("Command1");
    d.row(u"Type"_s);
    d.choose("Combo2", 3);
    d.press("Command1");
    d.row(u"Direction"_s);
    d.choose("Combo2", 1);
    d.press("Command1");
    d.row(u"ColR"_s);
    d.press("Command1");
    d.tag(u"LoadingTextFree"_s);
    d.row(u"Align"_s);
    d.choose("Combo2", 2);
    d.press("Command1");
    d.row(u"Size"_s);
    d.type("Text1", u"40000"_s);
    d.press("Command1");
    d.row(u"X"_s);
    d.type("Text1", u"10001"_s);
    d.press("Command1");
    d.tag(u"LoadingButtonGo"_s);
    d.row(u"Visible"_s);
    d.choose("Combo2", 0);
    d.press("Command1");
    d.row(u"H"_s);
    d.type("Text1", u"0"_s);
    d.press("Command1");
    d.tool(2);
    // Updates that are refused.
    d.step(u"no row"_s, [&] { program->tools().values().selectRow(-1); });
    d.press("Command1");
    for (const auto& [key, value] :
         {std::pair(u"TYPE"_s, u"plain"_s), {u"TEX"_s, u"Lost"_s}, {u"COLOR"_s, u"lost"_s}}) {
      d.soleRow(key, value);
      d.press("Command1");
    }
    d.step(u"no object"_s, [&] { program->tools().objects().SetListIndex(-1); });
    d.press("Command1");
    d.screen(u"Top5 Screen"_s);
    d.screen(u"Level Screen"_s);
    d.tag(u"LevelStatic]x"_s);
    d.row(u"X"_s);
    d.press("Command1");
  }

  void colours() {
    Diary& d = opened();
    d.tag(u"LoadingStaticA"_s);
    d.row(u"Color"_s);
    program->dialogs.colors = {std::nullopt, QColor(200, 100, 50)};
    d.press("Command2");
    d.press("Command2");
    d.press("Command1");
    program->dialogs.inputs = {u""_s, u"RED"_s, u" odd"_s, u"Leaf"_s};
    for (int i = 0; i < 4; ++i) d.press("Command3");
    d.press("Command1");
    program->dialogs.boxes = {BoxAnswer::No, BoxAnswer::Yes};
    d.press("Command5");
    d.press("Command5");
    d.press("Command5");
    d.press("Command1");
    for (const int group : {1, 2, 0}) d.choose("Combo4", group);
    d.choose("Combo3", 1);
    d.press("Command1");
    d.choose("Combo4", 1);
    d.press("Command1");
    // Colours that aren't the theme's.
    program->dialogs.colors = {QColor(1, 2, 3)};
    program->dialogs.boxes = {BoxAnswer::Yes};
    for (const auto& name : {u"P1Dark"_s, u"Lost"_s, u"ColorLightest"_s, u"Blue"_s}) {
      d.soleRow(u"COLOR"_s, name);
      d.press("Command2");
      d.press("Command5");
    }
    d.step(u"another scheme"_s, [&] {
      program->form.schemes().setFocus();
      QTest::keyClick(&program->form.schemes(), Qt::Key_Down);
    });
    d.tag(u"LoadingButtonGo"_s);
    d.row(u"DColor"_s);
    d.choose("Combo4", 2);
    program->dialogs.colors = {QColor(1, 2, 3)};
    d.row(u"Color"_s);
    d.step(u"button 2"_s, [&] {
      program->form.buttons().setFocus();
      QTest::keyClick(&program->form.buttons(), Qt::Key_Down);
    });
  }

  void wordsAndTextures() {
    Diary& d = opened();
    d.tag(u"LoadingTextFree"_s);
    d.row(u"Text"_s);
    d.type("Text2", u"Good morning"_s);
    d.press("Command1");
    d.type("Text2", u"\u4e2d"_s);
    d.press("Command1");
    d.choose("Combo5", 1);
    d.press("Command1");
    program->dialogs.inputs = {u""_s, u"go"_s, u"[x"_s, u"NEW"_s};
    for (int i = 0; i < 4; ++i) d.press("Command6");
    d.press("Command1");
    program->dialogs.boxes = {BoxAnswer::No, BoxAnswer::Yes};
    d.press("Command7");
    d.press("Command7");
    d.press("Command7");
    d.press("Command1");
    d.tag(u"LoadingStaticA"_s);
    d.row(u"Tex"_s);
    const QString folder = game->path() + u"Skins\\Alpha"_s;
    program->dialogs.files = {u""_s, folder + u"\\sub\\x.png"_s, folder + u"\\back.png"_s};
    for (int i = 0; i < 3; ++i) d.press("Command4");
    d.press("Command1");
    program->dialogs.inputs = {u"plate"_s, u"Leaf"_s};
    d.press("Command8");
    d.press("Command8");
    d.press("Command1");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.press("Command9");
    d.press("Command1");
  }

  /// One report at a time: what has succeeded, or what failed first, and what else is to be known behind it.
  void reports() {
    game->put(ThemeFile, game->get(ThemeFile).replace("W=80", "W=-1"));
    Diary& d = opened();
    d.step(u"an old report"_s, [&] { program->form.ShowStatus(u"Error"_s); });
    d.tag(u"LoadingButtonGo"_s);
    d.tag(u"LoadingStaticA"_s);
    const auto byAnother = [&](const QString& file) { game->put(file, game->get(file) + "; other\r\n"); };
    byAnother(ThemeCopy);
    d.step(u"a place that can't be drawn, in a copy that another program changed"_s,
           [&] { program->edit(u"Y"_s, u"99999"_s); });
    d.tag(u"LoadingButtonGo"_s);
    d.row(u"X"_s);
    d.type("Text1", u"301"_s);
    d.press("Command1");
    d.tag(u"LoadingTextFree"_s);
    d.row(u"Text"_s);
    d.type("Text2", u"Hi"_s);
    game->protect(LanguageCopy);
    byAnother(ThemeCopy);
    d.press("Command1");
    game->protect(LanguageCopy, false);
    game->protect(ThemeCopy);
    d.press("Command1");
    game->protect(ThemeCopy, false);
    d.tool(2);
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.tool(3);
    game->put(ThemeFile, game->get(ThemeFile).replace("[Colors]\r\n", linesOf(manyColors(120))));
    d.step(u"Open with too many colours"_s, [&] { program->open(); });
  }

  /// What is full, too long, or differs only in case.
  void limits() {
    QByteArray theme = game->get(ThemeFile).replace("[Colors]\r\n", linesOf(manyColors(98)));
    theme.replace("Z=0.25", "Z=0.25\r\nTex=" + QByteArray(300, 'x') + "\r\nText=" + QByteArray(32001, 'y'));
    game->put(ThemeFile, theme);
    Diary& d = opened();
    d.tag(u"LoadingStaticA"_s);
    d.row(u"Tex"_s);
    d.row(u"Text"_s);
    d.row(u"Color"_s);
    program->dialogs.inputs = {u"Full"_s, u"Fuller"_s};
    d.press("Command3");
    d.press("Command3");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.press("Command5");
    program->dialogs.inputs = {u"c98"_s, u"Full"_s};
    d.press("Command3");
    d.press("Command3");
    d.press("Command1");
    d.tool(3);
  }

  void finder() {
    Diary& d = opened();
    toolwindow::Form2& tools = program->tools();
    tools.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&tools));
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
    d.menuOfRow(u"X"_s, 0);
    d.tag(u"LoadingTextFree"_s);
    d.row(u"Text"_s);
    d.type("Text2", u"Hi"_s);
    d.press("Command1");
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
    d.menu(u"the list"_s, *d.find<QListWidget>("List1").viewport(), {20, 20});
    d.menu(u"the preview"_s, *program->form.Workspace, {700, 500});
  }

  void keys() {
    Diary& d = opened();
    toolwindow::Form2& tools = program->tools();
    tools.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&tools));
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
    press("ListView1", Qt::Key_S, Qt::ControlModifier);
    press("ListView1", Qt::Key_F5);
    press("ListView1", Qt::Key_F10, Qt::ShiftModifier);
    press("ListView1", Qt::Key_F, Qt::ControlModifier);
    press("ListView1", Qt::Key_W, Qt::ControlModifier);
  }

  void hand() {
    Diary& d = opened();
    mainwindows::Workspace& preview = *program->form.Workspace;
    program->form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&program->form));
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
    drag("pick a text", {400, 110}, {});
    drag("pick nothing", {700, 500}, {});
    drag("move", {90, 80}, {40, 25});
    drag("size", {178, 133}, {12, 7});
    drag("move a button", {340, 230}, {-10, 20}, Qt::ControlModifier);
    drag("move its text", {305, 235}, {9, 9});
    d.step(u"right, twice, and down, which stays held"_s, [&] {
      for (const auto key : {Qt::Key_Right, Qt::Key_Right}) QTest::keyClick(&preview, key);
      QTest::keyPress(&preview, Qt::Key_Down);
      QTRY_VERIFY(!preview.accessibleDescription().isEmpty());
    });
    d.step(u"no key is held"_s, [&] {
      QTest::keyRelease(&preview, Qt::Key_Down);
      QTRY_VERIFY(preview.accessibleDescription().isEmpty());
    });
    d.step(u"left, Esc"_s, [&] {
      for (const auto key : {Qt::Key_Left, Qt::Key_Escape}) QTest::keyClick(&preview, key);
    });
    d.step(u"up, Save"_s, [&] {
      QTest::keyClick(&preview, Qt::Key_Up, Qt::ShiftModifier);
      program->click(2);
    });
  }
};

QTEST_MAIN(SessionsTest)
#include "sessions_test.moc"
