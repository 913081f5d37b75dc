#include <QTest>

#include "platform/paths.h"
#include "support/windows.h"

using namespace Qt::StringLiterals;
using support::Program;
using toolwindow::Form2;

using Act = void (*)(Program& program);
using Change = std::pair<QByteArray, QByteArray>;  ///< what becomes what in a file

namespace {

const QString Static = u"LoadingStaticA"_s;
const QString Text = u"LoadingTextFree"_s;
constexpr int SaveButton = 2;

/// Enters a text into the editor that is open; a colour's name is one of the players'.
void enter(Form2& form, const QString& text) {
  for (controls::TextBox* box : {form.Text1, form.Text4, form.Text2, form.Text3}) {
    if (box->isVisible()) box->SetText(text);
  }
  if (form.Combo2->isVisible()) form.Combo2->SetText(text);
  if (!form.Combo4->isVisible()) return;
  form.Combo4->setCurrentIndex(2);
  Q_EMIT form.Combo4->Click(controls::Cause::User);
  form.Combo3->SetText(text);
}

}  // namespace

class ValueCommitTest : public QObject {
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

  void groups_data() {
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("text");  // entered into the editor
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("file");
    QTest::addColumn<Change>("change");
    const auto add = [](const QString& object, const char* key, const char* text, const char* value,
                        const QString& file = {}, const char* before = "", const char* after = "") {
      QTest::newRow(key) << object << QString::fromLatin1(text) << QString::fromLatin1(value) << file
                         << Change{before, after};
    };
    const QString theme = support::ThemeCopy;
    add(Static, "X", "77", "77", theme, "X=40", "X=77");
    add(Text, "Align", "2 = Right", "2", theme, "Align=1", "Align=2");
    add(Text, "Font", "3 = Bold with dark Outline", "3", theme, "Font=0", "Font=3");
    add(u"LoadingButtonGo"_s, "Visible", "0 = False", "0", theme, "Visible=1", "Visible=0");
    add(Static, "Direction", "1 = Bottom to Top", "1", theme, "Direction=0", "Direction=1");
    add(Static, "Type", "Font Black", "Font Black", theme, "Type=Plain", "Type=Font Black");
    add(Static, "Color", "P1Dark", "P1Dark", theme, "H=60\r\nColor=Red", "H=60\r\nColor=P1Dark");
    add(Static, "Z", "1.5.", "1.5.", theme, "Z=0.25", "Z=1.5.");
    add(Text, "Text", "Gr\xfc\xdf = [1];", "HELLO", support::LanguageCopy, "Hello there", "Gr\xfc\xdf = [1];");
    add(Static, "Tex", "new.png", "Plate", support::SkinCopy, "plate.png", "new.png");
    add(Static, "ColR", "", "0.5");  // no editor: nothing is written, the rest happens
  }
  void groups() {
    QFETCH(QString, file);
    QFETCH(Change, change);
    const QString key = QString::fromLatin1(QTest::currentDataTag());
    program->tag(*static_cast<QString*>(QTest::qData("object", QMetaType::QString)));
    program->row(key);
    const bool hasEditor = program->state.EditorShown;
    enter(program->tools(), *static_cast<QString*>(QTest::qData("text", QMetaType::QString)));
    auto files = game->files();
    if (!file.isEmpty()) files[file].replace(files[file].indexOf(change.first), change.first.size(), change.second);
    program->state.ProgressStep = 77;
    program->tools().Command1->click();
    QTEST(program->value(key), "value");
    for (const auto& [name, bytes] : game->files().asKeyValueRange()) QCOMPARE(bytes, files[name]);
    QVERIFY(program->state.Changed && program->enabled(SaveButton));
    QVERIFY2(program->state.ProgressStep != 77, "not drawn");
    QCOMPARE(program->state.EditorShown, hasEditor);
    QCOMPARE(program->tools().focusWidget(), program->tools().ListView1);
  }

  void aReferenceAndWhatItStandsForAreBothWritten() {
    program->tag(Static);
    program->row(u"Tex"_s);
    program->tools().Combo6->SetText(u"Other"_s);
    program->tools().Text3->SetText(u"new.png"_s);
    program->tools().Command1->click();
    QCOMPARE(program->value(u"Tex"_s), u"Other"_s);
    QVERIFY(game->read(support::ThemeCopy).contains("LoadingStaticA]\r\nTex=Other\r\n"));
    QVERIFY(game->read(support::SkinCopy).endsWith("Plate=plate.png\r\nOther=new.png\r\n"));
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
    add("a read-only theme", [](Program& p) {
      QFile::setPermissions(platform::NativePath(p.state.Paths.ThemeFile), QFileDevice::ReadOwner);
      p.row(u"X"_s);
      p.tools().Text1->SetText(u"9"_s);
    });
    add("a read-only skin, the theme is written", [](Program& p) {
      QFile::setPermissions(platform::NativePath(p.state.Paths.SkinFile), QFileDevice::ReadOwner);
      p.row(u"Tex"_s);
      p.tools().Combo6->SetText(u"Other"_s);
      p.tools().Text3->SetText(u"new.png"_s);
    });
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
    if (QByteArray(QTest::currentDataTag()).endsWith("is written"))
      files[support::ThemeCopy].replace("LoadingStaticA]\r\nTex=Plate", "LoadingStaticA]\r\nTex=Other");
    const auto filesNow = game->files();
    for (const QString& name : files.keys()) QCOMPARE(filesNow[name], files[name]);
    QCOMPARE(program->tools().ListView1->SubItem(0), row);
    QVERIFY(!program->state.Changed);
    QVERIFY(!program->enabled(SaveButton));
    QCOMPARE(program->state.ProgressStep, qint16(77));
  }

  void theMarkFollowsFiveKeys() {
    const mainwindows::Workspace& preview = *program->form.Workspace;
    const auto commit = [&](const char* key, const char* text) {
      program->row(QLatin1StringView(key));
      program->tools().Text1->SetText(QLatin1StringView(text));
      program->tools().Command1->click();
    };
    program->tag(Static);
    QCOMPARE(preview.Mark(), QRectF(40, 50, 100, 60));
    commit("X", "45");
    commit("H", "060");  // the bar stands at 60 already: the text stays
    commit("W", "120");
    QCOMPARE(preview.Mark(), QRectF(45, 50, 120, 60));
    QCOMPARE(program->state.CursorRect.H, u"60"_s);
    QCOMPARE(program->value(u"H"_s), u"060"_s);

    program->tag(Text);
    const double line = preview.Mark().height();
    QVERIFY(line > 12 && preview.Mark().width() == 0);
    commit("Size", "24");
    QVERIFY(qAbs(preview.Mark().height() - 2 * line) < 6);
    commit("Size", "70000");
    QCOMPARE(program->state.CursorRect.Size, qint16(24));
    QCOMPARE(program->value(u"Size"_s), u"70000"_s);
    program->row(u"Font"_s);
    program->tools().Combo2->SetListIndex(1);
    program->tools().Command1->click();
    QCOMPARE(program->state.CursorRect.Font, quint8(0));
  }

 private:
  std::unique_ptr<support::GameFolder> game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(ValueCommitTest)
#include "value_commit_test.moc"
