#include "support/real_input.h"

using namespace support;
using toolwindow::Form2;

namespace {

const QByteArray Theme = linesOf(
    "[Colors]|Ink=10 20 30|[Loading]|"
    "[LoadingStaticA]|Tex=Plate|X=100|Y=100|W=40|H=40|Color=Ink|Type=Font Black|"
    "[LoadingTextA]|X=300|Y=300|Font=0|Size=20|Color=Ink|Text=HELLO|");
const QString Kept = u"Kept in the working copy; the next Update makes Save available"_s;
const QByteArray Language = linesOf("[Text]|HELLO=Hello|");

}  // namespace

/// Colours and keys that are added, used and removed, one after another in one session.
class ColoursAndKeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() {
    game.put(ThemeFile, Theme);
    game.put(SkinFile, "[Textures]\r\nPlate=ink.png\r\n");
    game.put(LanguageFile, Language);
    game.addPicture("ink.png", Qt::black);
    game.addPicture("paper.png", Qt::white);
    program = std::make_unique<Program>(game);
    openOnScreen(*program);
  }
  void cleanupTestCase() { program.reset(); }

  void colourFollowsAtTheNextCommit() {
    pick("LoadingStaticA", "Color");
    program->dialogs.colors = {QColor(200, 100, 50)};
    press(*tools().Command2);
    QVERIFY(game.get(ThemeCopy).contains("Ink=200 100 50\r\n"));
    QCOMPARE(tools().Command2->BackColor(), QColor(200, 100, 50));
    QCOMPARE(pixel(), QColor(10, 20, 30));
    QVERIFY(!program->state.Changed && !program->enabled(2));
    QCOMPARE(program->status(), Kept);
    press(*tools().Command1);
    QCOMPARE(pixel(), QColor(200, 100, 50));
    QVERIFY(program->state.Changed && program->enabled(2));
  }

  void newColour() {
    pick("LoadingStaticA", "Color");
    program->dialogs.inputs = {u"Leaf"_s};
    press(*tools().Command3);
    QVERIFY(game.get(ThemeCopy).startsWith("[Colors]\r\nInk=200 100 50\r\nLeaf=150 150 150\r\n[Loading]"));
    QCOMPARE(shown(tools().Combo3), u"Ink,Leaf: Leaf"_s);
    QCOMPARE(tools().Command2->BackColor(), QColor(150, 150, 150));
    press(*tools().Command1);
    QCOMPARE(pixel(), QColor(150, 150, 150));
    remove(tools().Command5);
    QCOMPARE(shown(tools().Combo3), u"Ink: "_s);
    QCOMPARE(tools().Command2->BackColor(), QColor(212, 208, 200));
    QVERIFY(program->state.ThemeColors[1].Name.isEmpty());
    QVERIFY(!game.get(ThemeCopy).contains("Leaf=") && game.get(ThemeCopy).contains("Color=Leaf\r\n"));
  }

  void newWords() {
    const QImage before = program->picture();
    pick("LoadingTextA", "Text");
    program->dialogs.inputs = {u"GREETING"_s};
    press(*tools().Command6);
    QCOMPARE(game.get(LanguageCopy), Language + "GREETING=\r\n");
    QCOMPARE(shown(tools().Combo5) + tools().Text2->Text(), u"HELLO,GREETING: GREETING"_s);
    type(*tools().Text2, "Good evening");
    press(*tools().Command1);
    QCOMPARE(game.get(LanguageCopy), Language + "GREETING=Good evening\r\n");
    QVERIFY(game.get(ThemeCopy).contains("Text=GREETING\r\n"));
    QVERIFY(program->picture() != before);
    remove(tools().Command7);
    QCOMPARE(game.get(LanguageCopy), Language);
    QCOMPARE(shown(tools().Combo5) + tools().Text2->Text(), u"HELLO: "_s);
  }

  void anotherImage() {
    pick("LoadingStaticA", "Color");
    pickEntry(*tools().Combo4, 0);
    press(*tools().Command1);
    QCOMPARE(pixel(), QColor(200, 100, 50));
    pick("LoadingStaticA", "Tex");
    program->dialogs.files = {game.path() + u"Skins\\Alpha\\paper.png"_s};
    press(*tools().Command4);
    QCOMPARE(tools().Text3->Text(), u"paper.png"_s);
    QCOMPARE(pixel(), QColor(200, 100, 50));
    press(*tools().Command1);
    QVERIFY(game.get(SkinCopy).contains("Plate=paper.png\r\n"));
    QCOMPARE(pixel(), QColor(Qt::white));
    remove(tools().Command9);
    QCOMPARE(game.get(SkinCopy), "[Textures]\r\n");
    QCOMPARE(shown(tools().Combo6) + tools().Text3->Text(), u": "_s);
  }

  void newTexture() {
    program->dialogs.inputs = {u"Fr\u00ff"_s};
    press(*tools().Command8);
    QCOMPARE(shown(tools().Combo6) + tools().Text3->Text(), u"Fr\u00ff: Fr\u00ff"_s);
    program->dialogs.files = {game.path() + u"Skins\\Alpha\\ink.png"_s};
    press(*tools().Command4);
    press(*tools().Command1);
    QCOMPARE(game.get(SkinCopy), "[Textures]\r\nFr\xff=ink.png\r\n");
    QVERIFY(game.get(ThemeCopy).contains("Tex=Fr\xff\r\n"));
    QCOMPARE(pixel(), QColor(200, 100, 50));
  }

  void nothingReachedTheGamesFiles() { QCOMPARE(game.get(ThemeFile), Theme); }

 private:
  Form2& tools() const { return program->tools(); }
  QColor pixel() const { return program->picture().pixelColor(120, 120); }

  /// The entries of a list, and the one that is chosen.
  static QString shown(const controls::ComboBox* list) { return entries(*list).join(u',') + u": "_s + list->Text(); }

  void pick(const char* object, const char* key) const {
    pickNamed(*tools().List1, object);
    pickNamed(*tools().ListView1, key);
  }

  void remove(QPushButton* button) const {
    program->dialogs.boxes = {platform::BoxAnswer::Yes};
    press(*button);
    QCOMPARE(program->status(), Kept);
  }

  GameFolder game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(ColoursAndKeysTest)
#include "colours_and_keys_test.moc"
