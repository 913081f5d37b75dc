#include "mainwindows/command_line.h"
#include "platform/failure.h"
#include "support/row_name.h"
#include "support/snapshot.h"

using namespace support;
using mainwindows::Form3;
using platform::BoxAnswer;

class OpenThemeTest : public QObject {
  Q_OBJECT

 private:
  static void doubleClick(const controls::ListBox& list) {
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.currentItem()).center());
  }

 private Q_SLOTS:
  /// The files are spoilt while the dialog is up: with no theme open, and with one open that has changes.
  void failedCopies() {
    const std::pair<QString, QString> rows[] = {{ThemeFile, u"gone"_s},        {LanguageFile, u"gone"_s},
                                                {u"Languages"_s, u"gone"_s},   {SkinFile, u"a folder"_s},
                                                {ThemeCopy, u"a folder"_s},    {SkinCopy, u"a folder"_s},
                                                {LanguageCopy, u"a folder"_s}, {LanguageCopy, u"read-only"_s}};
    for (const auto& row : rows) {
      const QString& name = row.first;
      const QString& becomes = row.second;
      const RowName rowName((name + u' ' + becomes).toLatin1());
      for (const bool dirty : {false, true}) {
        const GameFolder game;
        Program program(game);
        if (dirty) {
          program.open();
          program.edit();
          program.dialogs.boxes = {BoxAnswer::Yes};
        }
        const QVariantMap before = snapshot(program, game);
        QByteArray edited;
        QVERIFY(program.openDialog([&](Form3& dialog) {
          QDir(game.native(name)).removeRecursively();
          QFile::remove(game.native(name));
          if (becomes == u"a folder") QDir().mkdir(game.native(name));
          if (becomes == u"read-only") {
            game.put(name, "older");
            game.protect(name);
          }
          edited = game.get(ThemeCopy);
          if (!game.has(u"Languages"_s)) dialog.languages().Clear();
          dialog.openButton().click();
          QVERIFY(dialog.isVisible());
          QVERIFY2(program.status().startsWith(u"Error while saving temporary files ["), qPrintable(program.status()));
          dialog.reject();
        }));
        QCOMPARE(differences(snapshot(program, game), before).join(u' ').remove(u"files"_s), QString());
        if (dirty) QCOMPARE(game.get(ThemeCopy), edited);
        if (name != SkinFile) continue;
        QVERIFY2(program.status().contains(u"One.ini: "), qPrintable(program.status()));
        QVERIFY(game.has(ThemeCopy) && game.has(LanguageCopy) == dirty);
      }
    }
  }

  void doubleClickOpens() {
    for (controls::ListBox& (Form3::*list)() const : {&Form3::themes, &Form3::skins}) {
      const GameFolder game;
      Program program(game);
      program.openDialog([&](Form3& dialog) {
        doubleClick((dialog.*list)());
        if (dialog.isVisible()) dialog.reject();
      });
      QVERIFY(program.state.ThemeOpened);
    }
  }

  void languages() {
    for (const QStringList& names :
         {QStringList{u"Zulu"_s, u"Deutsch"_s, u"english"_s}, QStringList{u"Zulu"_s, u"Deutsch"_s}, {}}) {
      const GameFolder game;
      QFile::remove(game.native(LanguageFile));
      QFile::remove(game.native(u"Languages/Deutsch.ini"_s));
      for (const QString& name : names) game.put(u"Languages/%1.ini"_s.arg(name), "");
      Program program(game);
      program.openDialog([&](Form3& dialog) {
        QCOMPARE(dialog.languages().Text(), names.isEmpty()     ? QString()
                                            : names.size() == 3 ? u"english"_s
                                                                : u"Deutsch"_s);
        dialog.openButton().click();
        if (dialog.isVisible()) dialog.reject();
      });
      QCOMPARE(program.state.ThemeOpened, !names.isEmpty());
    }
  }

  void screenAnew() {
    const GameFolder game;
    Program program(game);
    program.open();
    program.tag(u"LoadingTextFree"_s);
    game.addPicture("plate.png", Qt::green, {10, 8});
    QTest::keyClick(&program.form, Qt::Key_F5);
    settle();
    QCOMPARE(program.tools().objects().Text(), u"LoadingTextFree"_s);
    QCOMPARE(program.picture().pixelColor(90, 80), QColor(Qt::green));
    // On a screen that is coming up the selected button is still that of the screen before.
    const auto select = [&](int index) {
      program.form.buttons().setCurrentIndex(index);
      Q_EMIT program.form.buttons().Click(controls::Cause::User);
    };
    for (const int meanwhile : {1, 0}) {
      select(1);
      connect(
          &program.form.queue(), &controls::WorkQueue::yielding, this, [&] { select(meanwhile); },
          Qt::SingleShotConnection);
      QTest::keyClick(&program.form, Qt::Key_F5);
      settle();
      QVERIFY(program.form.buttons().ListIndex() == meanwhile && program.state.SelectedButton == meanwhile + 1);
    }
    select(1);
    game.put(ThemeCopy, game.get(ThemeCopy).replace("[LoadingButtonLast]", "[Elsewhere]"));
    QTest::keyClick(&program.form, Qt::Key_F5);
    settle();
    QCOMPARE(program.state.SelectedButton, 1);
    game.put(ThemeCopy, game.get(ThemeFile));
    program.screen(u"Main Screen"_s);
    bool pressed = false;
    connect(&program.form.queue(), &controls::WorkQueue::yielding, this, [&] {
      if (!std::exchange(pressed, true)) QTest::keyClick(&program.form, Qt::Key_F5);
    });
    program.screen(u"Loading Screen"_s);
    QVERIFY(pressed);
    QCOMPARE(program.state.SelectedButton, 1);
    // Another screen that is chosen meanwhile begins with its own first button.
    game.put(ThemeCopy, game.get(ThemeCopy).replace("[Main]\r\n", "[Main]\r\n[MainButtonA]\r\n[MainButtonB]\r\n"));
    select(1);
    bool chosen = false;
    connect(&program.form.queue(), &controls::WorkQueue::yielding, this, [&] {
      if (!std::exchange(chosen, true)) program.screen(u"Main Screen"_s);
    });
    QTest::keyClick(&program.form, Qt::Key_F5);
    settle();
    QVERIFY(chosen && program.form.buttons().ListCount() == 2);
    QCOMPARE(program.state.SelectedButton, 1);
  }

  void commandLine() {
    const auto answer = [](const QStringList& words) {
      return mainwindows::commandLineAnswer(QStringList{u"program"_s} + words);
    };
    QVERIFY(answer({u"--help"_s}).startsWith(u"Usage: cantorama-theme-edit [GAME_FOLDER | --sample]"_s));
    QVERIFY(answer({u"--version"_s}).endsWith(QStringLiteral(" " CANTORAMA_VERSION)) &&
            answer({u"-platform"_s}).isEmpty());
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    for (const QString& name : {folder.path(), u"."_s}) {
      QCOMPARE(mainwindows::parseCommandLine({u"program"_s, name}).gameFolder,
               platform::programPath(folder.path()) + u'\\');
    }
    QDir::setCurrent(QDir::rootPath());
    const QString two = u"more than one game folder is named"_s;
    for (const auto& [words, told] : {std::pair(QStringList{u"/no/such/folder"_s}, u"no folder '/no/such/folder'"_s),
                                      {{u"--unknown"_s}, u"Unknown option 'unknown'."_s},
                                      {{QString()}, u"no folder ''"_s},
                                      {{folder.path(), folder.path()}, two},
                                      {{u"--sample"_s, folder.path()}, two}}) {
      const auto parse = [&, words = words] { mainwindows::parseCommandLine(QStringList{u"program"_s} + words); };
      QCOMPARE(platform::failureIn(parse).value_or(QString()), told);
    }
  }
};

QTEST_MAIN(OpenThemeTest)
#include "open_theme_test.moc"
