#include "platform/ini_writing.h"
#include "support/real_input.h"

using namespace support;

namespace {

/// An edit: what is entered, what the grid shows then, and the file that it goes to.
struct EditRow {
  const char *object, *key, *text, *value, *file;
};

const char* const Theme = "Themes/Stagelight.ini";
const char* const Skin = "Skins/Stagelight/Neon.ini";
const char* const Language = "Languages/Deutsch.ini";

// One key of each group, all of the main screen.
const EditRow Edits[] = {
    {"MainStaticBar", "X", "12", "12", Theme},
    {"MainTextMotto", "Align", "1 = Middle", "1", Theme},
    {"MainTextTitle", "Font", "3 = Bold with dark Outline", "3", Theme},
    {"MainButtonSolo", "Visible", "0 = False", "0", Theme},
    {"MainStaticEqualizer", "Direction", "0 = Left to Right", "0", Theme},
    {"MainStaticFoot", "Type", "Font Black", "Font Black", Theme},
    {"MainStaticIcon", "Color", "P1Light", "P1Light", Theme},
    {"MainTextHelp", "Text", "Los! = [Enter];", "MAIN_HELP", Language},
    {"MainStaticIcon", "Tex", "GlyphGear", "GlyphGear", Theme},
    {"MainStaticBar", "Z", "0.75", "0.75", Theme},
};

/// Enters a text into the editor that is open, by mouse and keyboard; a colour's name is one of the players'.
void enter(toolwindow::Form2& tools, const char* text) {
  for (QLineEdit* box : {Editors(tools).Text1, Editors(tools).Text4, Editors(tools).Text2}) {
    if (box->isVisible()) type(*box, text);
  }
  if (Editors(tools).Combo4->isVisible()) pickEntry(*Editors(tools).Combo4, 2);
  for (QComboBox* box : {Editors(tools).Combo2, Editors(tools).Combo3, Editors(tools).Combo6}) {
    if (box->isVisible()) pickEntry(*box, box->findText(QLatin1StringView(text)));
  }
}

void chooseMainScreen(Program& program) {
  program.tools().screens().setFocus();
  key(program.tools(), Qt::Key_Home);
  key(program.tools(), Qt::Key_Down);
  QCOMPARE(program.tools().screens().Text(), u"Main Screen"_s);
}

}  // namespace

class WholeSessionTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void editSaveAnotherThemeReopen() {
    const GameFolder game;
    game.copySample();
    Program program(game);
    QVERIFY(QTest::qWaitForWindowExposed(&program.form));
    open(program, "Stagelight", "Neon", Qt::Key_Home);
    auto expected = game.files();
    toolwindow::Form2& tools = program.tools();
    chooseMainScreen(program);
    for (const EditRow& row : Edits) {
      pickNamed(tools.objects(), row.object);
      pickNamed(tools.values(), row.key);
      QVERIFY2(program.state.EditorShown && Editors(tools).Command1->isVisible(), row.key);
      settle();
      enter(tools, row.text);
      press(*Editors(tools).Command1);
      QCOMPARE(program.value(QLatin1StringView(row.key)), QLatin1StringView(row.value));
      QVERIFY2(!program.status().contains(u"Error"), qPrintable(program.status()));
      QVERIFY(program.enabled(2));
      QByteArray& file = expected[QLatin1StringView(row.file)];
      const bool words = row.file == Language;
      file = platform::setIniValue(file, words ? "Text" : row.object, words ? row.value : row.key,
                                   words ? row.text : row.value)
                 .value_or("not changed");
    }
    for (const char* file : {Theme, Skin, Language}) {
      const QString name = QLatin1StringView(file);
      expected[name + u".tmp"_s] = expected[name];
    }
    toolBar(program, 2);
    QVERIFY(!program.enabled(2));
    const auto files = game.files();
    for (const auto& [name, bytes] : files.asKeyValueRange()) QVERIFY2(bytes == expected[name], qPrintable(name));
    QCOMPARE(files.size(), expected.size());

    toolBar(program, 3);
    settle();
    QVERIFY(program.form.toolWindow() == nullptr && named<QLabel>(program.form, "Label1")->isVisible());
    QVERIFY(program.dialogs.asked.isEmpty());
    open(program, "Workbench", "Grey", Qt::Key_End);
    QCOMPARE(program.state.paths.ThemeFile.section(u'\\', -1), u"Workbench.ini.tmp"_s);
    QVERIFY(named<QLabel>(program.form, "Label1")->isHidden());
    open(program, "Stagelight", "Neon", Qt::Key_Home);
    chooseMainScreen(program);
    for (const EditRow& row : Edits) {
      pickNamed(program.tools().objects(), row.object);
      QCOMPARE(program.value(QLatin1StringView(row.key)), QLatin1StringView(row.value));
    }
    pickNamed(program.tools().objects(), "MainTextHelp");
    pickNamed(program.tools().values(), "Text");
    QCOMPARE(Editors(program.tools()).Text2->Text(), u"Los! = [Enter];"_s);
  }
};

QTEST_MAIN(WholeSessionTest)
#include "whole_session_test.moc"
