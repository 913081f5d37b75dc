#include <QTest>

#include "platform/paths.h"
#include "support/windows.h"
#include "toolwindow/key_editors.h"

using controls::Cause;
using platform::BoxAnswer;
using support::Program;
using toolwindow::Form2;
using toolwindow::KeyEditor;

using Act = void (*)(Program& program);

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
    const auto row = [&](const char* name) { program->soleRow(QStringLiteral("COLOR"), QLatin1StringView(name)); };
    QCOMPARE(states(), QStringLiteral("+++"));
    row("P2Light");
    QCOMPARE(states(), QStringLiteral("+++"));
    QCOMPARE(swatch(tools), QColor(251, 135, 135));
    QCOMPARE(tools.Combo3->ListCount(), 18);
    chooseGroup(*program, 1);
    QCOMPARE(states(), QStringLiteral("---"));
    QCOMPARE(entries(*tools.Combo3),
             QStringList({QStringLiteral("ColorDark"), QStringLiteral("ColorLight"), QStringLiteral("ColorLightest")}));
    QCOMPARE(swatch(tools), QColor(71, 175, 247));  // the scheme Blue
    row("Lost");
    QCOMPARE(states(), QStringLiteral("---"));
    QCOMPARE(swatch(tools), QColor(150, 150, 150));
    QCOMPARE(tools.Combo4->ListIndex(), 1);
    row("Blue");
    QCOMPARE(states(), QStringLiteral("+-+"));
    QCOMPARE(swatch(tools), QColor(30, 60, 200));
    chooseGroup(*program, 2);
    QCOMPARE(states(), QStringLiteral("---"));
    chooseGroup(*program, 0);
    QCOMPARE(states(), QStringLiteral("+++"));
    QCOMPARE(tools.Combo3->Text(), QStringLiteral("Red"));
    program->form.Combo1->SetText(QStringLiteral("Brown"));
    row("ColorLightest");
    QCOMPARE(swatch(tools), QColor(229, 204, 165));
  }

  void colourOperations_data() {
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("asked");   // the last dialog
    QTest::addColumn<QString>("names");   // of Combo3
    QTest::addColumn<QString>("colors");  // of table and file
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QColor>("paint");
    QTest::addColumn<QString>("status");
    const QString kept = QStringLiteral("Kept in the working copy; the next Update makes Save available");
    const QString same = QStringLiteral("Red=200 40 40,Blue=30 60 200");
    const QString both = QStringLiteral("Red,Blue");
    const QString red = QStringLiteral("Red");
    const QColor isRed(200, 40, 40);
    const QString newName = QStringLiteral("New Color: Name of the New Color:");
    const QString removal = QStringLiteral("Delete Color: Really delete this Color?\n\nRed");
    QTest::newRow("change") << Act([](Program& p) {
      p.dialogs.colors = {QColor(1, 2, 3)};
      p.tools().Command2->click();
    }) << QStringLiteral("colour: #c82828")
                            << both << QStringLiteral("Red=1 2 3,Blue=30 60 200") << red << QColor(1, 2, 3) << kept;
    QTest::newRow("change, Cancel") << Act([](Program& p) { p.tools().Command2->click(); })
                                    << QStringLiteral("colour: #c82828") << both << same << red << isRed << QString();
    QTest::newRow("change, none selected") << Act([](Program& p) {
      p.tools().Combo3->SetListIndex(-1);
      p.tools().Command2->click();
    }) << QString() << both << same << QString()
                                           << isRed << QString();
    QTest::newRow("change, a player's colour") << Act([](Program& p) {
      p.soleRow(QStringLiteral("COLOR"), QStringLiteral("P1Dark"));
      p.dialogs.colors = {QColor(1, 2, 3)};
      p.tools().Command2->click();
    }) << QStringLiteral("colour: #47aff7") << QString()
                                               << same << QStringLiteral("P1Dark") << QColor(1, 2, 3) << QString();
    QTest::newRow("add") << Act([](Program& p) {
      p.dialogs.inputs = {QStringLiteral("Sea green")};
      p.tools().Command3->click();
    }) << newName << QStringLiteral("Red,Blue,Sea green")
                         << same + QStringLiteral(",Sea green=150 150 150") << QStringLiteral("Sea green")
                         << QColor(150, 150, 150) << kept;
    QTest::newRow("add, Cancel") << Act([](Program& p) { p.tools().Command3->click(); }) << newName << both << same
                                 << red << isRed << QString();
    QTest::newRow("add, there already") << Act([](Program& p) {
      p.dialogs.inputs = {QStringLiteral("rED")};
      p.tools().Command3->click();
    }) << QStringLiteral("Error: Color already exist!")
                                        << both << same << red << isRed << QString();
    QTest::newRow("add, not a key") << Act([](Program& p) {
      p.dialogs.inputs = {QStringLiteral("a=b")};
      p.tools().Command3->click();
    }) << QStringLiteral("Error: This name can't be used!")
                                    << both << same << red << isRed << QString();
    QTest::newRow("remove") << Act([](Program& p) {
      p.dialogs.boxes = {BoxAnswer::Yes};
      p.tools().Command5->click();
    }) << removal << QStringLiteral("Blue")
                            << QStringLiteral("Blue=30 60 200") << QString() << QColor(212, 208, 200) << kept;
    QTest::newRow("remove, No") << Act([](Program& p) { p.tools().Command5->click(); }) << removal << both << same
                                << red << isRed << QString();
    QTest::newRow("remove, a player's colour") << Act([](Program& p) {
      p.soleRow(QStringLiteral("COLOR"), QStringLiteral("P1Dark"));
      p.dialogs.boxes = {BoxAnswer::Yes};
      p.tools().Command5->click();
    }) << QStringLiteral("Delete Color: Really delete this Color?\n\nP1Dark")
                                               << QString() << same << QStringLiteral("P1Dark") << QColor(71, 175, 247)
                                               << QString();
    const char* const failing[] = {"change", "add", "remove"};
    for (const char* which : failing) {
      QTest::addRow("%s, read-only", which)
          << Act([](Program& p) {
               p.dialogs.colors = {QColor(1, 2, 3)};
               p.dialogs.inputs = {QStringLiteral("Sea")};
               p.dialogs.boxes = {BoxAnswer::Yes};
               QFile::setPermissions(platform::NativePath(p.state.Paths.ThemeFile), QFileDevice::ReadOwner);
               const QByteArray test = QTest::currentDataTag();
               const Form2& tools = p.tools();
               if (test.startsWith("add")) tools.Command3->click();
               if (test.startsWith("change")) tools.Command2->click();
               if (test.startsWith("remove")) tools.Command5->click();
             })
          << QString::fromLatin1(which == failing[0]   ? "colour: #c82828"
                                 : which == failing[1] ? "New Color: Name of the New Color:"
                                                       : "Delete Color: Really delete this Color?\n\nRed")
          << both << same << red << isRed
          << QString::fromLatin1(which == failing[1] ? "Error while adding colors ["
                                                     : "Error while writing tempfile [");
    }
  }
  void colourOperations() {
    QFETCH(Act, act);
    QFETCH(QString, asked);
    QFETCH(QString, names);
    QFETCH(QString, colors);
    QFETCH(QString, status);
    Form2& tools = program->tools();
    program->soleRow(QStringLiteral("COLOR"), QStringLiteral("Red"));
    program->form.ShowStatus(QString());
    act(*program);
    QCOMPARE(program->dialogs.asked.value(program->dialogs.asked.size() - 1), asked);
    if (!names.isEmpty()) QCOMPARE(entries(*tools.Combo3).join(u','), names);
    QCOMPARE(table(*program).join(u','), colors);
    const QByteArray section = "[Colors]\r\n" + colors.toLatin1().replace(",", "\r\n") + "\r\n[Loading]\r\n";
    QVERIFY2(game->read(support::ThemeCopy).contains(section), section.constData());
    QTEST(tools.Combo3->Text(), "shown");
    QTEST(swatch(tools), "paint");
    QVERIFY2(status.isEmpty() ? program->status().isEmpty() : program->status().startsWith(status),
             qPrintable(program->status()));
    QVERIFY(!program->state.Changed);
    QVERIFY(!program->enabled(2));
  }

  void aFullTableTakesNoColour() {
    program->soleRow(QStringLiteral("COLOR"), QStringLiteral("Red"));
    for (int i = 2; i < 100; ++i)
      program->state.ThemeColors.at(i) = {QStringLiteral("C%1").arg(i), QStringLiteral("1 2 3")};
    program->dialogs.inputs = {QStringLiteral("One more")};
    program->tools().Command3->click();
    QCOMPARE(program->status(), QStringLiteral("Error while adding colors []"));
    QVERIFY(!game->read(support::ThemeCopy).contains("One more"));
    QCOMPARE(program->tools().Combo3->ListCount(), 2);
  }

  void keyOperations_data() {
    QTest::addColumn<KeyEditor>("which");
    QTest::addColumn<QByteArray>("act");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QByteArray>("removed");  // from the file
    QTest::addColumn<QByteArray>("added");    // at its end
    QTest::addColumn<QString>("shown");
    const struct {
      KeyEditor which;
      const char *name, *inputTitle, *key, *line;
    } editors[] = {{KeyEditor::Text, "text", "New TextKey", "HELLO", "HELLO=Hello there\r\n"},
                   {KeyEditor::Texture, "texture", "New TextureKey", "Plate", "Plate=plate.png\r\n"}};
    for (const auto& [which, name, inputTitle, key, line] : editors) {
      const auto add = [&](const char* act, const QString& asked, const char* removed, const char* added,
                           const QString& shown) {
        QTest::addRow("%s, %s", name, act)
            << which << QByteArray(act) << asked << QByteArray(removed) << QByteArray(added) << shown;
      };
      const QString same = QLatin1StringView(key);
      const QString prompt = QLatin1StringView(inputTitle) + QStringLiteral(": Name of the New Key:");
      const QString removal = QStringLiteral("Delete Key: Really delete this Key?\n\n") + same;
      add("add New one", prompt, "", "New one=\r\n", QStringLiteral("New one"));
      add("add", prompt, "", "", same);
      add("add hellO", which == KeyEditor::Text ? QStringLiteral("Error: Key already exist!") : prompt, "",
          which == KeyEditor::Text ? "" : "hellO=\r\n", which == KeyEditor::Text ? same : QStringLiteral("hellO"));
      add("add [x", QStringLiteral("Error: This name can't be used!"), "", "", same);
      add("add \xff", prompt, "", "\xff=\r\n", QStringLiteral("\u00ff"));
      add("add read-only", prompt, "", "", same);
      add("remove Yes", removal, line, "", QString());
      add("remove No", removal, "", "", same);
      add("remove read-only", removal, "", "", same);
      add("remove none", QString(), "", "", QString());
    }
  }
  void keyOperations() {
    QFETCH(KeyEditor, which);
    QFETCH(QByteArray, act);
    QFETCH(QString, asked);
    QFETCH(QByteArray, removed);
    QFETCH(QByteArray, added);
    QFETCH(QString, shown);
    Form2& tools = program->tools();
    const bool text = which == KeyEditor::Text;
    controls::ComboBox& list = text ? *tools.Combo5 : *tools.Combo6;
    const QString copy = text ? support::LanguageCopy : support::SkinCopy;
    program->soleRow(text ? QStringLiteral("TEXT") : QStringLiteral("TEX"),
                     text ? QStringLiteral("HELLO") : QStringLiteral("Plate"));
    QStringList keys = entries(list);
    QByteArray file = game->read(copy).replace(removed, "") + added;
    if (act.endsWith("read-only")) game->setWritable(copy, false);
    if (act == "remove none") list.SetListIndex(-1);
    program->dialogs.inputs = {QString::fromLatin1(act.mid(4))};
    program->dialogs.boxes = {act == "remove No" ? BoxAnswer::No : BoxAnswer::Yes};
    (act.startsWith("add") ? (text ? tools.Command6 : tools.Command8) : (text ? tools.Command7 : tools.Command9))
        ->click();
    QCOMPARE(program->dialogs.asked.value(program->dialogs.asked.size() - 1), asked);
    QCOMPARE(game->read(copy), file);
    if (!added.isEmpty()) keys += QString::fromLatin1(added.chopped(3));
    if (!removed.isEmpty()) keys.removeAt(text ? 0 : 1);
    QCOMPARE(entries(list), keys);
    QCOMPARE(list.Text(), shown);
    const QString box = text ? tools.Text2->Text() : tools.Text3->Text();
    if (added.isEmpty() && removed.isEmpty() && act != "remove none") {
      QCOMPARE(box, text ? QStringLiteral("Hello there") : QStringLiteral("plate.png"));
    } else if (act != "remove none") {
      QCOMPARE(box, QString());
    }
    QCOMPARE(program->status().startsWith(u"Error while writing tempfile ["), act.endsWith("read-only"));
    QVERIFY(!program->state.Changed);
  }

  void image_data() {
    QTest::addColumn<QString>("chosen");  // in the game folder; empty is Cancel
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("refused");
    QTest::newRow("in the folder") << QStringLiteral("Skins\\Alpha\\back.png") << QStringLiteral("back.png") << false;
    QTest::newRow("by another way") << QStringLiteral("Skins\\\\alpha\\back.png") << QStringLiteral("back.png")
                                    << false;
    QTest::newRow("in a folder below") << QStringLiteral("Skins\\Alpha\\sub\\x.png") << QStringLiteral("plate.png")
                                       << true;
    QTest::newRow("Cancel") << QString() << QStringLiteral("plate.png") << false;
  }
  void image() {
    QFETCH(QString, chosen);
    QFETCH(bool, refused);
    QVERIFY(QDir().mkpath(game->native(QStringLiteral("Skins/Alpha/sub"))));
    program->soleRow(QStringLiteral("TEX"), QStringLiteral("Plate"));
    program->dialogs.files = {chosen.isEmpty() ? chosen : game->path() + chosen};
    program->tools().Command4->click();
    QTEST(program->tools().Text3->Text(), "shown");
    QVERIFY(program->dialogs.asked.first().endsWith(game->path() + QStringLiteral("Skins\\Alpha")));
    QCOMPARE(program->dialogs.asked.last() ==
                 QStringLiteral("Error: Image must be in ") + game->path() + QStringLiteral("Skins\\Alpha"),
             refused);
  }

 private:
  std::unique_ptr<support::GameFolder> game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(ColourAndKeyEditorsTest)
#include "colour_and_key_editors_test.moc"
