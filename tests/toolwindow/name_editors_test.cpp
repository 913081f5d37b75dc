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
struct NameEditor {
  const char *key, *entry;
  controls::ComboBox* const Editors::*list;
  QPushButton* const Editors::*add;
  QPushButton* const Editors::*remove;
  const char *kind, *naming;  ///< what dialogs call it
};

const NameEditor NameEditors[] = {
    {"COLOR", "Red", &Editors::Combo3, &Editors::Command3, &Editors::Command5, "Color",
     "New Color: Name of the New Color:"},
    {"TEXT", "HELLO", &Editors::Combo5, &Editors::Command6, &Editors::Command7, "Key",
     "New TextKey: Name of the New Key:"},
    {"TEX", "Plate", &Editors::Combo6, &Editors::Command8, &Editors::Command9, "Key",
     "New TextureKey: Name of the New Key:"},
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
  QString swatch() const { return Editors(program->tools()).Command2->BackColor().name(); }

 private Q_SLOTS:
  void refusedNames() {
    Form2& tools = program->tools();
    for (const NameEditor& editor : NameEditors) {
      for (const auto& [act, asked] : RefusedNames) {
        const RowName name(QByteArray(editor.key) + ' ' + act);
        program->soleRow(text(editor.key), text(editor.entry));
        if (qstrcmp(act, "remove none") == 0) (Editors(tools).*editor.list)->SetListIndex(-1);
        const QVariantMap before = snapshot(*program, *game);
        program->form.ShowStatus(QString());
        program->dialogs.asked.clear();
        const bool same = qstrcmp(act, "the entry") == 0;
        program->dialogs.inputs = {same ? text(editor.entry).toUpper().replace(u'L', u'l') : text(act)};
        (Editors(tools).*(text(act).startsWith(u"remove") ? editor.remove : editor.add))->click();
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
    Editors(tools).Command2->click();  // Cancel
    QCOMPARE(lastAsked(), u"colour: #c82828"_s);
    QCOMPARE(differences(snapshot(*program, *game), before), QStringList());
    // One that isn't the theme's: only the swatch.
    const auto files = game->files();
    program->soleRow(u"COLOR"_s, u"P1Dark"_s);
    program->dialogs.colors = {QColor(1, 2, 3)};
    Editors(tools).Command2->click();
    QCOMPARE(lastAsked(), u"colour: #47aff7"_s);
    QCOMPARE(swatch(), u"#010203"_s);
    program->dialogs.boxes = {BoxAnswer::Yes};
    Editors(tools).Command5->click();
    QCOMPARE(Editors(tools).Combo3->Text(), u"P1Dark"_s);
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
        Editors(tools).Combo4->setCurrentIndex(group);
        Q_EMIT Editors(tools).Combo4->Click(controls::Cause::User);
      }
      QByteArray enabled;
      for (const QWidget* button :
           std::initializer_list<QWidget*>{Editors(tools).Command3, Editors(tools).Command2, Editors(tools).Command5}) {
        enabled += button->isEnabled() ? '+' : '-';
      }
      QCOMPARE(enabled + ' ' + swatch().toLatin1(), shown);
      QCOMPARE(Editors(tools).Command2->grab().toImage().pixelColor(10, 10), Editors(tools).Command2->BackColor());
    }
    program->form.schemes().SetText(u"Brown"_s);
    program->soleRow(u"COLOR"_s, u"ColorLightest"_s);
    QCOMPARE(entries(*Editors(tools).Combo3), QStringList({u"ColorDark"_s, u"ColorLight"_s, u"ColorLightest"_s}));
    QCOMPARE(swatch(), u"#e5cca5"_s);
  }

  void image() {
    const QString folder = game->path() + u"Skins\\Alpha"_s;
    program->soleRow(u"TEX"_s, u"Plate"_s);
    program->dialogs.files = {folder + u"\\sub\\x.png"_s, game->path() + u"Skins\\\\alpha\\back.png"_s};
    Editors(program->tools()).Command4->click();
    QCOMPARE(Editors(program->tools()).Text3->Text(), u"plate.png"_s);
    QVERIFY(program->dialogs.asked.first().endsWith(folder));
    QCOMPARE(program->dialogs.asked.last(), u"Error: Image must be in "_s + folder);
    Editors(program->tools()).Command4->click();
    QCOMPARE(Editors(program->tools()).Text3->Text(), u"back.png"_s);
  }
};

QTEST_MAIN(NameEditorsTest)
#include "name_editors_test.moc"
