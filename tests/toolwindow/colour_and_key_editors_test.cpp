#include <QTest>

#include "support/windows.h"

using namespace support;
using platform::BoxAnswer;
using toolwindow::Form2;

namespace {

const char* const Kept = "Kept in the working copy; the next Update makes Save available";

QString text(const QByteArray& latin1) {
  return QString::fromLatin1(latin1);
}

QColor swatch(const Form2& form) {
  return form.Command2->BackColor();
}

/// One of the lists of names that can be added to and removed from.
struct NameList {
  const char *name, *naming;    ///< in the titles of dialogs, and the one that asks for a name
  const char *key, *entry;      ///< the row of the grid
  const char *line, *lastLine;  ///< of the file
  const char* addFailure;
  const QString& file;
  controls::ComboBox* Form2::*list;
  QPushButton *Form2::*add, *Form2::*remove;
  QString (*held)(const Form2& form);          ///< what the editor shows of the entry
  const char *value, *heldByNew, *heldByNone;  ///< of a new one, and behind the removal
};

const NameList NameLists[] = {
    {"Color", "New Color: Name of the New Color:", "COLOR", "Red", "Red=200 40 40", "Blue=30 60 200",
     "Error while adding colors [", ThemeCopy, &Form2::Combo3, &Form2::Command3, &Form2::Command5,
     [](const Form2& form) { return swatch(form).name(); }, "150 150 150", "#969696", "#d4d0c8"},
    {"Key", "New TextKey: Name of the New Key:", "TEXT", "HELLO", "HELLO=Hello there",
     "EMPTY=", "Error while writing tempfile [", LanguageCopy, &Form2::Combo5, &Form2::Command6, &Form2::Command7,
     [](const Form2& form) { return form.Text2->Text(); }, "", "", ""},
    {"Key", "New TextureKey: Name of the New Key:", "TEX", "Plate", "Plate=plate.png", "Other=other.png",
     "Error while writing tempfile [", SkinCopy, &Form2::Combo6, &Form2::Command8, &Form2::Command9,
     [](const Form2& form) { return form.Text3->Text(); }, "", "", ""},
};

/// What the user does: adds a name, or removes the entry and answers the question.
struct Operation {
  const char* act;
  bool done;
  const char* refusal = nullptr;
};

const Operation Operations[] = {
    {"add New one", true},
    {"add \xff", true},
    {"add ", false},
    {"add the entry", false, "Error: %1 already exist!"},
    {"add a=b", false, "Error: This name can't be used!"},
    {"add [x", false, "Error: This name can't be used!"},
    {"add Sea, read-only", false},
    {"remove Yes", true},
    {"remove No", false},
    {"remove Yes, read-only", false},
    {"remove none", false, ""},
};

}  // namespace

class ColourAndKeyEditorsTest : public ProgramTest {
  Q_OBJECT

 private:
  QString lastAsked() const { return program->dialogs.asked.isEmpty() ? QString() : program->dialogs.asked.last(); }

  /// Compares how the status begins; an empty one has to be empty. Nothing waits for Save.
  void compareStatus(const QString& status) const {
    QCOMPARE(program->status().left(qMax(1, status.size())), status);
    QVERIFY(!program->state.Changed && !program->enabled(2));
  }

  /// The colours of the theme in memory, as the file has to hold them.
  QByteArray colorSection() const {
    QByteArray section = "[Colors]\r\n";
    for (const themefiles::NamedColor& row : program->state.ThemeColors) {
      if (!row.Name.isEmpty()) section += row.Name.toLatin1() + '=' + row.Value.toLatin1() + "\r\n";
    }
    return section + "[Loading]\r\n";
  }

 private Q_SLOTS:
  void colourButtonsEventByEvent() {
    Form2& tools = program->tools();
    // Which of the three buttons are enabled, behind a row of the grid or the choice of a group.
    const auto states = [&] {
      QString shown;
      for (const QWidget* button : std::initializer_list<QWidget*>{tools.Command3, tools.Command2, tools.Command5}) {
        shown += button->isEnabled() ? u'+' : u'-';
      }
      return shown;
    };
    const auto row = [&](const char* name) {
      program->soleRow(u"COLOR"_s, QLatin1StringView(name));
      return states();
    };
    const auto group = [&](int index) {
      tools.Combo4->setCurrentIndex(index);
      Q_EMIT tools.Combo4->Click(controls::Cause::User);
      return states();
    };
    QCOMPARE(states(), u"+++"_s);
    QCOMPARE(row("P2Light"), u"+++"_s);
    QCOMPARE(swatch(tools), QColor(251, 135, 135));
    QCOMPARE(tools.Combo3->ListCount(), 18);
    QCOMPARE(group(1), u"---"_s);
    QCOMPARE(entries(*tools.Combo3), QStringList({u"ColorDark"_s, u"ColorLight"_s, u"ColorLightest"_s}));
    QCOMPARE(swatch(tools), QColor(71, 175, 247));  // the scheme Blue
    QCOMPARE(row("Lost"), u"---"_s);
    QCOMPARE(swatch(tools), QColor(150, 150, 150));
    QCOMPARE(tools.Combo4->ListIndex(), 1);
    QCOMPARE(row("Blue"), u"+-+"_s);
    QCOMPARE(swatch(tools), QColor(30, 60, 200));
    QCOMPARE(group(2), u"---"_s);
    QCOMPARE(group(0), u"+++"_s);
    QCOMPARE(tools.Combo3->Text(), u"Red"_s);
    program->form.Combo1->SetText(u"Brown"_s);
    row("ColorLightest");
    QCOMPARE(swatch(tools), QColor(229, 204, 165));
  }

  void addAndRemove_data() {
    QTest::addColumn<const NameList*>("of");
    QTest::addColumn<const Operation*>("operation");
    for (const NameList& list : NameLists) {
      for (const Operation& operation : Operations) {
        QTest::addRow("%s: %s", list.key, operation.act) << &list << &operation;
      }
    }
  }
  void addAndRemove() {
    QFETCH(const NameList*, of);
    QFETCH(const Operation*, operation);
    const QByteArray act = operation->act;
    const bool adds = act.startsWith("add");
    const bool readOnly = act.endsWith("read-only");
    QString name = text(act.mid(4)).section(u',', 0, 0);
    if (name == u"the entry") name = text(of->entry).toUpper().replace(u'L', u'l');
    Form2& tools = program->tools();
    controls::ComboBox& list = *(tools.*of->list);
    program->soleRow(text(of->key), text(of->entry));
    if (act == "remove none") list.SetListIndex(-1);
    if (readOnly) game->setWritable(of->file, false);
    QString asked = adds ? QString::fromLatin1(of->naming)
                         : u"Delete %1: Really delete this %1?\n\n%2"_s.arg(text(of->name), text(of->entry));
    if (operation->refusal != nullptr) asked = text(operation->refusal).replace(u"%1"_s, text(of->name));
    QString status = operation->done ? text(Kept) : QString();
    if (readOnly) status = adds ? text(of->addFailure) : u"Error while writing tempfile ["_s;
    QString shown = list.Text();
    QString held = of->held(tools);
    QStringList names = entries(list);
    QByteArray file = game->read(of->file);
    if (operation->done && adds) {
      shown = name;
      held = text(of->heldByNew);
      names += name;
      file.replace(of->lastLine, of->lastLine + QByteArray("\r\n") + name.toLatin1() + '=' + of->value);
    } else if (operation->done) {
      shown.clear();
      held = text(of->heldByNone);
      names.removeOne(text(of->entry));
      file.replace(of->line + QByteArray("\r\n"), "");
    }
    program->form.ShowStatus(QString());
    program->dialogs.inputs = {name};
    program->dialogs.boxes = {act.contains("Yes") ? BoxAnswer::Yes : BoxAnswer::No};
    (tools.*(adds ? of->add : of->remove))->click();
    QCOMPARE(lastAsked(), asked);
    QCOMPARE(game->read(of->file), file);
    QCOMPARE(entries(list), names);
    QCOMPARE(list.Text(), shown);
    QCOMPARE(of->held(tools), held);
    compareStatus(status);
    QVERIFY(game->read(ThemeCopy).contains(colorSection()));
  }

  void changeAColour() {
    const struct {
      const char* color;
      bool cancelled, readOnly;
      const char *asked, *swatch, *status;
    } rows[] = {{"Red", true, false, "colour: #c82828", "#c82828", ""},
                {"Red", false, true, "colour: #c82828", "#c82828", "Error while writing tempfile ["},
                {"P1Dark", false, false, "colour: #47aff7", "#010203", ""},
                {"", false, false, "", "#47aff7", ""},
                {"Red", false, false, "colour: #c82828", "#010203", Kept}};
    Form2& tools = program->tools();
    QByteArray file = game->read(ThemeCopy);
    for (const auto& row : rows) {
      program->soleRow(u"COLOR"_s, *row.color == 0 ? u"P1Dark"_s : text(row.color));
      if (*row.color == 0) tools.Combo3->SetListIndex(-1);
      game->setWritable(ThemeCopy, !row.readOnly);
      program->form.ShowStatus(QString());
      program->dialogs.asked.clear();
      program->dialogs.colors.clear();
      if (!row.cancelled) program->dialogs.colors = {QColor(1, 2, 3)};
      tools.Command2->click();
      QCOMPARE(lastAsked(), text(row.asked));
      QCOMPARE(swatch(tools).name(), text(row.swatch));
      if (row.status == Kept) file.replace("Red=200 40 40", "Red=1 2 3");
      QCOMPARE(game->read(ThemeCopy), file);
      QVERIFY(file.contains(colorSection()));
      compareStatus(text(row.status));
    }
  }

  void colourThatCantBeAddedOrRemoved() {
    Form2& tools = program->tools();
    program->soleRow(u"COLOR"_s, u"P1Dark"_s);
    program->dialogs.boxes = {BoxAnswer::Yes};
    tools.Command5->click();
    QCOMPARE(lastAsked(), u"Delete Color: Really delete this Color?\n\nP1Dark"_s);
    QCOMPARE(tools.Combo3->Text(), u"P1Dark"_s);
    QVERIFY(game->read(ThemeCopy).contains(colorSection()));
    program->soleRow(u"COLOR"_s, u"Red"_s);
    for (int i = 2; i < 100; ++i) program->state.ThemeColors.at(i) = {u"C%1"_s.arg(i), u"1 2 3"_s};
    program->dialogs.inputs = {u"One more"_s};
    tools.Command3->click();
    QCOMPARE(program->status(), u"Error while adding colors []"_s);
    QVERIFY(!game->read(ThemeCopy).contains("One more") && tools.Combo3->ListCount() == 2);
  }

  void image() {
    const QString folder = game->path() + u"Skins\\Alpha"_s;
    QVERIFY(QDir().mkpath(game->native(u"Skins/Alpha/sub"_s)));
    const struct {
      QString chosen;  // in the game folder; empty is Cancel
      const char* shown;
      bool refused;
    } rows[] = {{u"Skins\\Alpha\\back.png"_s, "back.png", false},
                {u"Skins\\\\alpha\\back.png"_s, "back.png", false},
                {u"Skins\\Alpha\\sub\\x.png"_s, "plate.png", true},
                {{}, "plate.png", false}};
    for (const auto& [chosen, shown, refused] : rows) {
      program->soleRow(u"TEX"_s, u"Plate"_s);
      program->dialogs.asked.clear();
      program->dialogs.files = {chosen.isEmpty() ? chosen : game->path() + chosen};
      program->tools().Command4->click();
      QCOMPARE(program->tools().Text3->Text(), QLatin1StringView(shown));
      QVERIFY(program->dialogs.asked.first().endsWith(folder));
      QCOMPARE(program->dialogs.asked.last() == u"Error: Image must be in "_s + folder, refused);
    }
  }
};

QTEST_MAIN(ColourAndKeyEditorsTest)
#include "colour_and_key_editors_test.moc"
