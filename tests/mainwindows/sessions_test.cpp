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
    d.run("toolbar Save");
    d.step(u"edit"_s, [&] { program->edit(); });
    d.run("toolbar Close");
    d.step(u"Open, No"_s, [&] { program->click(1); });
    game->protect(SkinFile);
    d.run("toolbar Save");
    game->protect(SkinFile, false);
    game->put(LanguageFile, game->get(LanguageFile) + "NEW=by another hand\r\n");
    d.run("toolbar Save", "toolbar Save");
    game->put(ThemeCopy, game->get(ThemeCopy) + "; by another hand\r\n");
    d.step(u"edit of a copy that another program changed"_s, [&] { program->edit(u"Y"_s, u"7"_s); });
    program->dialogs.colors = {QColor(10, 20, 30)};
    d.run("toolbar Background Color", "toolbar Background Color", "object LoadingStaticA", "row X");
    d.step(u"5 typed, and not taken over"_s, [&] { QTest::keyClicks(&d.find<controls::TextBox>("Text1"), u"5"_s); });
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.step(u"Open Beta, Yes"_s, [&] {
      program->openDialog([](Form3& dialog) {
        dialog.themes().SetListIndex(1);
        dialog.openButton().click();
      });
    });
    d.run("screen Main Screen", "row COLOR=Red");  // of the theme before
    d.run("toolbar Close");
    d.step(u"Open"_s, [&] { program->open(); });
    d.run("object LoadingStaticA", "row Y", "Text1 becomes '8'");
    QFile::remove(game->native(ThemeCopy));
    d.run("press Command1");
    game->protect(ThemeCopy);
    d.run("Text1 becomes '9'", "press Command1");
    game->protect(ThemeCopy, false);
    d.run("press Command1");
    d.step(u"7 typed"_s, [&] { QTest::keyClicks(&d.find<controls::TextBox>("Text1"), u"7"_s); });
    for (const QString& copy : {ThemeCopy, SkinCopy, LanguageCopy}) QFile::remove(game->native(copy));
    d.run("toolbar Save");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.run("toolbar Close");
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

  /// One report at a time: what has succeeded, or what failed first, and what else is to be known behind it.
  void reports() {
    game->put(ThemeFile, game->get(ThemeFile).replace("W=80", "W=-1"));
    Diary& d = opened();
    d.step(u"an old report"_s, [&] { program->form.ShowStatus(u"Error"_s); });
    d.run("object LoadingButtonGo", "object LoadingStaticA", "another program adds to Themes/Alpha.ini.tmp");
    d.step(u"a place that can't be drawn, in a copy that another program changed"_s,
           [&] { program->edit(u"Y"_s, u"99999"_s); });
    d.run("object LoadingButtonGo", "row X", "Text1 becomes '301'", "press Command1", "object LoadingTextFree",
          "row Text", "Text2 becomes 'Hi'");
    game->protect(LanguageCopy);
    d.run("another program adds to Themes/Alpha.ini.tmp", "press Command1");
    game->protect(LanguageCopy, false);
    game->protect(ThemeCopy);
    d.run("press Command1");
    game->protect(ThemeCopy, false);
    d.run("another program adds to Themes/Alpha.ini.tmp", "toolbar Save", "row Color",
          "another program adds to Themes/Alpha.ini.tmp");
    program->dialogs.inputs = {u"Fresh"_s};
    d.run("press Command3", "toolbar Close");
    game->put(ThemeFile, game->get(ThemeFile).replace("[Colors]\r\n", linesOf(manyColors(120))));
    d.step(u"Open with too many colours"_s, [&] { program->open(); });
  }

  /// What is full, too long, or differs only in case.
  void limits() {
    QByteArray theme = game->get(ThemeFile).replace("[Colors]\r\n", linesOf(manyColors(98)));
    theme.replace("Z=0.25", "Z=0.25\r\nTex=" + QByteArray(300, 'x') + "\r\nText=" + QByteArray(32001, 'y'));
    game->put(ThemeFile, theme);
    Diary& d = opened();
    d.run("object LoadingStaticA", "row Tex", "row Text");
    d.step(u"Enter"_s, [&] { QTest::keyClick(&program->tools().values(), Qt::Key_Return); });
    d.run("row Color");
    program->dialogs.inputs = {u"Full"_s, u"Fuller"_s};
    d.run("press Command3", "press Command3");
    program->dialogs.boxes = {BoxAnswer::Yes};
    d.run("press Command5");
    program->dialogs.inputs = {u"c98"_s, u"Full"_s};
    d.run("press Command3", "press Command3", "press Command1", "toolbar Close");
  }
};

QTEST_MAIN(SessionsTest)
#include "sessions_test.moc"
