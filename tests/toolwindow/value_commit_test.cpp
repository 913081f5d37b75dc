#include <QTest>

#include "support/windows.h"

using support::Program;
using toolwindow::Form2;

using Act = void (*)(Program& program);
using Change = std::pair<QByteArray, QByteArray>;  ///< what becomes what in a file

namespace {

const QString Static = QStringLiteral("LoadingStaticA");
const QString Text = QStringLiteral("LoadingTextFree");
constexpr int SaveButton = 2;

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
    QTest::addColumn<QString>("key");
    QTest::addColumn<Act>("edit");
    QTest::addColumn<QString>("value");
    QTest::addColumn<Change>("theme");
    QTest::addColumn<Change>("skin");
    QTest::addColumn<Change>("language");
    const auto add = [](const QString& object, const char* key, Act edit, const char* value, const char* before,
                        const char* after, const Change& skin = {}, const Change& language = {}) {
      QTest::addRow("%s", key) << object << QString::fromLatin1(key) << edit << QString::fromLatin1(value)
                               << Change{before, after} << skin << language;
    };
    add(
        Static, "X", [](Program& p) { p.tools().Text1->SetText(QStringLiteral("77")); }, "77", "X=40", "X=77");
    add(
        Text, "Align", [](Program& p) { p.tools().Combo2->SetListIndex(2); }, "2", "Align=1", "Align=2");
    add(
        Text, "Font", [](Program& p) { p.tools().Combo2->SetListIndex(3); }, "3", "Font=0", "Font=3");
    add(
        QStringLiteral("LoadingButtonGo"), "Visible", [](Program& p) { p.tools().Combo2->SetListIndex(0); }, "0",
        "Visible=1", "Visible=0");
    add(
        Static, "Direction", [](Program& p) { p.tools().Combo2->SetListIndex(1); }, "1", "Direction=0", "Direction=1");
    add(
        Static, "Type", [](Program& p) { p.tools().Combo2->SetText(QStringLiteral("Font Black")); }, "Font Black",
        "Type=Plain", "Type=Font Black");
    add(
        Static, "Color",
        [](Program& p) {
          p.tools().Combo4->setCurrentIndex(2);
          Q_EMIT p.tools().Combo4->Click(controls::Cause::User);
        },
        "P1Dark", "H=60\r\nColor=Red", "H=60\r\nColor=P1Dark");
    add(
        Static, "Z", [](Program& p) { p.tools().Text4->SetText(QStringLiteral("1.5.")); }, "1.5.", "Z=0.25", "Z=1.5.");
    add(Text, "Text", [](Program& p) { p.tools().Text2->SetText(QStringLiteral("Gr\u00fc\u00df = \u201cGott\u201d")); },
        "HELLO", "", "", {}, {"Hello there", "Gr\xfc\xdf = \x93Gott\x94"});
    add(Static, "Tex",
        [](Program& p) {
          p.tools().Combo6->SetText(QStringLiteral("Other"));
          p.tools().Text3->SetText(QStringLiteral("new.png"));
        },
        "Other", "StaticA]\r\nTex=Plate", "StaticA]\r\nTex=Other", {"other.png", "new.png"});
    add(
        Static, "ColR", [](Program&) {}, "0.5", "", "");
  }
  void groups() {
    QFETCH(QString, object);
    QFETCH(QString, key);
    QFETCH(Act, edit);
    program->tag(object);
    program->row(key);
    const bool hasEditor = program->state.EditorShown;
    edit(*program);
    program->state.ProgressStep = 77;
    program->tools().Command1->click();
    QTEST(program->value(key), "value");
    const std::pair<QString, const char*> files[] = {
        {support::ThemeCopy, "theme"}, {support::SkinCopy, "skin"}, {support::LanguageCopy, "language"}};
    for (const auto& [copy, column] : files) {
      const auto change = *static_cast<Change*>(QTest::qData(column, qMetaTypeId<Change>()));
      QByteArray expected = game->read(copy.chopped(4));
      if (!change.first.isEmpty()) expected.replace(expected.indexOf(change.first), change.first.size(), change.second);
      QCOMPARE(game->read(copy), expected);
    }
    QVERIFY(program->state.Changed);
    QVERIFY(program->enabled(SaveButton));
    QVERIFY2(program->state.ProgressStep != 77, "not drawn");
    QCOMPARE(program->state.EditorShown, hasEditor);
    QCOMPARE(program->tools().focusWidget(), program->tools().ListView1);
  }

  void refusals_data() {
    QTest::addColumn<Act>("edit");
    QTest::addColumn<bool>("themeWritten");
    QTest::newRow("no row") << Act([](Program& p) { p.tools().ListView1->SelectRow(-1); }) << false;
    QTest::newRow("no object") << Act([](Program& p) {
      p.row(QStringLiteral("X"));
      p.tools().List1->SetListIndex(-1);
    }) << false;
    QTest::newRow("nothing in Combo2") << Act([](Program& p) {
      p.soleRow(QStringLiteral("TYPE"), QStringLiteral("plain"));
    }) << false;
    QTest::newRow("nothing in Combo3") << Act([](Program& p) {
      p.soleRow(QStringLiteral("COLOR"), QStringLiteral("Lost"));
    }) << false;
    QTest::newRow("nothing in Combo5") << Act([](Program& p) {
      p.soleRow(QStringLiteral("TEXT"), QStringLiteral("LOST"));
    }) << false;
    QTest::newRow("nothing in Combo6") << Act([](Program& p) {
      p.soleRow(QStringLiteral("TEX"), QStringLiteral("Lost"));
    }) << false;
    QTest::newRow("a section with a bracket") << Act([](Program& p) {
      p.screen(QStringLiteral("Level Screen"));
      p.tag(QStringLiteral("LevelStatic]x"));
      p.soleRow(QStringLiteral("X"), QStringLiteral("9"));
    }) << false;
    QTest::newRow("outside the code page") << Act([](Program& p) {
      p.soleRow(QStringLiteral("TEXT"), QStringLiteral("GO"));
      p.tools().Text2->SetText(QStringLiteral("\u4e2d"));
    }) << false;
    QTest::newRow("a read-only theme") << Act([](Program& p) {
      QFile::setPermissions(themeFile(p), QFileDevice::ReadOwner);
      p.row(QStringLiteral("X"));
      p.tools().Text1->SetText(QStringLiteral("9"));
    }) << false;
    QTest::newRow("a read-only skin") << Act([](Program& p) {
      QFile::setPermissions(skinFile(p), QFileDevice::ReadOwner);
      p.row(QStringLiteral("Tex"));
      p.tools().Combo6->SetText(QStringLiteral("Other"));
      p.tools().Text3->SetText(QStringLiteral("new.png"));
    }) << true;
  }
  void refusals() {
    QFETCH(Act, edit);
    QFETCH(bool, themeWritten);
    program->tag(Static);
    auto files = game->files();
    edit(*program);
    const QString row = program->tools().ListView1->SubItem(0);
    program->state.ProgressStep = 77;
    program->tools().Command1->click();
    QVERIFY2(program->status().startsWith(u"Error while writing tempfile ["), qPrintable(program->status()));
    if (themeWritten) files[support::ThemeCopy].replace("LoadingStaticA]\r\nTex=Plate", "LoadingStaticA]\r\nTex=Other");
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
    QCOMPARE(program->state.CursorRect.H, QStringLiteral("60"));
    QCOMPARE(program->value(QStringLiteral("H")), QStringLiteral("060"));

    program->tag(Text);
    const double line = preview.Mark().height();
    QVERIFY(line > 12 && preview.Mark().width() == 0);
    commit("Size", "24");
    QVERIFY(qAbs(preview.Mark().height() - 2 * line) < 6);
    commit("Size", "70000");
    QCOMPARE(program->state.CursorRect.Size, qint16(24));
    QCOMPARE(program->value(QStringLiteral("Size")), QStringLiteral("70000"));
    program->row(QStringLiteral("Font"));
    program->tools().Combo2->SetListIndex(1);
    program->tools().Command1->click();
    QCOMPARE(program->state.CursorRect.Font, quint8(0));
  }

 private:
  static QString themeFile(Program& p) { return QString(p.state.Paths.ThemeFile).replace(u'\\', u'/'); }
  static QString skinFile(Program& p) { return QString(p.state.Paths.SkinFile).replace(u'\\', u'/'); }

  std::unique_ptr<support::GameFolder> game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(ValueCommitTest)
#include "value_commit_test.moc"
