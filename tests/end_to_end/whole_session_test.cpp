#include <QTest>

#include "support/real_input.h"

using namespace Qt::StringLiterals;
using namespace support;

namespace {

/// An edit: what is entered, what the grid shows then, and the line of the file that it becomes.
struct EditRow {
  const char *object, *key, *text, *value, *file, *section, *line;
};

/// The file with the value of one key replaced, found without regard to case in the first section of the name.
QByteArray replaced(const QByteArray& file, const QByteArray& section, const QByteArray& key, const QByteArray& value) {
  const QByteArray lower = file.toLower();
  const qsizetype head = lower.indexOf("\n[" + section.toLower() + "]");
  const qsizetype line = lower.indexOf("\n" + key.toLower() + "=", head + 1);
  const qsizetype start = line + 1 + key.size() + 1;
  qsizetype end = start;
  while (file[end] != '\r' && file[end] != '\n') ++end;
  return file.left(start) + value + file.mid(end);
}

const char* const Theme = "Themes/Stagelight.ini";
const char* const Skin = "Skins/Stagelight/Neon.ini";
const char* const Language = "Languages/Deutsch.ini";

// One key of each group, all of the main screen.
const EditRow Edits[] = {
    {"MainStaticBar", "X", "12", "12", Theme, "MainStaticBar", "X"},
    {"MainTextMotto", "Align", "1 = Middle", "1", Theme, "MainTextMotto", "Align"},
    {"MainTextTitle", "Font", "3 = Bold with dark Outline", "3", Theme, "MainTextTitle", "Font"},
    {"MainButtonSolo", "Visible", "0 = False", "0", Theme, "MainButtonSolo", "Visible"},
    {"MainStaticEqualizer", "Direction", "0 = Left to Right", "0", Theme, "MainStaticEqualizer", "Direction"},
    {"MainStaticFoot", "Type", "Font Black", "Font Black", Theme, "MainStaticFoot", "Type"},
    {"MainStaticIcon", "Color", "P1Light", "P1Light", Theme, "MainStaticIcon", "Color"},
    {"MainTextHelp", "Text", "Los! = [Enter];", "MAIN_HELP", Language, "Text", "MAIN_HELP"},
    {"MainStaticIcon", "Tex", "GlyphGear", "GlyphGear", Theme, "MainStaticIcon", "Tex"},
    {"MainStaticBar", "Z", "0.75", "0.75", Theme, "MainStaticBar", "Z"},
};

/// Enters a text into the editor that is open, by mouse and keyboard; a colour's name is one of the players'.
void enter(toolwindow::Form2& tools, const char* text) {
  for (QLineEdit* box : {tools.Text1, tools.Text4, tools.Text2}) {
    if (box->isVisible()) type(*box, text);
  }
  if (tools.Combo4->isVisible()) pickEntry(*tools.Combo4, 2);
  for (QComboBox* box : {tools.Combo2, tools.Combo3, tools.Combo6}) {
    if (box->isVisible()) pickEntry(*box, box->findText(QLatin1StringView(text)));
  }
}

void chooseScreen(Program& program, int row) {
  program.tools().Combo1->setFocus();
  key(program.tools(), Qt::Key_Home);
  for (int i = 0; i < row; ++i) key(program.tools(), Qt::Key_Down);
}

}  // namespace

class WholeSessionTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    copyFolder(QStringLiteral(SAMPLE_FOLDER), game.native(QString()));
    program = std::make_unique<Program>(game);
    QVERIFY(QTest::qWaitForWindowExposed(&program->form));
  }
  void cleanupTestCase() { program.reset(); }

  void everyScreen() {
    open(*program, "Stagelight", "Neon", Qt::Key_Home);
    QCOMPARE(program->state.Paths.LanguageFile.section(u'\\', -1), u"Deutsch.ini.tmp"_s);
    QCOMPARE(program->state.Paths.SkinFile.section(u'\\', -1), u"Neon.ini.tmp"_s);
    toolwindow::Form2& tools = program->tools();
    QHash<QString, QStringList> objects;
    QImage before;
    for (int screen = 0; screen < 32; ++screen) {
      const QString name = tools.Combo1->Text();
      QCOMPARE(tools.Combo1->ListIndex(), screen);
      for (int row = 0; row < tools.List1->ListCount(); ++row) objects[name] += tools.List1->List(row);
      QVERIFY2(!objects[name].isEmpty(), qPrintable(name));
      QVERIFY2(!program->status().startsWith(u"Error"), qPrintable(name + program->status()));
      QCOMPARE(program->form.Combo2->isVisible(), program->state.ButtonCount > 0);
      QVERIFY(program->form.ProgressBar1->isHidden());
      const QImage picture = program->form.Workspace->Surface().image();
      QVERIFY2(picture != before, qPrintable(name));
      before = picture;
      key(tools, Qt::Key_Down);
    }
    // The views of the Sing and the Score screens: whose objects they show.
    const auto shows = [&](const char* screen, const char* object) {
      return objects[QLatin1StringView(screen)].contains(QLatin1StringView(object), Qt::CaseInsensitive);
    };
    const QList<QByteArray> players{"1 Player", "2 Player", "3 Player"};
    const QByteArray bars[] = {"SingP1SingBar", "SingP1TwoPSingBar", "SingP1ThreePSingBar"};
    const QByteArray names[] = {"ScoreTextName1", "ScoreTextName2", "ScoreTextName4"};
    for (int view = 0; view < 3; ++view) {
      for (int of = 0; of < 3; ++of) {
        QCOMPARE(shows("Sing Screen (" + players[view] + ")", bars[of]), view == of);
        QCOMPARE(shows("Score Screen (" + players[view] + ")", names[of]), view == of);
      }
    }
    QVERIFY(program->state.ThemeOpened && !program->state.Changed);
  }

  void editSaveReopen() {
    auto expected = game.files();
    chooseScreen(*program, 1);
    toolwindow::Form2& tools = program->tools();
    QCOMPARE(tools.Combo1->Text(), u"Main Screen"_s);
    for (const EditRow& row : Edits) {
      pickNamed(*tools.List1, row.object);
      pickNamed(*tools.ListView1, row.key);
      QVERIFY2(program->state.EditorShown && tools.Command1->isVisible(), row.key);
      QTest::qWait(20);
      enter(tools, row.text);
      press(*tools.Command1);
      QCOMPARE(program->value(QLatin1StringView(row.key)), QLatin1StringView(row.value));
      QVERIFY2(!program->status().startsWith(u"Error"), qPrintable(program->status()));
      QVERIFY(program->enabled(2));
      QByteArray& file = expected[QLatin1StringView(row.file)];
      file = replaced(file, row.section, row.line, row.file == Theme ? row.value : row.text);
    }
    for (const char* file : {Theme, Skin, Language}) {
      const QString name = QLatin1StringView(file);
      expected[name + u".tmp"_s] = expected[name];
    }
    toolBar(*program, 2);
    QVERIFY(!program->enabled(2));
    const auto files = game.files();
    QCOMPARE(files.keys(), expected.keys());
    for (const auto& [name, bytes] : files.asKeyValueRange()) QVERIFY2(bytes == expected[name], qPrintable(name));

    toolBar(*program, 3);
    support::settle();
    QVERIFY(program->form.ToolWindow == nullptr && program->form.Label1->isVisible());
    QVERIFY(program->dialogs.asked.isEmpty());
    open(*program, "Workbench", "Grey", Qt::Key_End);
    QCOMPARE(program->state.Paths.ThemeFile.section(u'\\', -1), u"Workbench.ini.tmp"_s);
    QVERIFY(program->form.Label1->isHidden());
    open(*program, "Stagelight", "Neon", Qt::Key_Home);
    chooseScreen(*program, 1);
    for (const EditRow& row : Edits) {
      pickNamed(*program->tools().List1, row.object);
      QCOMPARE(program->value(QLatin1StringView(row.key)), QLatin1StringView(row.value));
    }
    pickNamed(*program->tools().List1, "MainTextHelp");
    pickNamed(*program->tools().ListView1, "Text");
    QCOMPARE(program->tools().Text2->Text(), u"Los! = [Enter];"_s);
  }

 private:
  support::GameFolder game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(WholeSessionTest)
#include "whole_session_test.moc"
