#include "support/windows.h"

using namespace support;
using toolwindow::Form2;

/// Texts as long as the editors take, and numbers by keys and wheel.
class EditorsTest : public ProgramTest {
  Q_OBJECT

 private Q_SLOTS:
  void longTexts() {
    Form2& tools = program->tools();
    for (const int letters : {32000, 32001}) {
      const bool fits = letters == 32000;
      const QByteArray words(letters, 'w');
      game->put(LanguageCopy, "[Text]\r\nHELLO=" + words + "\r\n");
      for (const char* key : {"Z", "TEXT"}) {  // the value itself is long, or what it refers to
        program->tag(u"LoadingStaticA"_s);
        program->form.ShowStatus(QString());
        program->soleRow(QString::fromLatin1(key), *key == 'Z' ? QString(letters, u'1') : u"HELLO"_s);
        QCOMPARE(named<QWidget>(tools, "Frame1")->isHidden(), *key == 'Z' && !fits);
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

  void numbersByKeysAndWheel() {
    Form2& tools = program->tools();
    program->soleRow(u"X"_s, u"9999"_s);
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
