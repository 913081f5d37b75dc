#include <QTest>

#include "support/windows.h"

using namespace support;
using platform::BoxAnswer;
using toolwindow::Form2;

namespace {

QString text(const QByteArray& latin1) {
  return QString::fromLatin1(latin1);
}

/// The editor of one of the three lists of names: its row of the grid, its file, its controls.
struct Editor {
  const char *key, *entry;
  const QString& file;
  controls::ComboBox* Form2::*list;
  QPushButton *Form2::*add, *Form2::*remove;
  const char *kind, *naming, *addFailure;  ///< what dialogs and the status call it
};

const char* const WriteFailure = "Error while writing tempfile [";

const Editor Editors[] = {
    {"COLOR", "Red", ThemeCopy, &Form2::Combo3, &Form2::Command3, &Form2::Command5, "Color",
     "New Color: Name of the New Color:", "Error while adding colors ["},
    {"TEXT", "HELLO", LanguageCopy, &Form2::Combo5, &Form2::Command6, &Form2::Command7, "Key",
     "New TextKey: Name of the New Key:", WriteFailure},
    {"TEX", "Plate", SkinCopy, &Form2::Combo6, &Form2::Command8, &Form2::Command9, "Key",
     "New TextureKey: Name of the New Key:", WriteFailure},
};

/// A name to add, or the answer to the question whether to remove the entry, and the last dialog when it is another.
struct Refusal {
  const char* act;
  const char* asked = nullptr;
};

const Refusal Refusals[] = {
    {"add "},
    {"add the entry", "Error: %1 already exist!"},
    {"add a=b", "Error: This name can't be used!"},
    {"add [x", "Error: This name can't be used!"},
    {"add Sea, read-only"},
    {"remove No"},
    {"remove Yes, read-only"},
    {"remove none", ""},
};

}  // namespace

/// What is added and removed is tested in sessions; here is what isn't.
class ColourAndKeyEditorsTest : public ProgramTest {
  Q_OBJECT

 private:
  QString lastAsked() const { return program->dialogs.asked.isEmpty() ? QString() : program->dialogs.asked.last(); }
  QString swatch() const { return program->tools().Command2->BackColor().name(); }

  /// Lists, boxes, colours in memory and all files.
  QVariantList whole() const {
    const Form2& tools = program->tools();
    QStringList all{swatch(), tools.Text2->Text(), tools.Text3->Text()};
    for (const controls::ComboBox* list : {tools.Combo3, tools.Combo5, tools.Combo6}) {
      all += entries(*list) + QStringList{list->Text()};
    }
    for (const themefiles::NamedColor& row : program->state.ThemeColors) all += row.Name + u'=' + row.Value;
    return {all, QVariant::fromValue(game->files()), program->state.Changed, program->enabled(2)};
  }

 private Q_SLOTS:
  void refusals_data() {
    QTest::addColumn<const Editor*>("editor");
    QTest::addColumn<const Refusal*>("refusal");
    for (const Editor& editor : Editors) {
      for (const Refusal& refusal : Refusals) {
        QTest::addRow("%s: %s", editor.key, refusal.act) << &editor << &refusal;
      }
    }
  }
  void refusals() {
    QFETCH(const Editor*, editor);
    QFETCH(const Refusal*, refusal);
    const QByteArray act = refusal->act;
    const bool adds = act.startsWith("add");
    const bool readOnly = act.endsWith("read-only");
    Form2& tools = program->tools();
    program->soleRow(text(editor->key), text(editor->entry));
    if (act == "remove none") (tools.*editor->list)->SetListIndex(-1);
    if (readOnly) game->setWritable(editor->file, false);
    const QVariantList before = whole();
    program->form.ShowStatus(QString());
    program->dialogs.inputs = {text(act.mid(4)).section(u',', 0, 0)};
    if (act == "add the entry") program->dialogs.inputs = {text(editor->entry).toUpper().replace(u'L', u'l')};
    program->dialogs.boxes = {act == "remove No" ? BoxAnswer::No : BoxAnswer::Yes};
    (tools.*(adds ? editor->add : editor->remove))->click();
    QCOMPARE(whole(), before);
    QString asked = adds ? text(editor->naming) : u"Delete %1: Really delete this %1?\n\n"_s + text(editor->entry);
    if (refusal->asked != nullptr) asked = text(refusal->asked);
    QCOMPARE(lastAsked(), asked.replace(u"%1"_s, text(editor->kind)));
    const QString failure = text(adds ? editor->addFailure : WriteFailure);
    QVERIFY2(readOnly ? program->status().startsWith(failure) : program->status().isEmpty(),
             qPrintable(program->status()));
  }

  void aColourThatCantBeChanged() {
    Form2& tools = program->tools();
    program->soleRow(u"COLOR"_s, u"Red"_s);
    const QVariantList before = whole();
    tools.Command2->click();  // Cancel
    QCOMPARE(whole(), before);
    game->setWritable(ThemeCopy, false);
    program->dialogs.colors.assign(3, QColor(1, 2, 3));
    tools.Command2->click();
    QCOMPARE(lastAsked(), u"colour: #c82828"_s);
    QCOMPARE(whole(), before);
    QVERIFY2(program->status().startsWith(text(WriteFailure)), qPrintable(program->status()));
    game->setWritable(ThemeCopy, true);
    tools.Combo3->SetListIndex(-1);
    program->dialogs.asked.clear();
    tools.Command2->click();
    QVERIFY(program->dialogs.asked.isEmpty());
    // One that isn't the theme's: only the swatch.
    const auto files = game->files();
    program->soleRow(u"COLOR"_s, u"P1Dark"_s);
    tools.Command2->click();
    QCOMPARE(lastAsked(), u"colour: #47aff7"_s);
    QCOMPARE(swatch(), u"#010203"_s);
    program->dialogs.boxes = {BoxAnswer::Yes};
    tools.Command5->click();
    QCOMPARE(lastAsked(), u"Delete Color: Really delete this Color?\n\nP1Dark"_s);
    QCOMPARE(tools.Combo3->Text(), u"P1Dark"_s);
    QCOMPARE(game->files(), files);
  }

  void aFullTableTakesNoColour() {
    program->soleRow(u"COLOR"_s, u"Red"_s);
    for (int i = 2; i < 100; ++i) program->state.ThemeColors.at(i) = {u"C%1"_s.arg(i), u"1 2 3"_s};
    const QVariantList before = whole();
    program->dialogs.inputs = {u"One more"_s};
    program->tools().Command3->click();
    QCOMPARE(program->status(), u"Error while adding colors []"_s);
    QCOMPARE(whole(), before);
  }

  /// Which of Add, Change and Remove are enabled behind a row of the grid or the choice of a group, and the swatch.
  void colourButtonsEventByEvent() {
    const Form2& tools = program->tools();
    const struct {
      const char* row;  // or a group
      int group;
      const char *enabled, *swatch;
    } events[] = {{"P2Light", 0, "+++", "#fb8787"}, {"", 1, "---", "#47aff7"},  // the scheme Blue
                  {"Lost", 0, "---", "#969696"},    {"Blue", 0, "+-+", "#1e3cc8"},
                  {"", 2, "---", "#47aff7"},        {"", 0, "+++", "#c82828"}};
    for (const auto& event : events) {
      if (*event.row != 0) {
        program->soleRow(u"COLOR"_s, text(event.row));
      } else {
        tools.Combo4->setCurrentIndex(event.group);
        Q_EMIT tools.Combo4->Click(controls::Cause::User);
      }
      QByteArray enabled;
      for (const QWidget* button : std::initializer_list<QWidget*>{tools.Command3, tools.Command2, tools.Command5}) {
        enabled += button->isEnabled() ? '+' : '-';
      }
      QCOMPARE(event.row + enabled + ' ' + swatch().toLatin1(),
               event.row + QByteArray(event.enabled) + ' ' + event.swatch);
    }
    const QStringList names[] = {{u"Red"_s, u"Blue"_s}, {u"ColorDark"_s, u"ColorLight"_s, u"ColorLightest"_s}};
    QCOMPARE(entries(*tools.Combo3), names[0]);
    program->soleRow(u"COLOR"_s, u"P1Light"_s);
    QCOMPARE(tools.Combo3->ListCount(), 18);
    program->form.Combo1->SetText(u"Brown"_s);
    program->soleRow(u"COLOR"_s, u"ColorLightest"_s);
    QCOMPARE(entries(*tools.Combo3), names[1]);
    QCOMPARE(swatch(), u"#e5cca5"_s);
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
