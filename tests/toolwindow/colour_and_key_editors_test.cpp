#include <QTest>

#include "support/windows.h"

using namespace Qt::StringLiterals;
using controls::Cause;
using platform::BoxAnswer;
using support::Program;
using toolwindow::Form2;

namespace {

void chooseGroup(Program& program, int group) {
  program.tools().Combo4->setCurrentIndex(group);
  Q_EMIT program.tools().Combo4->Click(Cause::User);
}

QStringList entries(const controls::ComboBox& list) {
  QStringList all;
  for (int i = 0; i < list.ListCount(); ++i) all += list.List(i);
  return all;
}

QColor swatch(Form2& form) {
  return form.Command2->BackColor();
}

QPushButton* asButton(QPushButton* button) {
  return button;
}

QStringList names(const Program& program) {
  QStringList all;
  for (const themefiles::NamedColor& row : program.state.ThemeColors) {
    if (!row.Name.isEmpty()) all += row.Name;
  }
  return all;
}

/// The colours of the theme in memory, "name=value" each.
QStringList table(const Program& program) {
  QStringList rows;
  for (const themefiles::NamedColor& row : program.state.ThemeColors) {
    if (!row.Name.isEmpty()) rows += row.Name + u'=' + row.Value;
  }
  return rows;
}

}  // namespace

class ColourAndKeyEditorsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    game = std::make_unique<support::GameFolder>();
    program = std::make_unique<Program>(*game);
    program->open();
    QVERIFY(program->form.ToolWindow != nullptr);
  }
  void cleanup() {
    program.reset();
    game.reset();
  }

  void colourButtonsEventByEvent() {
    Form2& tools = program->tools();
    const auto states = [&] {
      QString shown;
      for (const QWidget* button : std::initializer_list<QWidget*>{tools.Command3, tools.Command2, tools.Command5}) {
        shown += button->isEnabled() ? u'+' : u'-';
      }
      return shown;
    };
    const auto row = [&](const char* name) { program->soleRow(u"COLOR"_s, QLatin1StringView(name)); };
    QCOMPARE(states(), u"+++"_s);
    row("P2Light");
    QCOMPARE(states(), u"+++"_s);
    QCOMPARE(swatch(tools), QColor(251, 135, 135));
    QCOMPARE(tools.Combo3->ListCount(), 18);
    chooseGroup(*program, 1);
    QCOMPARE(states(), u"---"_s);
    QCOMPARE(entries(*tools.Combo3), QStringList({u"ColorDark"_s, u"ColorLight"_s, u"ColorLightest"_s}));
    QCOMPARE(swatch(tools), QColor(71, 175, 247));  // the scheme Blue
    row("Lost");
    QCOMPARE(states(), u"---"_s);
    QCOMPARE(swatch(tools), QColor(150, 150, 150));
    QCOMPARE(tools.Combo4->ListIndex(), 1);
    row("Blue");
    QCOMPARE(states(), u"+-+"_s);
    QCOMPARE(swatch(tools), QColor(30, 60, 200));
    chooseGroup(*program, 2);
    QCOMPARE(states(), u"---"_s);
    chooseGroup(*program, 0);
    QCOMPARE(states(), u"+++"_s);
    QCOMPARE(tools.Combo3->Text(), u"Red"_s);
    program->form.Combo1->SetText(u"Brown"_s);
    row("ColorLightest");
    QCOMPARE(swatch(tools), QColor(229, 204, 165));
  }

  void colourOperations_data() {
    QTest::addColumn<QString>("shown");  // in Combo3, and its swatch
    QTest::addColumn<QColor>("paint");
    QTest::addColumn<QString>("asked");   // the last dialog
    QTest::addColumn<QString>("colors");  // of table and file
    QTest::addColumn<QString>("status");
    const auto add = [](const char* act, const char* shown, const QColor& paint, const char* asked, const char* colors,
                        const char* status) {
      QTest::newRow(act) << QString::fromLatin1(shown) << paint << QString::fromLatin1(asked)
                         << QString::fromLatin1(colors) << QString::fromLatin1(status);
    };
    const char* const kept = "Kept in the working copy; the next Update makes Save available";
    const char* const same = "Red=200 40 40,Blue=30 60 200";
    const char* const naming = "New Color: Name of the New Color:";
    const char* const removal = "Delete Color: Really delete this Color?\n\nRed";
    const QColor isRed(200, 40, 40);
    add("change Red", "Red", QColor(1, 2, 3), "colour: #c82828", "Red=1 2 3,Blue=30 60 200", kept);
    add("change Red, Cancel", "Red", isRed, "colour: #c82828", same, "");
    add("change Red, read-only", "Red", isRed, "colour: #c82828", same, "Error while writing tempfile [");
    add("change none", "", isRed, "", same, "");
    add("change P1Dark", "P1Dark", QColor(1, 2, 3), "colour: #47aff7", same, "");
    add("add Sea green", "Sea green", QColor(150, 150, 150), naming,
        "Red=200 40 40,Blue=30 60 200,Sea green=150 150 150", kept);
    add("add ", "Red", isRed, naming, same, "");
    add("add rED", "Red", isRed, "Error: Color already exist!", same, "");
    add("add a=b", "Red", isRed, "Error: This name can't be used!", same, "");
    add("add Sea, read-only", "Red", isRed, naming, same, "Error while adding colors [");
    add("remove Red", "", QColor(212, 208, 200), removal, "Blue=30 60 200", kept);
    add("remove Red, No", "Red", isRed, removal, same, "");
    add("remove Red, read-only", "Red", isRed, removal, same, "Error while writing tempfile [");
    add("remove P1Dark", "P1Dark", QColor(71, 175, 247), "Delete Color: Really delete this Color?\n\nP1Dark", same, "");
  }
  void colourOperations() {
    QFETCH(QString, asked);
    QFETCH(QString, colors);
    QFETCH(QString, status);
    const QString act = QString::fromLatin1(QTest::currentDataTag());
    const QString object = act.section(u' ', 1).section(u',', 0, 0);
    Form2& tools = program->tools();
    program->soleRow(u"COLOR"_s, object == u"P1Dark" ? object : u"Red"_s);
    if (object == u"none") tools.Combo3->SetListIndex(-1);
    program->form.ShowStatus(QString());
    if (act.endsWith(u"read-only")) game->setWritable(support::ThemeCopy, false);
    if (!act.endsWith(u"Cancel")) program->dialogs.colors = {QColor(1, 2, 3)};
    program->dialogs.inputs = {object};
    program->dialogs.boxes = {act.endsWith(u"No") ? BoxAnswer::No : BoxAnswer::Yes};
    (act.startsWith(u"add")      ? tools.Command3
     : act.startsWith(u"remove") ? tools.Command5
                                 : asButton(tools.Command2))
        ->click();
    QCOMPARE(program->dialogs.asked.value(program->dialogs.asked.size() - 1), asked);
    QTEST(tools.Combo3->Text(), "shown");
    QTEST(swatch(tools), "paint");
    if (object != u"P1Dark") QCOMPARE(entries(*tools.Combo3), names(*program));
    QCOMPARE(table(*program).join(u','), colors);
    const QByteArray section = "[Colors]\r\n" + colors.toLatin1().replace(",", "\r\n") + "\r\n[Loading]\r\n";
    QVERIFY2(game->read(support::ThemeCopy).contains(section), section.constData());
    const QString told = program->status();
    QVERIFY2(status.isEmpty() ? told.isEmpty() : told.startsWith(status), qPrintable(told));
    QVERIFY(!program->state.Changed && !program->enabled(2));
  }

  void aFullTableTakesNoColour() {
    program->soleRow(u"COLOR"_s, u"Red"_s);
    for (int i = 2; i < 100; ++i) program->state.ThemeColors.at(i) = {u"C%1"_s.arg(i), u"1 2 3"_s};
    program->dialogs.inputs = {u"One more"_s};
    program->tools().Command3->click();
    QCOMPARE(program->status(), u"Error while adding colors []"_s);
    QVERIFY(!game->read(support::ThemeCopy).contains("One more"));
    QCOMPARE(program->tools().Combo3->ListCount(), 2);
  }

  void keyOperations_data() {
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QByteArray>("removed");  // from the file
    QTest::addColumn<QByteArray>("added");    // at its end
    QTest::addColumn<QString>("shown");
    for (const bool text : {true, false}) {
      const QString key = text ? u"HELLO"_s : u"Plate"_s;
      const QByteArray line = text ? "HELLO=Hello there\r\n" : "Plate=plate.png\r\n";
      const QString naming = text ? u"New TextKey: Name of the New Key:"_s : u"New TextureKey: Name of the New Key:"_s;
      const QString removal = u"Delete Key: Really delete this Key?\n\n"_s + key;
      const auto add = [=](const char* act, const QString& asked, const QByteArray& removed, const QByteArray& added,
                           const QString& shown) {
        QTest::addRow("%s: %s", text ? "text" : "texture", act) << asked << removed << added << shown;
      };
      add("add New one", naming, "", "New one=\r\n", u"New one"_s);
      add("add ", naming, "", "", key);
      add(text ? "add hellO" : "add plAte", u"Error: Key already exist!"_s, "", "", key);
      add("add [x", u"Error: This name can't be used!"_s, "", "", key);
      add("add \xff", naming, "", "\xff=\r\n", u"\u00ff"_s);
      add("add Sea, read-only", naming, "", "", key);
      add("remove it", removal, line, "", {});
      add("remove it, No", removal, "", "", key);
      add("remove it, read-only", removal, "", "", key);
      add("remove none", {}, "", "", {});
    }
  }
  void keyOperations() {
    QFETCH(QString, asked);
    QFETCH(QByteArray, removed);
    QFETCH(QByteArray, added);
    const QByteArray tag = QTest::currentDataTag();
    const bool text = tag.startsWith("text:");
    const QByteArray act = tag.mid(tag.indexOf(": ") + 2);
    Form2& tools = program->tools();
    controls::ComboBox& list = text ? *tools.Combo5 : *tools.Combo6;
    const QString copy = text ? support::LanguageCopy : support::SkinCopy;
    program->soleRow(text ? u"TEXT"_s : u"TEX"_s, text ? u"HELLO"_s : u"Plate"_s);
    QStringList keys = entries(list);
    if (!added.isEmpty()) keys += QString::fromLatin1(added.chopped(3));
    if (!removed.isEmpty()) keys.removeAt(text ? 0 : 1);
    const QByteArray file = game->read(copy).replace(removed, "") + added;
    if (act.endsWith("read-only")) game->setWritable(copy, false);
    if (act == "remove none") list.SetListIndex(-1);
    const QString box = added.isEmpty() && removed.isEmpty() ? (text ? tools.Text2 : tools.Text3)->Text() : QString();
    program->dialogs.inputs = {QString::fromLatin1(act.mid(4)).section(u',', 0, 0)};
    program->dialogs.boxes = {act.endsWith("No") ? BoxAnswer::No : BoxAnswer::Yes};
    QPushButton* const buttons[] = {tools.Command9, tools.Command7, tools.Command8, tools.Command6};
    buttons[(act.startsWith("add") ? 2 : 0) + (text ? 1 : 0)]->click();
    QCOMPARE(program->dialogs.asked.value(program->dialogs.asked.size() - 1), asked);
    QCOMPARE(game->read(copy), file);
    QCOMPARE(entries(list), keys);
    QTEST(list.Text(), "shown");
    QCOMPARE((text ? tools.Text2 : tools.Text3)->Text(), box);
    QCOMPARE(program->status().startsWith(u"Error while writing tempfile ["), act.endsWith("read-only"));
    QVERIFY(!program->state.Changed);
  }

  void image_data() {
    QTest::addColumn<QString>("chosen");  // in the game folder; empty is Cancel
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("refused");
    QTest::newRow("in the folder") << u"Skins\\Alpha\\back.png"_s << u"back.png"_s << false;
    QTest::newRow("by another way") << u"Skins\\\\alpha\\back.png"_s << u"back.png"_s << false;
    QTest::newRow("in a folder below") << u"Skins\\Alpha\\sub\\x.png"_s << u"plate.png"_s << true;
    QTest::newRow("Cancel") << QString() << u"plate.png"_s << false;
  }
  void image() {
    QFETCH(QString, chosen);
    QFETCH(bool, refused);
    QVERIFY(QDir().mkpath(game->native(u"Skins/Alpha/sub"_s)));
    program->soleRow(u"TEX"_s, u"Plate"_s);
    program->dialogs.files = {chosen.isEmpty() ? chosen : game->path() + chosen};
    program->tools().Command4->click();
    QTEST(program->tools().Text3->Text(), "shown");
    QVERIFY(program->dialogs.asked.first().endsWith(game->path() + u"Skins\\Alpha"_s));
    QCOMPARE(program->dialogs.asked.last() == u"Error: Image must be in "_s + game->path() + u"Skins\\Alpha"_s,
             refused);
  }

 private:
  std::unique_ptr<support::GameFolder> game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(ColourAndKeyEditorsTest)
#include "colour_and_key_editors_test.moc"
