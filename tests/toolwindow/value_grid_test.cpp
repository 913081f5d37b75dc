#include <QTest>

#include "support/windows.h"

using namespace Qt::StringLiterals;
using support::Program;
using toolwindow::Form2;

namespace {

/// Name of the editor frame on show; "none", or both names of two.
QString shownFrame(const Form2& form) {
  QStringList shown;
  for (const QWidget* frame : {form.Numbers, form.FloatNumbers, form.Selection, form.Color, form.Texture, form.Texts}) {
    if (!frame->isHidden()) shown += frame->objectName();
  }
  return shown.isEmpty() ? u"none"_s : shown.join(u'+');
}

/// What an editor shows: the parts of its frame.
QString shownValue(const Form2& form, const QString& frame) {
  if (frame == u"Numbers") return form.Text1->Text();
  if (frame == u"FloatNumbers") return form.Text4->Text();
  if (frame == u"Selection") return form.Combo2->Text();
  if (frame == u"Texts") return form.Combo5->Text() + u'|' + form.Text2->Text();
  if (frame == u"Texture") return form.Combo6->Text() + u'|' + form.Text3->Text();
  return form.Combo4->Text() + u'|' + form.Combo3->Text();
}

}  // namespace

class ValueGridTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    program = std::make_unique<Program>(game);
    program->open();
    QVERIFY(program->form.ToolWindow != nullptr);
  }
  void cleanup() { program.reset(); }

  void frames() {
    const std::pair<QString, const char*> frames[] = {
        {u"Numbers"_s,
         "X Y SIZE W H PIECEW PIECEH SPACE BANDS LENGTH REFLECTIONSPACING DESELECTREFLECTIONSPACING SELECTH SELECTW "
         "FADETEXPOS FIRSTCHILD TEXTS PARENT STYLE STATICS SKIPX"},
        {u"Selection"_s, "ALIGN FONT VISIBLE REFLECTION FADE FADETEXT REFLECTIONS DIRECTION TYPE"},
        {u"Texts"_s, "TEXT"},
        {u"Color"_s, "COLOR DCOLOR TCOLOR TDCOLOR SBGCOLOR SBGDCOLOR STCOLOR STDCOLOR"},
        {u"Texture"_s, "TEX FADETEX SBGTEX TEXSBG"},
        {u"FloatNumbers"_s, "Z TEXX1 TEXY1 TEXX2 TEXY2 INT DINT"},
        {u"none"_s, "COLR COLG COLB TEXT1 TEXX STATIC S"}};
    for (const auto& [frame, keys] : frames) {
      for (const QString& key : QString::fromLatin1(keys).split(u' ')) {
        program->soleRow(u' ' + key.toLower() + u"  "_s, u"0"_s);
        QVERIFY2(shownFrame(program->tools()) == frame, qPrintable(key + shownFrame(program->tools())));
      }
    }
  }

  void editors_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QString>("shown");
    const auto add = [](const char* key, const char* value, const char* frame, const char* shown) {
      QTest::addRow("%s=%s", key, value) << QString::fromLatin1(key) << QString::fromLatin1(value)
                                         << QString::fromLatin1(frame) << QString::fromLatin1(shown);
    };
    add("X", "120", "Numbers", "120");
    add("Y", "-10", "Numbers", "0");
    add("ALIGN", "1", "Selection", "1 = Middle");
    add("ALIGN", "2", "Selection", "2 = Right");
    add("FONT", "", "Selection", "0 = Normal");
    add("FONT", "2", "Selection", "2 = Bold with Outline");
    add("FONT", "3", "Selection", "3 = Bold with dark Outline");
    add("FONT", "0.5", "Selection", "0 = Normal");
    add("FONT", "1.5", "Selection", "2 = Bold with Outline");
    add("VISIBLE", "word", "Selection", "0 = False");
    add("FADE", "1", "Selection", "1 = True");
    add("DIRECTION", "0", "Selection", "0 = Left to Right");
    add("DIRECTION", "1", "Selection", "1 = Bottom to Top");
    add("TYPE", "Transparent", "Selection", "Transparent");
    add("TYPE", "Font Black", "Selection", "Font Black");
    add("TYPE", "font black", "Selection", "");
    add("TEXT", "HELLO", "Texts", "HELLO|Hello there");
    add("TEXT", "EMPTY", "Texts", "EMPTY|");
    add("TEXT", "hello", "Texts", "|");
    add("TEX", "Plate", "Texture", "Plate|plate.png");
    add("SBGTEX", "Missing", "Texture", "|");
    add("COLOR", "Blue", "Color", "Theme|Blue");
    add("COLOR", "ColorLight", "Color", "Program|ColorLight");
    add("COLOR", "P6Dark", "Color", "Player|P6Dark");
    add("COLOR", "", "Color", "Theme|");
    add("COLOR", "blue", "Color", "|");
    add("INT", "1.250", "FloatNumbers", "1.250");
    for (const char* bad : {"ALIGN=3", "FONT=4", "VISIBLE=2", "DIRECTION=40000"}) {
      const QList<QByteArray> parts = QByteArray(bad).split('=');
      add(parts[0].constData(), parts[1].constData(), "none", "");
    }
  }
  void editors() {
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, frame);
    Form2& tools = program->tools();
    program->soleRow(u"TYPE"_s, u"Plain"_s);  // what Combo2 held before
    const bool failed = frame == u"none";
    program->soleRow(key, value);
    QCOMPARE(shownFrame(tools), frame);
    QVERIFY(program->state.EditorShown);
    QCOMPARE(program->status().startsWith(u"Error while reading Value ["), failed);
    if (!failed) QTEST(shownValue(tools, frame), "shown");
    QCOMPARE(program->value(key), value);
    QVERIFY(!program->state.Changed);
    if (key == u"ALIGN") QCOMPARE(tools.Combo2->ListCount(), 3);
    if (key == u"VISIBLE") QCOMPARE(tools.Combo2->ListCount(), 2);
  }

  // 15 twips a pixel: 3835, 4235 and 3105 twips less the frame's 360.
  void windowFollowsTheEditor() {
    Form2& tools = program->tools();
    const QRect lists = tools.List1->geometry();
    const auto heightAfter = [&](const char* key) {
      program->soleRow(QLatin1StringView(key), u"1"_s);
      support::settle();
      return tools.height();
    };
    QCOMPARE(tools.height(), 183);
    QCOMPARE(heightAfter("X"), 232);
    QCOMPARE(heightAfter("TEXT"), 258);
    QCOMPARE(tools.List1->geometry(), lists);
    QVERIFY(tools.Command1->isVisible());
    QCOMPARE(heightAfter("ColR"), 183);
    QVERIFY(!program->state.EditorShown);
    QVERIFY(!tools.Command1->isVisible());
    QCOMPARE(heightAfter("ColG"), 183);
    QCOMPARE(heightAfter("Z"), 232);
    program->tag(u"LoadingTextFree"_s);
    QCOMPARE(tools.height(), 183);
    QCOMPARE(shownFrame(tools), u"none"_s);
    heightAfter("X");
    program->screen(u"Main Screen"_s);
    QCOMPARE(tools.height(), 183);
    QVERIFY(!program->state.EditorShown);
    tools.resize(600, 400);  // outer 9120 x 6360 twips
    QCOMPARE(tools.List1->geometry(), QRect(0, 24, 297, 376));
  }

  void numbers_data() {
    QTest::addColumn<int>("bar");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("barAfter");
    const auto add = [](int bar, const char* text, const char* shown, int barAfter) {
      QTest::addRow("%d: %s", bar, text) << bar << QString::fromLatin1(text) << QString::fromLatin1(shown) << barAfter;
    };
    add(5, "120", "120", 120);
    add(5, "12.5", "12", 12);
    add(5, "13.5", "14", 14);
    add(5, "-20", "0", 0);
    add(5, "", "0", 0);
    add(5, "word", "0", 0);
    add(0, "word", "word", 0);
    add(120, "120.2", "120.2", 120);
    add(-1000, "-1000", "-1000", -1000);
    add(5, "10000", "10000", 10000);
    add(5, "10001", "10001", 10000);
    add(5, "99999999", "99999999", 10000);
    add(5, "-10001", "0", 0);
    add(5, "-99999999", "0", 0);
  }
  void numbers() {
    QFETCH(int, bar);
    QFETCH(QString, text);
    Form2& tools = program->tools();
    tools.Text1->SetText(u"before"_s);
    tools.VScroll1->SetValueQuietly(bar);
    program->soleRow(u"X"_s, text);
    QTEST(tools.Text1->Text(), "shown");
    QTEST(tools.VScroll1->Value(), "barAfter");
  }

  void barAndTypedLetters() {
    Form2& tools = program->tools();
    program->soleRow(u"X"_s, u"12345"_s);
    tools.VScroll1->SetValue(9999);
    QCOMPARE(tools.Text1->Text(), u"9999"_s);
    tools.Text1->selectAll();
    QTest::keyClicks(tools.Text1, u"1a-2.3"_s);
    QCOMPARE(tools.Text1->Text(), u"123"_s);
    QCOMPARE(tools.VScroll1->Value(), 123);
    program->soleRow(u"Z"_s, QString());
    QTest::keyClicks(tools.Text4, u"-1.2,.3e"_s);
    QCOMPARE(tools.Text4->Text(), u"1.2.3"_s);
  }

 private:
  support::GameFolder game;
  std::unique_ptr<Program> program;
};

QTEST_MAIN(ValueGridTest)
#include "value_grid_test.moc"
