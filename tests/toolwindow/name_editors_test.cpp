#include "support/row_name.h"
#include "support/snapshot.h"

using namespace support;
using platform::BoxAnswer;
using toolwindow::Form2;

namespace {

QString text(const QByteArray& latin1) {
  return QString::fromLatin1(latin1);
}

/// The editor of one of the three lists of names: its row of the grid and its controls.
struct Editor {
  const char *key, *entry;
  controls::ComboBox* Form2::*list;
  QPushButton *Form2::*add, *Form2::*remove;
  const char *kind, *naming;  ///< what dialogs call it
};

const Editor Editors[] = {
    {"COLOR", "Red", &Form2::Combo3, &Form2::Command3, &Form2::Command5, "Color", "New Color: Name of the New Color:"},
    {"TEXT", "HELLO", &Form2::Combo5, &Form2::Command6, &Form2::Command7, "Key", "New TextKey: Name of the New Key:"},
    {"TEX", "Plate", &Form2::Combo6, &Form2::Command8, &Form2::Command9, "Key", "New TextureKey: Name of the New Key:"},
};

/// A name to add, the one of the entry in other letters, or the removal of the entry, and the last dialog.
const std::pair<const char*, const char*> RefusedNames[] = {{"", "%2"},
                                                            {"the entry", "Error: %1 already exist!"},
                                                            {"a=b", "Error: This name can't be used!"},
                                                            {"[x", "Error: This name can't be used!"},
                                                            {"remove", "Delete %1: Really delete this %1?\n\n%3"},
                                                            {"remove none", ""}};

}  // namespace

/// Adding, changing and removing colours and keys, and choosing an image: what the sessions don't try.
class NameEditorsTest : public ProgramTest {
  Q_OBJECT

 private:
  QString lastAsked() const { return program->dialogs.asked.value(program->dialogs.asked.size() - 1); }
  QString swatch() const { return program->tools().Command2->BackColor().name(); }

 private Q_SLOTS:
  void refusedNames() {
    Form2& tools = program->tools();
    for (const Editor& editor : Editors) {
      for (const auto& [act, asked] : RefusedNames) {
        const RowName name(QByteArray(editor.key) + ' ' + act);
        program->soleRow(text(editor.key), text(editor.entry));
        if (qstrcmp(act, "remove none") == 0) (tools.*editor.list)->SetListIndex(-1);
        const QVariantMap before = snapshot(*program, *game);
        program->form.ShowStatus(QString());
        program->dialogs.asked.clear();
        const bool same = qstrcmp(act, "the entry") == 0;
        program->dialogs.inputs = {same ? text(editor.entry).toUpper().replace(u'L', u'l') : text(act)};
        (tools.*(text(act).startsWith(u"remove") ? editor.remove : editor.add))->click();
        QCOMPARE(differences(snapshot(*program, *game), before), QStringList());
        QCOMPARE(lastAsked(), text(asked)
                                  .replace(u"%1"_s, text(editor.kind))
                                  .replace(u"%2"_s, text(editor.naming))
                                  .replace(u"%3"_s, text(editor.entry)));
        QCOMPARE(program->status(), QString());
      }
    }
  }

  void aColourThatCantBeChanged() {
    Form2& tools = program->tools();
    program->soleRow(u"COLOR"_s, u"Red"_s);
    const QVariantMap before = snapshot(*program, *game);
    tools.Command2->click();  // Cancel
    QCOMPARE(lastAsked(), u"colour: #c82828"_s);
    QCOMPARE(differences(snapshot(*program, *game), before), QStringList());
    // One that isn't the theme's: only the swatch.
    const auto files = game->files();
    program->soleRow(u"COLOR"_s, u"P1Dark"_s);
    program->dialogs.colors = {QColor(1, 2, 3)};
    tools.Command2->click();
    QCOMPARE(lastAsked(), u"colour: #47aff7"_s);
    QCOMPARE(swatch(), u"#010203"_s);
    program->dialogs.boxes = {BoxAnswer::Yes};
    tools.Command5->click();
    QCOMPARE(tools.Combo3->Text(), u"P1Dark"_s);
    QCOMPARE(game->files(), files);
  }

  /// Which of Add, Change and Remove are enabled behind a row of the grid or the choice of a group, and the swatch.
  void colourButtonsEventByEvent() {
    const Form2& tools = program->tools();
    const struct {
      const char* row;  // or a group
      int group;
      QByteArray shown;
    } events[] = {{"P2Light", 0, "+++ #fb8787"}, {"", 1, "--- #47aff7"},  // the scheme Blue
                  {"Lost", 0, "--- #969696"},    {"Blue", 0, "+-+ #1e3cc8"},
                  {"", 2, "--- #47aff7"},        {"", 0, "+++ #c82828"}};
    for (const auto& [row, group, shown] : events) {
      const RowName name(row + QByteArray::number(group));
      if (*row != 0) {
        program->soleRow(u"COLOR"_s, text(row));
      } else {
        tools.Combo4->setCurrentIndex(group);
        Q_EMIT tools.Combo4->Click(controls::Cause::User);
      }
      QByteArray enabled;
      for (const QWidget* button : std::initializer_list<QWidget*>{tools.Command3, tools.Command2, tools.Command5}) {
        enabled += button->isEnabled() ? '+' : '-';
      }
      QCOMPARE(enabled + ' ' + swatch().toLatin1(), shown);
      QCOMPARE(tools.Command2->grab().toImage().pixelColor(10, 10), tools.Command2->BackColor());
    }
    program->form.Combo1->SetText(u"Brown"_s);
    program->soleRow(u"COLOR"_s, u"ColorLightest"_s);
    QCOMPARE(entries(*tools.Combo3), QStringList({u"ColorDark"_s, u"ColorLight"_s, u"ColorLightest"_s}));
    QCOMPARE(swatch(), u"#e5cca5"_s);
  }

  void image() {
    const QString folder = game->path() + u"Skins\\Alpha"_s;
    program->soleRow(u"TEX"_s, u"Plate"_s);
    program->dialogs.files = {folder + u"\\sub\\x.png"_s, game->path() + u"Skins\\\\alpha\\back.png"_s};
    program->tools().Command4->click();
    QCOMPARE(program->tools().Text3->Text(), u"plate.png"_s);
    QVERIFY(program->dialogs.asked.first().endsWith(folder));
    QCOMPARE(program->dialogs.asked.last(), u"Error: Image must be in "_s + folder);
    program->tools().Command4->click();
    QCOMPARE(program->tools().Text3->Text(), u"back.png"_s);
  }
};

QTEST_MAIN(NameEditorsTest)
#include "name_editors_test.moc"
