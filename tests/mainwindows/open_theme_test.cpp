#include <QCloseEvent>
#include <QTest>

#include "support/re_entry.h"

using namespace support;
using mainwindows::Form3;
using platform::BoxAnswer;

namespace {

/// Everything of the program that Open may change.
QVariantMap whole(const Program& program) {
  const themefiles::ThemePaths& paths = program.state.Paths;
  QVariantMap all = shown(program);
  all[u"paths"_s] = QStringList{paths.ExeDirectory,  paths.LanguagesDirectory, paths.ThemeFile,
                                paths.SkinDirectory, paths.SkinFile,           paths.LanguageFile};
  all[u"colours"_s] = program.state.ThemeColors[0].Name + program.state.ThemeColors[1].Name;
  return all;
}

}  // namespace

class OpenThemeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void gameFolder_data() {
    QTest::addColumn<QString>("stored");  // behind the game folder's path; "-" for nothing
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<bool>("dialogComes");
    QTest::newRow("stored") << u""_s << u"not asked"_s << true;
    QTest::newRow("none, chosen") << u"-"_s << u"Vocora.exe"_s << true;
    QTest::newRow("none, Cancel") << u"-"_s << QString() << false;
    QTest::newRow("without files") << u"Skins\\"_s << u"Vocora.exe"_s << true;
    QTest::newRow("gone, Cancel") << u"gone\\"_s << QString() << false;
  }
  void gameFolder() {
    QFETCH(QString, stored);
    QFETCH(QString, chosen);
    QFETCH(bool, dialogComes);
    const GameFolder game;
    Program program(game, false);
    if (stored != u"-") program.form.Config.SetGameFolder(game.path() + stored);
    const QString before = program.form.Config.GameFolder();
    program.dialogs.files = {chosen.isEmpty() ? chosen : game.path() + chosen};
    const bool came = program.openDialog([&](Form3& dialog) {
      QCOMPARE(dialog.windowTitle(), u"Open Theme ["_s + game.path() + u']');
      dialog.Command2->click();
    });
    QCOMPARE(came, dialogComes);
    QCOMPARE(program.dialogs.asked.size(), stored.isEmpty() ? 0 : 1);
    QCOMPARE(program.form.Config.GameFolder(), dialogComes ? game.path() : before);
    QVERIFY(program.form.ToolWindow == nullptr && !program.enabled(3));
    // The same folder without themes.
    program.dialogs.asked.clear();
    program.dialogs.files = {game.path() + u"Vocora.exe"_s};
    QFile::remove(game.native(ThemeFile));
    QVERIFY(!program.openDialog([](Form3& dialog) { dialog.reject(); }));
    QCOMPARE(program.dialogs.asked.last(), u"Error: No Themes Found"_s);
  }

  void listsAndLabels() {
    const GameFolder game;
    game.write(u"Themes/beta.1.INI"_s, "[Theme]\nName=<b>Beta</b>\n");
    game.write(u"Themes/readme.txt"_s, "");
    Program program(game);
    QVERIFY(program.openDialog([](Form3& dialog) {
      const auto chosen = [&] {
        return QStringList{dialog.List1->Text(),  dialog.Label4->text(),  dialog.Label5->text(), dialog.List2->Text(),
                           dialog.Label9->text(), dialog.Label10->text(), dialog.Combo1->Text()}
            .join(u'|');
      };
      QCOMPARE(dialog.List1->ListCount(), 2);
      QCOMPARE(chosen(), u"Alpha|The Alpha theme|Ann|One|First|Bob|English"_s);
      dialog.List2->SetListIndex(1);
      QCOMPARE(chosen(), u"Alpha|The Alpha theme|Ann|Two|Second|Cid|English"_s);
      dialog.List1->SetListIndex(1);
      QCOMPARE(chosen(), u"beta.1|<b>Beta</b>|||||English"_s);
      QVERIFY(dialog.Label4->textFormat() == Qt::PlainText);
      QVERIFY(!dialog.Command1->isEnabled() && dialog.List2->ListCount() == 0);
      QTest::keyClick(&dialog, Qt::Key_Return);
      QVERIFY(dialog.isVisible());
      dialog.List1->SetListIndex(0);
      QVERIFY(dialog.Command1->isEnabled());
      QTest::keyClick(&dialog, Qt::Key_Escape);
      QVERIFY(!dialog.isVisible());
    }));
  }

  /// From files that are read-only; their working copies can be written.
  void opened() {
    const GameFolder game;
    for (const QString& file : {ThemeFile, SkinFile, LanguageFile}) game.setWritable(file, false);
    Program program(game);
    auto files = game.files();
    program.open();
    QVERIFY(program.state.ThemeOpened && !program.state.Changed);
    QCOMPARE(program.buttons(), u"+-++"_s);
    const mainwindows::Form1& form = program.form;
    QVERIFY(form.Combo1->isVisible() && form.Combo2->isVisible());
    QVERIFY(form.Label1->isHidden() && form.ProgressBar1->isHidden());
    QCOMPARE(form.Combo1->ListCount(), 9);
    QCOMPARE(form.Combo1->Text(), u"Blue"_s);
    const toolwindow::Form2& tools = program.tools();
    QVERIFY(tools.isVisible() && tools.List1->isEnabled() && tools.focusWidget() == tools.Combo1);
    QCOMPARE(tools.Combo1->ListCount(), 32);
    QCOMPARE(tools.Combo1->Text(), u"Loading Screen"_s);
    QCOMPARE(tools.List1->ListCount(), 8);
    QCOMPARE(tools.List1->ListIndex(), 0);
    for (const QString& file : {ThemeFile, SkinFile, LanguageFile}) files[file + u".tmp"_s] = files[file];
    QCOMPARE(game.files(), files);
    program.edit();
    QVERIFY(program.state.Changed && game.read(ThemeCopy).contains("X=77"));
    // The tool window ends with the theme, not by the user.
    for (const bool byUser : {false, true}) {
      QCloseEvent close;
      if (byUser) QSpontaneKeyEvent::setSpontaneous(&close);
      qApp->notify(&program.tools(), &close);
      QCOMPARE(close.isAccepted(), !byUser);
    }
  }

  void failedCopies_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("becomes");
    for (const QString& name : {ThemeFile, SkinFile, LanguageFile, u"Languages"_s}) {
      QTest::addRow("%s is gone", qPrintable(name)) << name << u"nothing"_s;
    }
    for (const QString& name : {SkinFile, ThemeCopy, SkinCopy, LanguageCopy}) {
      QTest::addRow("%s is a folder", qPrintable(name)) << name << u"a folder"_s;
    }
    QTest::newRow("a working copy that may not be written") << LanguageCopy << u"read-only"_s;
  }
  /// The files are spoilt while the dialog is up: with no theme open, and with one open that has changes.
  void failedCopies() {
    QFETCH(QString, name);
    QFETCH(QString, becomes);
    for (const bool dirty : {false, true}) {
      const GameFolder game;
      Program program(game);
      if (dirty) {
        program.open();
        program.edit();
        program.dialogs.boxes = {BoxAnswer::Yes};
      }
      const QVariantMap before = whole(program);
      QByteArray edited;
      QVERIFY(program.openDialog([&](Form3& dialog) {
        QDir(game.native(name)).removeRecursively();
        QFile::remove(game.native(name));
        if (becomes == u"a folder") QDir().mkdir(game.native(name));
        if (becomes == u"read-only") {
          game.write(name, "older");
          game.setWritable(name, false);
        }
        edited = game.read(ThemeCopy);
        if (!game.has(u"Languages"_s)) dialog.Combo1->Clear();
        dialog.Command1->click();
        QVERIFY(dialog.isVisible());
        QVERIFY2(program.status().startsWith(u"Error while saving temporary files ["), qPrintable(program.status()));
        dialog.reject();
      }));
      QCOMPARE(whole(program), before);
      if (dirty) QCOMPARE(game.read(ThemeCopy), edited);
    }
  }

  void languages() {
    const std::pair<QStringList, QString> cases[] = {{{u"A"_s, u"English"_s, u"F"_s}, u"English"_s},
                                                     {{u"Zulu"_s, u"Deutsch"_s, u"english"_s}, u"Deutsch"_s},
                                                     {{}, {}}};
    for (const auto& [names, selected] : cases) {
      const GameFolder game;
      for (const char* name : {"English", "Deutsch"}) {
        QFile::remove(game.native(u"Languages/%1.ini"_s.arg(QLatin1StringView(name))));
      }
      for (const QString& name : names) game.write(u"Languages/%1.ini"_s.arg(name), "");
      Program program(game);
      QString offered = u"no dialog"_s;
      program.openDialog([&](Form3& dialog) {
        offered = dialog.Combo1->Text();
        dialog.Command1->click();
        if (dialog.isVisible()) dialog.reject();
      });
      QCOMPARE(offered, selected);
      QCOMPARE(program.state.ThemeOpened, !names.isEmpty());
    }
  }

  void secondOpen_data() {
    QTest::addColumn<bool>("dirty");
    QTest::addColumn<bool>("yes");
    QTest::addColumn<bool>("cancel");
    QTest::newRow("clean, Cancel") << false << false << true;
    QTest::newRow("clean") << false << false << false;
    QTest::newRow("changes, No") << true << false << false;
    QTest::newRow("changes, Yes") << true << true << false;
  }
  void secondOpen() {
    QFETCH(bool, dirty);
    QFETCH(bool, yes);
    QFETCH(bool, cancel);
    const GameFolder game;
    game.write(u"Themes/Beta.ini"_s, "[Main]\n");
    QVERIFY(QDir().mkdir(game.native(u"Skins/Beta"_s)));
    game.write(u"Skins/Beta/Sole.ini"_s, "");
    Program program(game);
    program.open();
    program.edit();
    if (!dirty) program.click(2);
    const QVariantMap before = whole(program);
    program.dialogs.boxes = {yes ? BoxAnswer::Yes : BoxAnswer::No};
    const bool came = program.openDialog([&](Form3& dialog) {
      dialog.List1->SetListIndex(1);
      cancel ? dialog.reject() : dialog.Command1->click();
    });
    settle();
    QCOMPARE(program.dialogs.asked.size(), dirty ? 1 : 0);
    QCOMPARE(came, !dirty || yes);
    QVERIFY(game.read(ThemeCopy).contains("X=77"));
    if (!came || cancel) {
      QCOMPARE(whole(program), before);
      return;
    }
    QVERIFY(program.state.Paths.ThemeFile.endsWith(u"Beta.ini.tmp"));
    QVERIFY(!program.state.Changed && program.buttons() == u"+-++");
    QVERIFY(program.state.ThemeColors[0].Name.isEmpty() && program.state.ThemeColors[1].Name.isEmpty());
    QCOMPARE(program.tools().List1->ListCount(), 0);
    QVERIFY2(!program.form.Workspace->MarkVisible(), "the mark of the theme before");
    QVERIFY(program.form.Combo2->isHidden());
    QCOMPARE(program.form.findChildren<toolwindow::Form2*>().size(), 1);
    QCOMPARE(program.picture().pixelColor(400, 300), QColor(Qt::white));
  }
};

QTEST_MAIN(OpenThemeTest)
#include "open_theme_test.moc"
