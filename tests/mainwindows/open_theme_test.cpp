#include <QCloseEvent>
#include <QTest>

#include "platform/paths.h"
#include "support/windows.h"

using namespace Qt::StringLiterals;
using mainwindows::Form3;
using platform::BoxAnswer;
using support::GameFolder;
using support::Program;

using Spoil = void (*)(const GameFolder& game);

namespace {

const QString ThemeFile = u"Themes/Alpha.ini"_s;
const QString SkinFile = u"Skins/Alpha/One.ini"_s;
const QString LanguageFile = u"Languages/English.ini"_s;

/// Everything of the program that Open may change.
QVariantMap whole(const Program& program) {
  const auto& state = program.state;
  QVariantMap all{{u"opened"_s, state.ThemeOpened},
                  {u"changed"_s, state.Changed},
                  {u"scheme"_s, program.form.Combo1->isVisible()},
                  {u"tools"_s, program.form.ToolWindow != nullptr},
                  {u"picture"_s, program.form.Workspace->Surface().image()},
                  {u"colours"_s, state.ThemeColors[0].Name + state.ThemeColors[1].Name}};
  const themefiles::ThemePaths& paths = state.Paths;
  all[u"paths"_s] = QStringList{paths.ExeDirectory,  paths.LanguagesDirectory, paths.ThemeFile,
                                paths.SkinDirectory, paths.SkinFile,           paths.LanguageFile};
  for (int button = 1; button <= 4; ++button) all[QString::number(button)] = program.enabled(button);
  return all;
}

void commitX(Program& program, const char* value) {
  program.tag(u"LoadingStaticA"_s);
  program.row(u"X"_s);
  program.tools().Text1->SetText(QLatin1StringView(value));
  program.tools().Command1->click();
}

}  // namespace

class OpenThemeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { game = std::make_unique<GameFolder>(); }
  void cleanup() { game.reset(); }

  void gameFolder_data() {
    QTest::addColumn<QString>("stored");  // behind the game folder's path; "-" for nothing
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<bool>("asks");
    QTest::addColumn<bool>("dialogComes");
    QTest::newRow("stored") << QString() << QString() << false << true;
    QTest::newRow("none, chosen") << u"-"_s << u"Vocora.exe"_s << true << true;
    QTest::newRow("none, Cancel") << u"-"_s << QString() << true << false;
    QTest::newRow("without files") << u"Skins\\"_s << u"Vocora.exe"_s << true << true;
    QTest::newRow("gone, Cancel") << u"gone\\"_s << QString() << true << false;
  }
  void gameFolder() {
    QFETCH(QString, stored);
    QFETCH(QString, chosen);
    QFETCH(bool, asks);
    QFETCH(bool, dialogComes);
    Program program(*game, false);
    if (stored != u"-") program.form.Config.SetGameFolder(game->path() + stored);
    const QString before = program.form.Config.GameFolder();
    program.dialogs.files = {chosen.isEmpty() ? chosen : game->path() + chosen};
    QString caption;
    const bool came = program.openDialog([&](Form3& dialog) {
      caption = dialog.windowTitle();
      dialog.Command2->click();
    });
    QCOMPARE(came, dialogComes);
    QCOMPARE(program.dialogs.asked.size(), asks ? 1 : 0);
    if (dialogComes) QCOMPARE(caption, u"Open Theme ["_s + game->path() + u']');
    QCOMPARE(program.form.Config.GameFolder(), dialogComes ? game->path() : before);
    QVERIFY(program.form.ToolWindow == nullptr && !program.enabled(3));
  }

  void noThemes() {
    QVERIFY(QFile::rename(game->native(ThemeFile), game->native(u"Themes/Alpha.txt"_s)));
    Program program(*game);
    QVERIFY(!program.openDialog([](Form3& dialog) { dialog.reject(); }));
    QCOMPARE(program.dialogs.asked, QStringList{u"Error: No Themes Found"_s});
  }

  void listsAndLabels() {
    game->write(u"Themes/beta.1.INI"_s, "[Theme]\nName=<b>Beta</b>\n");
    game->write(u"Themes/readme.txt"_s, "");
    Program program(*game);
    QVERIFY(program.openDialog([](Form3& dialog) {
      const auto labels = [&] {
        return QStringList{dialog.Label4->text(), dialog.Label5->text(), dialog.Label9->text(), dialog.Label10->text()}
            .join(u'|');
      };
      QCOMPARE(dialog.List1->ListCount(), 2);
      QCOMPARE(dialog.List1->Text(), u"Alpha"_s);
      QCOMPARE(dialog.List2->Text(), u"One"_s);
      QCOMPARE(labels(), u"The Alpha theme|Ann|First|Bob"_s);
      QCOMPARE(dialog.Combo1->Text(), u"English"_s);
      dialog.List2->SetListIndex(1);
      QCOMPARE(labels(), u"The Alpha theme|Ann|Second|Cid"_s);
      dialog.List1->SetListIndex(1);
      QCOMPARE(dialog.List1->Text(), u"beta.1"_s);
      QCOMPARE(labels(), u"<b>Beta</b>|||"_s);
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

  void opened() {
    Program program(*game);
    const auto before = game->files();
    program.open();
    const QString folder = game->path();
    const themefiles::ThemePaths& paths = program.state.Paths;
    QCOMPARE(paths.ThemeFile, folder + u"Themes\\Alpha.ini.tmp"_s);
    QCOMPARE(paths.SkinDirectory, folder + u"Skins\\Alpha"_s);
    QCOMPARE(paths.SkinFile, folder + u"Skins\\Alpha\\One.ini.tmp"_s);
    QCOMPARE(paths.LanguageFile, folder + u"\\Languages\\English.ini.tmp"_s);
    QVERIFY(program.state.ThemeOpened && !program.state.Changed);
    QVERIFY(program.enabled(1) && !program.enabled(2) && program.enabled(3) && program.enabled(4));
    QVERIFY(program.form.Combo1->isVisible() && program.form.Combo2->isVisible());
    QCOMPARE(program.form.Combo1->ListCount(), 9);
    QCOMPARE(program.form.Combo1->Text(), u"Blue"_s);
    QVERIFY(program.form.Label1->isHidden() && program.form.ProgressBar1->isHidden());
    const toolwindow::Form2& tools = program.tools();
    QVERIFY(tools.isVisible() && tools.List1->isEnabled() && tools.focusWidget() == tools.Combo1);
    QCOMPARE(tools.Combo1->ListCount(), 32);
    QCOMPARE(tools.Combo1->Text(), u"Loading Screen"_s);
    QCOMPARE(tools.List1->ListCount(), 8);
    QCOMPARE(tools.List1->ListIndex(), 0);
    auto after = game->files();
    QCOMPARE(after.take(support::ThemeCopy), before[ThemeFile]);
    QCOMPARE(after.take(support::SkinCopy), before[SkinFile]);
    QCOMPARE(after.take(support::LanguageCopy), before[LanguageFile]);
    QCOMPARE(after, before);
    QCloseEvent byCode;
    QApplication::sendEvent(&program.tools(), &byCode);
    QVERIFY(byCode.isAccepted());
    QCloseEvent byUser;
    QSpontaneKeyEvent::setSpontaneous(&byUser);
    qApp->notify(&program.tools(), &byUser);
    QVERIFY(!byUser.isAccepted());
  }

  void failedCopies_data() {
    QTest::addColumn<Spoil>("spoil");
    QTest::newRow("the theme is gone") << Spoil([](const GameFolder& g) { QFile::remove(g.native(ThemeFile)); });
    QTest::newRow("the skin is gone") << Spoil([](const GameFolder& g) { QFile::remove(g.native(SkinFile)); });
    QTest::newRow("the language is gone") << Spoil([](const GameFolder& g) { QFile::remove(g.native(LanguageFile)); });
    QTest::newRow("the skin is a folder") << Spoil([](const GameFolder& g) {
      QFile::remove(g.native(SkinFile));
      QDir().mkdir(g.native(SkinFile));
    });
    for (const QString& copy : {support::ThemeCopy, support::SkinCopy, support::LanguageCopy}) {
      QTest::addRow("a folder in place of %s", qPrintable(copy)) << Spoil([](const GameFolder& g) {
        const QString tag = QString::fromLatin1(QTest::currentDataTag());
        const QString native = g.native(tag.section(u' ', -1));
        QFile::remove(native);
        QDir().mkdir(native);
      });
    }
    QTest::newRow("a working copy that may not be written") << Spoil([](const GameFolder& g) {
      g.write(support::LanguageCopy, "older");
      g.setWritable(support::LanguageCopy, false);
    });
    QTest::newRow("no languages") << Spoil(
        [](const GameFolder& g) { QDir(g.native(u"Languages"_s)).removeRecursively(); });
  }
  /// The files are spoilt while the dialog is up: with no theme open, and with one open that has changes.
  void failedCopies() {
    QFETCH(Spoil, spoil);
    for (const bool dirty : {false, true}) {
      game = std::make_unique<GameFolder>();
      Program program(*game);
      if (dirty) {
        program.open();
        commitX(program, "77");
        program.dialogs.boxes = {BoxAnswer::Yes};
      }
      const QVariantMap before = whole(program);
      QByteArray edited;
      QVERIFY(program.openDialog([&](Form3& dialog) {
        spoil(*game);
        edited = game->read(support::ThemeCopy);
        if (!QFileInfo::exists(game->native(u"Languages"_s))) dialog.Combo1->Clear();
        dialog.Command1->click();
        QVERIFY(dialog.isVisible());
        QVERIFY2(program.status().startsWith(u"Error while saving temporary files ["), qPrintable(program.status()));
        dialog.reject();
      }));
      QCOMPARE(whole(program), before);
      if (dirty) QCOMPARE(game->read(support::ThemeCopy), edited);
    }
  }

  void readOnlyGameFilesOpen() {
    for (const QString& file : {ThemeFile, SkinFile, LanguageFile}) game->setWritable(file, false);
    Program program(*game);
    program.open();
    commitX(program, "77");
    QVERIFY(program.state.Changed);
    QVERIFY(game->read(support::ThemeCopy).contains("X=77"));
  }

  void languages_data() {
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("selected");
    QTest::newRow("English among them") << QStringList{u"A"_s, u"English"_s, u"F"_s} << u"English"_s;
    QTest::newRow("without English") << QStringList{u"Zulu"_s, u"Deutsch"_s, u"english"_s} << u"Deutsch"_s;
    QTest::newRow("none") << QStringList() << QString();
  }
  void languages() {
    QFETCH(QStringList, names);
    QDir folder(game->native(u"Languages"_s));
    folder.removeRecursively();
    QVERIFY(folder.mkpath(folder.path()));
    for (const QString& name : names) game->write(u"Languages/%1.ini"_s.arg(name), "");
    Program program(*game);
    QVERIFY(program.openDialog([&](Form3& dialog) {
      QTEST(dialog.Combo1->Text(), "selected");
      dialog.Command1->click();
      QCOMPARE(dialog.isVisible(), names.isEmpty());
      if (names.isEmpty()) dialog.reject();
    }));
    QCOMPARE(program.state.ThemeOpened, !names.isEmpty());
  }

  void secondOpen_data() {
    QTest::addColumn<bool>("dirty");
    QTest::addColumn<bool>("yes");
    QTest::addColumn<bool>("cancel");
    QTest::newRow("clean") << false << false << false;
    QTest::newRow("clean, Cancel") << false << false << true;
    QTest::newRow("changes, No") << true << false << false;
    QTest::newRow("changes, Yes, Cancel") << true << true << true;
    QTest::newRow("changes, Yes") << true << true << false;
  }
  void secondOpen() {
    QFETCH(bool, dirty);
    QFETCH(bool, yes);
    QFETCH(bool, cancel);
    game->write(u"Themes/Beta.ini"_s, "[Main]\n");
    QVERIFY(QDir().mkdir(game->native(u"Skins/Beta"_s)));
    game->write(u"Skins/Beta/Sole.ini"_s, "");
    Program program(*game);
    program.open();
    commitX(program, "77");
    if (!dirty) program.click(2);
    const QVariantMap before = whole(program);
    program.dialogs.boxes = {yes ? BoxAnswer::Yes : BoxAnswer::No};
    const bool came = program.openDialog([&](Form3& dialog) {
      dialog.List1->SetListIndex(1);
      cancel ? dialog.reject() : dialog.Command1->click();
    });
    support::settle();
    QCOMPARE(program.dialogs.asked.size(), dirty ? 1 : 0);
    QCOMPARE(came, !dirty || yes);
    QVERIFY(game->read(support::ThemeCopy).contains("X=77"));
    if (!came || cancel) {
      QCOMPARE(whole(program), before);
      return;
    }
    QVERIFY(program.state.Paths.ThemeFile.endsWith(u"Beta.ini.tmp"));
    QVERIFY(!program.state.Changed && !program.enabled(2) && program.enabled(3));
    QVERIFY(program.state.ThemeColors[0].Name.isEmpty() && program.state.ThemeColors[1].Name.isEmpty());
    QCOMPARE(program.tools().List1->ListCount(), 0);
    QVERIFY2(!program.form.Workspace->MarkVisible(), "the mark of the theme before");
    QVERIFY(program.form.Combo2->isHidden());
    QCOMPARE(program.form.findChildren<toolwindow::Form2*>().size(), 1);
    QCOMPARE(program.form.Workspace->Surface().image().pixelColor(400, 300), QColor(Qt::white));
  }

 private:
  std::unique_ptr<GameFolder> game;
};

QTEST_MAIN(OpenThemeTest)
#include "open_theme_test.moc"
