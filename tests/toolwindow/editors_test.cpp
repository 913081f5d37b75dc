#include "support/row_name.h"
#include "support/windows.h"

using namespace support;
using toolwindow::Form2;

namespace {

const QString Static = u"LoadingStaticA"_s;

/// Name of the editor frame on show; "none", or both names of two.
QString shownFrame(const Form2& form) {
  QStringList shown;
  for (const QWidget* frame : {Editors(form).Numbers, Editors(form).FloatNumbers, Editors(form).Selection,
                               Editors(form).Color, Editors(form).Texture, Editors(form).Texts}) {
    if (!frame->isHidden()) shown += frame->objectName();
  }
  return shown.isEmpty() ? u"none"_s : shown.join(u'+');
}

/// What the editor on show holds that isn't a number: the parts of its frame.
QString shownValue(const Form2& form) {
  const QString frame = shownFrame(form);
  if (frame == u"Selection") return Editors(form).Combo2->Text();
  if (frame == u"Texts") return Editors(form).Combo5->Text() + u'|' + Editors(form).Text2->Text();
  if (frame == u"Texture") return Editors(form).Combo6->Text() + u'|' + Editors(form).Text3->Text();
  if (frame == u"Color") return Editors(form).Combo4->Text() + u'|' + Editors(form).Combo3->Text();
  return frame;
}

}  // namespace

/// What the editors show of a value of the grid.
class EditorsTest : public ProgramTest {
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

  void values() {
    // Key, value, and what is shown.
    for (const char* row :
         {"ALIGN/2/2 = Right", "FONT//0 = Normal", "FONT/3/3 = Bold with dark Outline", "FONT/0.5/0 = Normal",
          "FONT/1.5/2 = Bold with Outline", "FADE/word/0 = False", "FADE/2/none", "DIRECTION/0/0 = Left to Right",
          "FONT/40000/none", "DIRECTION/1/1 = Bottom to Top", "TYPE/font black/", "TYPE/Transparent/Transparent",
          "TEXT/HELLO/HELLO|Hello there", "TEX/Plate/Plate|plate.png", "COLOR/blue/|", "COLOR/Blue/Theme|Blue",
          "COLOR/P6Dark/Player|P6Dark", "COLOR/ColorLight/Program|ColorLight"}) {
      const RowName name(row);
      const QStringList parts = QString::fromLatin1(row).split(u'/');
      program->soleRow(u"TYPE"_s, u"Plain"_s);  // what the choices held before
      program->form.ShowStatus(QString());
      program->soleRow(parts[0], parts[1]);
      QCOMPARE(shownValue(program->tools()), parts[2]);
      const bool failed = shownFrame(program->tools()) == u"none";
      QCOMPARE(program->status().startsWith(u"Error while reading Value ["), failed);
      QVERIFY(program->state.EditorShown && !program->state.Changed);
    }
  }

  void longTexts() {
    Form2& tools = program->tools();
    for (const int letters : {32000, 32001}) {
      const bool fits = letters == 32000;
      const QByteArray words(letters, 'w');
      game->put(LanguageCopy, "[Text]\r\nHELLO=" + words + "\r\n");
      for (const char* key : {"Z", "TEXT"}) {  // the value itself is long, or what it refers to
        program->tag(Static);
        program->form.ShowStatus(QString());
        program->soleRow(QString::fromLatin1(key), *key == 'Z' ? QString(letters, u'1') : u"HELLO"_s);
        QCOMPARE(shownFrame(tools) == u"none"_s, *key == 'Z' && !fits);
        const QString report = u"Error while reading Value [%1 is too long to be edited here]"_s;
        QCOMPARE(program->status(), fits ? QString() : report.arg(*key == 'Z' ? u"Z"_s : u"HELLO"_s));
        const QByteArray theme = game->get(ThemeCopy);
        Editors(tools).Command1->click();
        if (*key == 'Z') {
          QCOMPARE(game->get(ThemeCopy) == theme, !fits);
          continue;
        }
        QVERIFY(game->get(LanguageCopy).contains(words));
        QCOMPARE(program->state.Changed, fits);
        program->state.Changed = false;
      }
    }
  }

  void numbers() {
    const struct {
      int bar;
      const char *text, *shown;
      int barAfter;
    } rows[] = {{5, "12.5", "12", 12}, {5, "-20", "0", 0},          {5, "13.5", "14", 14},
                {5, "word", "0", 0},   {0, "word", "word", 0},      {120, "120.2", "120.2", 120},
                {5, "-10001", "0", 0}, {5, "10001", "10001", 10000}};
    Form2& tools = program->tools();
    for (const auto& [bar, text, shown, barAfter] : rows) {
      Editors(tools).VScroll1->setValueQuietly(bar);
      program->soleRow(u"X"_s, QLatin1StringView(text));
      QCOMPARE(Editors(tools).Text1->Text(), QLatin1StringView(shown));
      QCOMPARE(Editors(tools).VScroll1->Value(), barAfter);
    }
    Editors(tools).VScroll1->SetValue(9999);
    QCOMPARE(Editors(tools).Text1->Text(), u"9999"_s);
    Editors(tools).Text1->selectAll();
    QTest::keyClicks(Editors(tools).Text1, u"1a-2.3"_s);
    QCOMPARE(Editors(tools).Text1->Text(), u"123"_s);
    QCOMPARE(Editors(tools).VScroll1->Value(), 123);
    Editors(tools).Text1->SetText(u"1"_s);
    for (const auto& [key, number] :
         {std::pair{Qt::Key_Down, "0"}, {Qt::Key_PageDown, "0"}, {Qt::Key_PageUp, "1"}, {Qt::Key_Up, "2"}}) {
      QTest::keyClick(Editors(tools).Text1, key);
      QCOMPARE(Editors(tools).Text1->Text(), QLatin1StringView(number));
    }
    for (QWidget* part :
         std::initializer_list<QWidget*>{Editors(tools).Text1, Editors(tools).VScroll1, Editors(tools).Command1}) {
      part->setFocus();
      for (QWidget* under : std::initializer_list<QWidget*>{Editors(tools).Text1, Editors(tools).VScroll1})
        turnWheel(*under, 60);
    }
    QCOMPARE(Editors(tools).Text1->Text(), u"4"_s);
    program->soleRow(u"Z"_s, QString());
    QTest::keyClicks(Editors(tools).Text4, u"-1.2,.3e"_s);
    QCOMPARE(Editors(tools).Text4->Text(), u"1.2.3"_s);
  }
};

QTEST_MAIN(EditorsTest)
#include "editors_test.moc"
