#include "support/diary.h"

using namespace support;
using mainwindows::Form3;
using platform::BoxAnswer;

/// Edits by the tool window's editors, step by step, against the diaries kept.
class SessionsTest : public DiaryTest {
  Q_OBJECT

 private Q_SLOTS:
  void openSaveAndClose() {
    Diary& d = begun();
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
    d.tag(u"LoadingStaticA"_s);
    d.row(u"X"_s);
    d.step(u"5 typed, and not taken over"_s, [&] { QTest::keyClicks(&d.find<controls::TextBox>("Text1"), u"5"_s); });
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.step(u"Open Beta, Yes"_s, [&] {
      program->openDialog([](Form3& dialog) {
        dialog.themes().SetListIndex(1);
        dialog.openButton().click();
      });
    });
    d.screen(u"Main Screen"_s);
    d.soleRow(u"COLOR"_s, u"Red"_s);  // of the theme before
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
    game->protect(ThemeCopy, false);
    d.press("Command1");
    d.step(u"7 typed"_s, [&] { QTest::keyClicks(&d.find<controls::TextBox>("Text1"), u"7"_s); });
    for (const QString& copy : {ThemeCopy, SkinCopy, LanguageCopy}) QFile::remove(game->native(copy));
    d.tool(2);
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.tool(3);
    d.step(u"end"_s, [&] { program->form.close(); });
  }

  void gameFolder() {
    Diary& d = begun();
    const auto open = [&](const QString& what, const QString& stored, const QString& answer) {
      program->form.config().setGameFolder(stored);
      program->dialogs.files = {answer};
      d.step(what, [&] {
        program->openDialog([&](Form3& dialog) {
          d.lines += u"dialog: "_s + dialog.windowTitle();
          dialog.reject();
        });
        d.lines += u"stored: "_s + program->form.config().gameFolder();
      });
    };
    const QString chosen = game->path() + u"Vocora.exe"_s;
    open(u"Open, a folder stored"_s, game->path(), chosen);
    open(u"Open, none stored"_s, {}, chosen);
    open(u"Open, none stored and none chosen"_s, {}, {});
    open(u"Open, a folder without the program stored"_s, game->path() + u"Skins\\"_s, chosen);
    for (const char* theme : {"Alpha", "Beta"})
      QFile::remove(game->native(u"Themes/%1.ini"_s.arg(QLatin1StringView(theme))));
    open(u"Open, no themes"_s, game->path(), {});
    const GameFolder other;
    const auto show = [&](Form3& dialog) {
      d.lines += u"dialog: "_s + dialog.windowTitle().replace(other.path(), u"OTHER\\"_s);
      dialog.reject();
    };
    program->form.config().setFolderOfThisRun(other.path());
    d.step(u"Open, a folder given for this run"_s, [&] { program->openDialog(show); });
    QFile::setPermissions(program->settings.filePath(u"config.ini"_s), QFile::ReadOwner);
    program->form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&program->form));
    program->dialogs.files = {other.path() + u"Vocora.exe"_s};
    d.step(u"another folder, which can't be stored"_s, [&] {
      program->openDialog(show,
                          [&] { QTest::keyClick(&program->form, Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier); });
    });
  }

  void values() {
    Diary& d = opened();
    d.tag(u"LoadingStaticA"_s);
    d.change(u"X"_s, "Text1", u"77"_s);
    d.change(u"Z"_s, "Text4", u"1.5."_s);
    d.change(u"Type"_s, "Combo2", 3);
    d.change(u"Direction"_s, "Combo2", 1);
    d.row(u"ColR"_s);
    d.press("Command1");
    d.tag(u"LoadingTextFree"_s);
    d.change(u"Align"_s, "Combo2", 2);
    d.change(u"Size"_s, "Text1", u"40000"_s);
    d.change(u"X"_s, "Text1", u"10001"_s);
    d.tag(u"LoadingButtonGo"_s);
    d.change(u"Visible"_s, "Combo2", 0);
    d.change(u"H"_s, "Text1", u"0"_s);
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

  /// The frame of each key, and what its editor makes of a value.
  void editors() {
    Diary& d = opened();
    for (const auto& key :
         u"X Y SIZE W H PIECEW PIECEH SPACE BANDS LENGTH REFLECTIONSPACING DESELECTREFLECTIONSPACING SELECTH "
         "SELECTW FADETEXPOS FIRSTCHILD TEXTS PARENT STYLE STATICS SKIPX ALIGN FONT VISIBLE REFLECTION FADE FADETEXT "
         "REFLECTIONS DIRECTION TYPE TEXT COLOR DCOLOR TCOLOR TDCOLOR SBGCOLOR SBGDCOLOR STCOLOR STDCOLOR TEX FADETEX "
         "SBGTEX TEXSBG Z TEXX1 TEXY1 TEXX2 TEXY2 INT DINT COLR COLG COLB TEXT1 TEXX STATIC S"_s.split(u' ')) {
      d.soleRow(u' ' + key.toLower() + u"  "_s, u"0"_s);
    }
    for (const char* row :
         {"ALIGN=2",    "FONT=",       "FONT=3",     "FONT=0.5",    "FONT=1.5",        "FADE=word",
          "FADE=2",     "DIRECTION=0", "FONT=40000", "DIRECTION=1", "TYPE=font black", "TYPE=Transparent",
          "TEXT=HELLO", "TEX=Plate",   "COLOR=blue", "COLOR=Blue",  "COLOR=P6Dark",    "COLOR=ColorLight",
          "COLOR=Red",  "Z="}) {
      const QString text = QLatin1StringView(row);
      d.soleRow(text.section(u'=', 0, 0), text.section(u'=', 1));
    }
    auto& bar = d.find<controls::NumberBar>("VScroll1");
    for (const auto& [before, text] : {std::pair(5, u"12.5"_s),
                                       {5, u"-20"_s},
                                       {5, u"13.5"_s},
                                       {5, u"word"_s},
                                       {0, u"word"_s},
                                       {120, u"120.2"_s},
                                       {5, u"-10001"_s},
                                       {5, u"10001"_s}}) {
      bar.setValueQuietly(before);
      d.soleRow(u"X"_s, text);
    }
    d.step(u"the bar becomes 9999"_s, [&] { bar.SetValue(9999); });
  }

  void colours() {
    Diary& d = opened();
    d.tag(u"LoadingStaticA"_s);
    d.row(u"Color"_s);
    program->dialogs.colors = {std::nullopt, QColor(200, 100, 50)};
    d.press("Command2", "Command2", "Command1");
    program->dialogs.inputs = {u""_s, u"RED"_s, u" odd"_s, u"Leaf"_s};
    for (int i = 0; i < 4; ++i) d.press("Command3");
    d.press("Command1");
    program->dialogs.boxes = {BoxAnswer::No, BoxAnswer::Yes};
    d.press("Command5", "Command5", "Command5", "Command1");
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
      d.press("Command2", "Command5");
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
    d.change(u"Text"_s, "Text2", u"Good morning"_s);
    d.type("Text2", u"\u4e2d"_s);
    d.press("Command1");
    d.choose("Combo5", 1);
    d.press("Command1");
    program->dialogs.inputs = {u""_s, u"go"_s, u"[x"_s, u"NEW"_s};
    for (int i = 0; i < 4; ++i) d.press("Command6");
    d.press("Command1");
    program->dialogs.boxes = {BoxAnswer::No, BoxAnswer::Yes};
    d.press("Command7", "Command7", "Command7", "Command1");
    d.tag(u"LoadingStaticA"_s);
    d.row(u"Tex"_s);
    const QString folder = game->path() + u"Skins\\Alpha"_s;
    program->dialogs.files = {u""_s, folder + u"\\sub\\x.png"_s, folder + u"\\back.png"_s};
    for (int i = 0; i < 3; ++i) d.press("Command4");
    d.press("Command1");
    game->put(SkinCopy, game->get(SkinCopy).replace("Other=", "More="));
    program->dialogs.inputs = {u"plate"_s, u"other"_s, u"Leaf"_s};
    d.press("Command8", "Command8", "Command8", "Command1");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.press("Command9", "Command1");
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
    d.change(u"X"_s, "Text1", u"301"_s);
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
    byAnother(ThemeCopy);
    d.tool(2);
    d.row(u"Color"_s);
    byAnother(ThemeCopy);
    program->dialogs.inputs = {u"Fresh"_s};
    d.press("Command3");
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
    d.step(u"Enter"_s, [&] { QTest::keyClick(&program->tools().values(), Qt::Key_Return); });
    d.row(u"Color"_s);
    program->dialogs.inputs = {u"Full"_s, u"Fuller"_s};
    d.press("Command3", "Command3");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.press("Command5");
    program->dialogs.inputs = {u"c98"_s, u"Full"_s};
    d.press("Command3", "Command3", "Command1");
    d.tool(3);
  }
};

QTEST_MAIN(SessionsTest)
#include "sessions_test.moc"
