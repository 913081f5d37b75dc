#include <QTest>

#include "support/windows.h"

using namespace support;
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

/// What the editor on show holds: the parts of its frame.
QString shownValue(const Form2& form) {
  const QString frame = shownFrame(form);
  if (frame == u"Numbers") return form.Text1->Text();
  if (frame == u"FloatNumbers") return form.Text4->Text();
  if (frame == u"Selection") return form.Combo2->Text();
  if (frame == u"Texts") return form.Combo5->Text() + u'|' + form.Text2->Text();
  if (frame == u"Texture") return form.Combo6->Text() + u'|' + form.Text3->Text();
  if (frame == u"Color") return form.Combo4->Text() + u'|' + form.Combo3->Text();
  return frame;
}

}  // namespace

class ValueGridTest : public ProgramTest {
  Q_OBJECT

 private Q_SLOTS:
  void frames() {
    const std::pair<const char*, const char*> frames[] = {
        {"Numbers",
         "X Y SIZE W H PIECEW PIECEH SPACE BANDS LENGTH REFLECTIONSPACING DESELECTREFLECTIONSPACING SELECTH SELECTW "
         "FADETEXPOS FIRSTCHILD TEXTS PARENT STYLE STATICS SKIPX"},
        {"Selection", "ALIGN FONT VISIBLE REFLECTION FADE FADETEXT REFLECTIONS DIRECTION TYPE"},
        {"Texts", "TEXT"},
        {"Color", "COLOR DCOLOR TCOLOR TDCOLOR SBGCOLOR SBGDCOLOR STCOLOR STDCOLOR"},
        {"Texture", "TEX FADETEX SBGTEX TEXSBG"},
        {"FloatNumbers", "Z TEXX1 TEXY1 TEXX2 TEXY2 INT DINT"},
        {"none", "COLR COLG COLB TEXT1 TEXX STATIC S"}};
    for (const auto& [frame, keys] : frames) {
      for (const QString& key : QString::fromLatin1(keys).split(u' ')) {
        program->soleRow(u' ' + key.toLower() + u"  "_s, u"0"_s);
        QVERIFY2(shownFrame(program->tools()) == QLatin1StringView(frame), qPrintable(key));
      }
    }
  }

  void editors() {
    const struct {
      const char *key, *value, *shown;
    } rows[] = {{"X", "120", "120"},
                {"Y", "-10", "0"},
                {"ALIGN", "1", "1 = Middle"},
                {"ALIGN", "2", "2 = Right"},
                {"ALIGN", "3", "none"},
                {"FONT", "", "0 = Normal"},
                {"FONT", "2", "2 = Bold with Outline"},
                {"FONT", "3", "3 = Bold with dark Outline"},
                {"FONT", "0.5", "0 = Normal"},
                {"FONT", "1.5", "2 = Bold with Outline"},
                {"FONT", "4", "none"},
                {"VISIBLE", "word", "0 = False"},
                {"VISIBLE", "2", "none"},
                {"FADE", "1", "1 = True"},
                {"DIRECTION", "0", "0 = Left to Right"},
                {"DIRECTION", "1", "1 = Bottom to Top"},
                {"DIRECTION", "40000", "none"},
                {"TYPE", "Transparent", "Transparent"},
                {"TYPE", "Font Black", "Font Black"},
                {"TYPE", "font black", ""},
                {"TEXT", "HELLO", "HELLO|Hello there"},
                {"TEXT", "EMPTY", "EMPTY|"},
                {"TEXT", "hello", "|"},
                {"TEX", "Plate", "Plate|plate.png"},
                {"SBGTEX", "Missing", "|"},
                {"COLOR", "blue", "|"},
                {"COLOR", "Blue", "Theme|Blue"},
                {"COLOR", "ColorLight", "Program|ColorLight"},
                {"COLOR", "P6Dark", "Player|P6Dark"},
                {"COLOR", "", "Theme|"},
                {"INT", "1.250", "1.250"}};
    const Form2& tools = program->tools();
    for (const auto& [key, value, shown] : rows) {
      const QByteArray name = QByteArray(key) + '=' + value;
      program->soleRow(u"TYPE"_s, u"Plain"_s);  // what Combo2 held before
      program->form.ShowStatus(QString());
      program->soleRow(QLatin1StringView(key), QLatin1StringView(value));
      QCOMPARE(name + ": " + shownValue(tools).toLatin1(), name + ": " + shown);
      const bool failed = shownFrame(tools) == u"none";
      QVERIFY2(program->status().startsWith(u"Error while reading Value [") == failed, name);
      QVERIFY2(program->state.EditorShown && !program->state.Changed, name);
      QCOMPARE(program->value(QLatin1StringView(key)), QLatin1StringView(value));
      const int choices = qstrcmp(key, "ALIGN") == 0 ? 3 : qstrcmp(key, "VISIBLE") == 0 ? 2 : tools.Combo2->ListCount();
      QCOMPARE(tools.Combo2->ListCount(), choices);
    }
  }

  // 15 twips a pixel: 3835, 4235 and 3105 twips less the frame's 360.
  void windowFollowsTheEditor() {
    Form2& tools = program->tools();
    const QRect lists = tools.List1->geometry();
    const auto height = [&] {
      settle();
      const bool open = tools.height() > 183;
      if (tools.Command1->isVisible() != open || program->state.EditorShown != open) return -1;
      return tools.height();
    };
    QCOMPARE(height(), 183);
    for (const auto& [key, expected] : {std::pair{"X", 232}, {"TEXT", 258}, {"ColR", 183}, {"ColG", 183}, {"Z", 232}}) {
      program->soleRow(QLatin1StringView(key), u"1"_s);
      QCOMPARE(height(), expected);
      QCOMPARE(tools.List1->geometry(), lists);
    }
    program->tag(u"LoadingTextFree"_s);
    QCOMPARE(height(), 183);
    QCOMPARE(shownFrame(tools), u"none"_s);
    program->row(u"X"_s);
    program->screen(u"Main Screen"_s);
    QCOMPARE(height(), 183);
    tools.resize(600, 400);  // outer 9120 x 6360 twips
    QCOMPARE(tools.List1->geometry(), QRect(0, 24, 297, 376));
  }

  void numbers() {
    const struct {
      int bar;
      const char *text, *shown;
      int barAfter;
    } rows[] = {{5, "120", "120", 120},
                {5, "12.5", "12", 12},
                {5, "13.5", "14", 14},
                {5, "-20", "0", 0},
                {5, "", "0", 0},
                {5, "word", "0", 0},
                {0, "word", "word", 0},
                {120, "120.2", "120.2", 120},
                {-1000, "-1000", "-1000", -1000},
                {5, "10000", "10000", 10000},
                {5, "10001", "10001", 10000},
                {5, "99999999", "99999999", 10000},
                {5, "-10001", "0", 0},
                {5, "-99999999", "0", 0}};
    Form2& tools = program->tools();
    for (const auto& [bar, text, shown, barAfter] : rows) {
      tools.Text1->SetText(u"before"_s);
      tools.VScroll1->SetValueQuietly(bar);
      program->soleRow(u"X"_s, QLatin1StringView(text));
      QCOMPARE(tools.Text1->Text(), QLatin1StringView(shown));
      QCOMPARE(tools.VScroll1->Value(), barAfter);
    }
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
};

QTEST_MAIN(ValueGridTest)
#include "value_grid_test.moc"
