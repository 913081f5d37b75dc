#include "support/real_input.h"

using namespace Qt::StringLiterals;
using namespace support;

namespace {

const QByteArray Theme =
    "[Colors]\nInk=10 20 30\n[Loading]\n"
    "[LoadingStaticA]\nTex=Plate\nX=100\nY=100\nW=40\nH=40\nColor=Ink\nType=Font Black\n"
    "[LoadingTextA]\nX=300\nY=300\nFont=0\nSize=20\nColor=Ink\nText=HELLO\n";

void savePlain(const QString& path, QRgb color) {
  QImage picture(4, 4, QImage::Format_RGB32);
  picture.fill(color);
  if (!picture.save(path)) qFatal("%s", qPrintable(path));
}

}  // namespace

class ColoursAndKeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    game.write(u"Themes/Alpha.ini"_s, Theme);
    game.write(u"Skins/Alpha/One.ini"_s, "[Textures]\nPlate=ink.png\n");
    game.write(u"Languages/English.ini"_s, "[Text]\nHELLO=Hello\n");
    savePlain(game.native(u"Skins/Alpha/ink.png"_s), qRgb(0, 0, 0));
    savePlain(game.native(u"Skins/Alpha/paper.png"_s), qRgb(255, 255, 255));
    program = std::make_unique<Program>(game);
    QVERIFY(QTest::qWaitForWindowExposed(&program->form));
    program->open();
    QVERIFY(QTest::qWaitForWindowExposed(program->form.ToolWindow));
  }
  void cleanupTestCase() { program.reset(); }

  void colourFollowsAtTheNextCommit() {
    editorOf("LoadingStaticA", "Color");
    program->dialogs.colors = {QColor(200, 100, 50)};
    press(*tools().Command2);
    QVERIFY(game.read(ThemeCopy).contains("Ink=200 100 50\n"));
    QCOMPARE(tools().Command2->BackColor(), QColor(200, 100, 50));
    QCOMPARE(pixel(), qRgb(10, 20, 30));
    QVERIFY(!program->state.Changed && !program->enabled(2));
    QCOMPARE(program->status(), u"Kept in the working copy; the next Update makes Save available"_s);
    press(*tools().Command1);
    QCOMPARE(pixel(), qRgb(200, 100, 50));
    QVERIFY(program->state.Changed && program->enabled(2));
  }

  void newColourIsUsed() {
    editorOf("LoadingStaticA", "Color");
    program->dialogs.inputs = {u"Leaf"_s};
    press(*tools().Command3);
    QVERIFY(game.read(ThemeCopy).contains("Leaf=150 150 150\n"));
    QCOMPARE(tools().Combo3->Text(), u"Leaf"_s);
    press(*tools().Command1);
    QCOMPARE(pixel(), qRgb(150, 150, 150));
    program->dialogs.boxes = {platform::BoxAnswer::Yes};
    press(*tools().Command5);
    QVERIFY(!game.read(ThemeCopy).contains("Leaf="));
    QVERIFY(game.read(ThemeCopy).contains("Color=Leaf\n"));
  }

  void newWordsAreDrawn() {
    const QImage before = surface();
    editorOf("LoadingTextA", "Text");
    program->dialogs.inputs = {u"GREETING"_s};
    press(*tools().Command6);
    QVERIFY(game.read(LanguageCopy).contains("GREETING=\n"));
    type(*tools().Text2, "Good evening");
    press(*tools().Command1);
    QVERIFY(game.read(LanguageCopy).contains("GREETING=Good evening\n"));
    QVERIFY(game.read(ThemeCopy).contains("Text=GREETING\n"));
    const QImage drawn = surface();
    QVERIFY(drawn != before);
    program->dialogs.boxes = {platform::BoxAnswer::Yes};
    press(*tools().Command7);
    QCOMPARE(game.read(LanguageCopy), QByteArray("[Text]\nHELLO=Hello\n"));
    QCOMPARE(tools().Combo5->ListIndex(), -1);
  }

  void anotherImageIsDrawn() {
    editorOf("LoadingStaticA", "Color");
    pickEntry(*tools().Combo4, 0);
    press(*tools().Command1);
    QCOMPARE(pixel(), qRgb(200, 100, 50));
    editorOf("LoadingStaticA", "Tex");
    program->dialogs.files = {game.path() + u"Skins\\Alpha\\paper.png"_s};
    press(*tools().Command4);
    QCOMPARE(tools().Text3->Text(), u"paper.png"_s);
    QCOMPARE(pixel(), qRgb(200, 100, 50));
    press(*tools().Command1);
    QVERIFY(game.read(SkinCopy).contains("Plate=paper.png\n"));
    QCOMPARE(pixel(), qRgb(255, 255, 255));
    program->dialogs.boxes = {platform::BoxAnswer::Yes};
    press(*tools().Command9);
    QCOMPARE(game.read(SkinCopy), QByteArray("[Textures]\n"));
  }

  void nothingReachedTheGamesFiles() { QCOMPARE(game.read(u"Themes/Alpha.ini"_s), Theme); }

 private:
  toolwindow::Form2& tools() { return program->tools(); }
  QImage surface() const { return program->form.Workspace->Surface().image(); }
  QRgb pixel() const { return surface().pixel(120, 120); }

  void editorOf(const char* object, const char* key) {
    pickNamed(*tools().List1, object);
    pickNamed(*tools().ListView1, key);
  }

  GameFolder game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(ColoursAndKeysTest)
#include "colours_and_keys_test.moc"
