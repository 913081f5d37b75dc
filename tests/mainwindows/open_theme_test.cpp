#include <QTest>

#include "platform/paths.h"
#include "support/windows.h"

using mainwindows::Form3;
using platform::BoxAnswer;
using support::GameFolder;
using support::Program;

using Spoil = void (*)(const GameFolder& game);

namespace {

const QString ThemeFile = QStringLiteral("Themes/Alpha.ini");
const QString SkinFile = QStringLiteral("Skins/Alpha/One.ini");
const QString LanguageFile = QStringLiteral("Languages/English.ini");

/// Everything of the program that Open may change.
QVariantMap whole(const Program& program) {
  const auto& state = program.state;
  QVariantMap all{{QStringLiteral("opened"), state.ThemeOpened},
                  {QStringLiteral("changed"), state.Changed},
                  {QStringLiteral("scheme"), program.form.Combo1->isVisible()},
                  {QStringLiteral("tools"), program.form.ToolWindow != nullptr},
                  {QStringLiteral("picture"), program.form.Workspace->Surface().image()},
                  {QStringLiteral("colours"), state.ThemeColors[0].Name + state.ThemeColors[1].Name}};
  const themefiles::ThemePaths& paths = state.Paths;
  all[QStringLiteral("paths")] = QStringList{paths.ExeDirectory,  paths.LanguagesDirectory, paths.ThemeFile,
                                             paths.SkinDirectory, paths.SkinFile,           paths.LanguageFile};
  for (int button = 1; button <= 4; ++button) all[QString::number(button)] = program.enabled(button);
  return all;
}

void commitX(Program& program, const char* value) {
  program.tag(QStringLiteral("LoadingStaticA"));
  program.row(QStringLiteral("X"));
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
    QTest::newRow("none, chosen") << QStringLiteral("-") << QStringLiteral("Vocora.exe") << true << true;
    QTest::newRow("none, Cancel") << QStringLiteral("-") << QString() << true << false;
    QTest::newRow("without files") << QStringLiteral("Skins\\") << QStringLiteral("Vocora.exe") << true << true;
    QTest::newRow("gone, Cancel") << QStringLiteral("gone\\") << QString() << true << false;
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
    if (dialogComes) QCOMPARE(caption, QStringLiteral("Open Theme [") + game->path() + u']');
    QCOMPARE(program.form.Config.GameFolder(), dialogComes ? game->path() : before);
    QVERIFY(program.form.ToolWindow == nullptr && !program.enabled(3));
  }

  void noThemes() {
    QVERIFY(QFile::rename(game->native(ThemeFile), game->native(QStringLiteral("Themes/Alpha.txt"))));
    Program program(*game);
    QVERIFY(!program.openDialog([](Form3& dialog) { dialog.reject(); }));
    QCOMPARE(program.dialogs.asked, QStringList{QStringLiteral("Error: No Themes Found")});
  }

  void listsAndLabels() {
    game->write(QStringLiteral("Themes/beta.1.INI"), "[Theme]\nName=<b>Beta</b>\n");
    game->write(QStringLiteral("Themes/readme.txt"), "");
    Program program(*game);
    QVERIFY(program.openDialog([](Form3& dialog) {
      const auto labels = [&] {
        return QStringList{dialog.Label4->text(), dialog.Label5->text(), dialog.Label9->text(), dialog.Label10->text()}
            .join(u'|');
      };
      QCOMPARE(dialog.List1->ListCount(), 2);
      QCOMPARE(dialog.List1->Text(), QStringLiteral("Alpha"));
      QCOMPARE(dialog.List2->Text(), QStringLiteral("One"));
      QCOMPARE(labels(), QStringLiteral("The Alpha theme|Ann|First|Bob"));
      QCOMPARE(dialog.Combo1->Text(), QStringLiteral("English"));
      dialog.List2->SetListIndex(1);
      QCOMPARE(labels(), QStringLiteral("The Alpha theme|Ann|Second|Cid"));
      dialog.List1->SetListIndex(1);
      QCOMPARE(dialog.List1->Text(), QStringLiteral("beta.1"));
      QCOMPARE(labels(), QStringLiteral("<b>Beta</b>|||"));
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
    QCOMPARE(paths.ThemeFile, folder + QStringLiteral("Themes\\Alpha.ini.tmp"));
    QCOMPARE(paths.SkinDirectory, folder + QStringLiteral("Skins\\Alpha"));
    QCOMPARE(paths.SkinFile, folder + QStringLiteral("Skins\\Alpha\\One.ini.tmp"));
    QCOMPARE(paths.LanguageFile, folder + QStringLiteral("\\Languages\\English.ini.tmp"));
    QVERIFY(program.state.ThemeOpened && !program.state.Changed);
    QVERIFY(program.enabled(1) && !program.enabled(2) && program.enabled(3) && program.enabled(4));
    QVERIFY(program.form.Combo1->isVisible() && program.form.Combo2->isVisible());
    QCOMPARE(program.form.Combo1->ListCount(), 9);
    QCOMPARE(program.form.Combo1->Text(), QStringLiteral("Blue"));
    QVERIFY(program.form.Label1->isHidden() && program.form.ProgressBar1->isHidden());
    const toolwindow::Form2& tools = program.tools();
    QVERIFY(tools.isVisible() && tools.List1->isEnabled() && tools.focusWidget() == tools.Combo1);
    QCOMPARE(tools.Combo1->ListCount(), 32);
    QCOMPARE(tools.Combo1->Text(), QStringLiteral("Loading Screen"));
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
        [](const GameFolder& g) { QDir(g.native(QStringLiteral("Languages"))).removeRecursively(); });
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
        if (!QFileInfo::exists(game->native(QStringLiteral("Languages")))) dialog.Combo1->Clear();
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
    QTest::newRow("English among them") << QStringList{QStringLiteral("A"), QStringLiteral("English"),
                                                       QStringLiteral("F")}
                                        << QStringLiteral("English");
    QTest::newRow("without English") << QStringList{QStringLiteral("Zulu"), QStringLiteral("Deutsch"),
                                                    QStringLiteral("english")}
                                     << QStringLiteral("Deutsch");
    QTest::newRow("none") << QStringList() << QString();
  }
  void languages() {
    QFETCH(QStringList, names);
    QDir folder(game->native(QStringLiteral("Languages")));
    folder.removeRecursively();
    QVERIFY(folder.mkpath(folder.path()));
    for (const QString& name : names) game->write(QStringLiteral("Languages/%1.ini").arg(name), "");
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
    game->write(QStringLiteral("Themes/Beta.ini"), "[Colors]\nGreen=0 255 0\n[Main]\n");
    QVERIFY(QDir().mkdir(game->native(QStringLiteral("Skins/Beta"))));
    game->write(QStringLiteral("Skins/Beta/Sole.ini"), "");
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
    QCOMPARE(program.state.ThemeColors[0].Name, QStringLiteral("Green"));
    QCOMPARE(program.state.ThemeColors[1].Name, QString());
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
