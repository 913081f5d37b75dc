#include <QTest>

#include "support/windows.h"

using namespace support;
using toolwindow::Form2;

using Act = void (*)(Program& program);

namespace {

const QString Static = u"LoadingStaticA"_s;
const QString Text = u"LoadingTextFree"_s;

/// An edit of an object's key: the text entered, what the grid shows then, and what becomes what in a file.
struct Edit {
  const QString& object;
  const char *key, *text, *value;
  QString file = {};
  const char *before = "", *after = "";
};

/// Another entry of the skin, with another file name.
void enterTexture(Program& program) {
  program.row(u"Tex"_s);
  program.tools().Combo6->SetText(u"Other"_s);
  program.tools().Text3->SetText(u"new.png"_s);
}

template <const QString& File>
void makeReadOnly(Program& program) {
  QFile::setPermissions(platform::NativePath(program.state.Paths.ExeDirectory + File), QFileDevice::ReadOwner);
  program.row(u"X"_s);
  program.tools().Text1->SetText(u"9"_s);
  if (&File == &SkinCopy) enterTexture(program);
}

}  // namespace

class ValueCommitTest : public ProgramTest {
  Q_OBJECT

 private Q_SLOTS:
  void whereAnEditGoes() {
    const Form2& tools = program->tools();
    const Edit edits[] = {
        {Static, "X", "77", "77", ThemeCopy, "X=40", "X=77"},
        {Static, "Z", "1.5.", "1.5.", ThemeCopy, "Z=0.25", "Z=1.5."},
        {Text, "Text", "Gr\xfc\xdf = [1];", "HELLO", LanguageCopy, "Hello there", "Gr\xfc\xdf = [1];"},
        {Static, "Tex", "new.png", "Plate", SkinCopy, "plate.png", "new.png"},
        {Static, "ColR", "", "0.5"},  // no editor: nothing is written, the rest happens
    };
    auto files = game->files();
    for (const Edit& edit : edits) {
      const QString key = QString::fromLatin1(edit.key);
      program->tag(edit.object);
      program->row(key);
      const bool hasEditor = program->state.EditorShown;
      for (controls::TextBox* box : {tools.Text1, tools.Text4, tools.Text2, tools.Text3}) {
        if (box->isVisible()) box->SetText(QString::fromLatin1(edit.text));
      }
      QByteArray& file = files[edit.file.isEmpty() ? ThemeCopy : edit.file];
      file.replace(file.indexOf(edit.before), qstrlen(edit.before), edit.after);
      program->state.ProgressStep = 77;
      program->state.Changed = false;
      program->form.EnableButton(2, false);
      tools.Command1->click();
      QCOMPARE(program->value(key), QString::fromLatin1(edit.value));
      QCOMPARE(game->files(), files);
      QVERIFY2(program->state.Changed && program->enabled(2), edit.key);
      QVERIFY2(program->state.ProgressStep != 77, "not drawn");
      QCOMPARE(program->state.EditorShown, hasEditor);
      QCOMPARE(tools.focusWidget(), tools.ListView1);
    }
  }

  void aReferenceAndWhatItStandsForAreBothWritten() {
    program->tag(Static);
    enterTexture(*program);
    program->tools().Command1->click();
    QCOMPARE(program->value(u"Tex"_s), u"Other"_s);
    QVERIFY(game->read(ThemeCopy).contains("LoadingStaticA]\r\nTex=Other\r\n"));
    QVERIFY(game->read(SkinCopy).endsWith("Plate=plate.png\r\nOther=new.png\r\n"));
  }

  void refusals_data() {
    QTest::addColumn<Act>("edit");
    const auto add = [](const char* name, Act edit) { QTest::newRow(name) << edit; };
    add("no row", [](Program& p) { p.tools().ListView1->SelectRow(-1); });
    add("nothing in Combo2", [](Program& p) { p.soleRow(u"TYPE"_s, u"plain"_s); });
    add("nothing in Combo3", [](Program& p) { p.soleRow(u"COLOR"_s, u"Lost"_s); });
    add("nothing in Combo5", [](Program& p) { p.soleRow(u"TEXT"_s, u"LOST"_s); });
    add("nothing in Combo6", [](Program& p) { p.soleRow(u"TEX"_s, u"Lost"_s); });
    add("no object", [](Program& p) {
      p.row(u"X"_s);
      p.tools().List1->SetListIndex(-1);
    });
    add("a section with a bracket", [](Program& p) {
      p.screen(u"Level Screen"_s);
      p.tag(u"LevelStatic]x"_s);
      p.row(u"X"_s);
    });
    add("outside the code page", [](Program& p) {
      p.soleRow(u"TEXT"_s, u"GO"_s);
      p.tools().Text2->SetText(u"\u4e2d"_s);
    });
    add("a read-only theme", makeReadOnly<ThemeCopy>);
    add("a read-only skin, the theme is written", makeReadOnly<SkinCopy>);
  }
  void refusals() {
    QFETCH(Act, edit);
    program->tag(Static);
    auto files = game->files();
    edit(*program);
    const QString row = program->tools().ListView1->SubItem(0);
    program->state.ProgressStep = 77;
    program->tools().Command1->click();
    QVERIFY2(program->status().startsWith(u"Error while writing tempfile ["), qPrintable(program->status()));
    if (QByteArray(QTest::currentDataTag()).endsWith("is written")) {
      files[ThemeCopy].replace("LoadingStaticA]\r\nTex=Plate", "LoadingStaticA]\r\nTex=Other");
    }
    QCOMPARE(game->files(), files);
    QCOMPARE(program->tools().ListView1->SubItem(0), row);
    QVERIFY(!program->state.Changed && !program->enabled(2));
    QVERIFY2(program->state.ProgressStep == 77, "drawn");
  }

  void theMarkFollowsFiveKeys() {
    const mainwindows::Workspace& preview = *program->form.Workspace;
    program->tag(Static);
    QCOMPARE(preview.Mark(), QRectF(40, 50, 100, 60));
    program->change(u"X"_s, u"45"_s);
    program->change(u"H"_s, u"060"_s);  // the bar stands at 60 already: the text stays
    program->change(u"W"_s, u"120"_s);
    QCOMPARE(preview.Mark(), QRectF(45, 50, 120, 60));
    QCOMPARE(program->state.CursorRect.H, u"60"_s);
    QCOMPARE(program->value(u"H"_s), u"060"_s);

    program->tag(Text);
    const double line = preview.Mark().height();
    QVERIFY(line > 12 && preview.Mark().width() == 0);
    for (const char* size : {"24", "70000"}) {  // the second is none for the mark
      program->change(u"Size"_s, QLatin1StringView(size));
      QCOMPARE(program->value(u"Size"_s), QLatin1StringView(size));
      QCOMPARE(program->state.CursorRect.Size, qint16(24));
      QVERIFY(qAbs(preview.Mark().height() - 2 * line) < 6);
    }
    program->row(u"Font"_s);
    program->tools().Combo2->SetListIndex(1);
    program->tools().Command1->click();
    QCOMPARE(program->state.CursorRect.Font, quint8(0));
  }
};

QTEST_MAIN(ValueCommitTest)
#include "value_commit_test.moc"
