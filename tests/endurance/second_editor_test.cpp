#include "support/row_name.h"
#include "support/windows.h"

using namespace support;
using platform::BoxAnswer;

namespace {

const QString Kept = ThemeCopy + u".old"_s;

/// A theme whose first screen has something to report when it is drawn, which must not hide a word about kept files.
void spoil(const GameFolder& game) {
  const QByteArray beyond = "[LoadingStaticBeyond]\r\nTex=Plate\r\nColor=Red\r\nX=40000\r\n[Main]\r\n";
  game.put(ThemeFile, game.get(ThemeFile).replace("[Main]\r\n", beyond));
}

}  // namespace

/// Two programs on one theme, or one whose working copies are meddled with: no edit goes without a word.
class SecondEditorTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theSecondOpens() {
    const GameFolder game;
    spoil(game);
    Program a(game);
    Program b(game);
    a.open();
    a.edit();
    const QByteArray edited = game.get(ThemeCopy);
    b.open();
    QCOMPARE(game.get(Kept), edited);
    QVERIFY2(b.status().contains(u".tmp.old"), qPrintable(b.status()));
    // A second Open of the other one takes the place of what the first one kept.
    b.edit(u"W"_s, u"55"_s);
    b.dialogs.boxes = {BoxAnswer::Yes};
    b.open();
    QVERIFY(game.get(Kept) != edited);

    a.edit(u"Y"_s, u"88"_s);
    QVERIFY2(a.status().contains(u"another program") && a.status().contains(u".tmp.old"), qPrintable(a.status()));
    QCOMPARE(game.get(Kept), edited);
    QVERIFY(game.get(ThemeCopy).contains("Y=88") && !game.get(ThemeCopy).contains("X=77"));
    a.edit(u"Y"_s, u"89"_s);
    QVERIFY2(!a.status().contains(u"another program"), qPrintable(a.status()));
  }

  void bothEditInTurn() {
    for (const char* act : {"Save", "a commit", "a colour"}) {  // of the first, behind the edit of the second
      const RowName name(act);
      const GameFolder game;
      Program a(game);
      Program b(game);
      a.open();
      b.open();
      a.edit();
      const QByteArray edited = game.get(ThemeCopy);
      b.edit(u"W"_s, u"55"_s);
      QVERIFY2(!b.status().contains(u"another program"), "it had no edits of its own");
      a.dialogs.inputs = {u"Fresh"_s};
      if (name.name == "Save") a.click(2);
      if (name.name == "a commit") a.edit(u"H"_s, u"33"_s);
      if (name.name == "a colour") a.row(u"Color"_s), a.tools().Command3->click();
      QVERIFY2(a.status().contains(u"another program"), qPrintable(a.status()));
      QCOMPARE(game.get(Kept), edited);
      for (Program* program : {&a, &b}) {
        program->click(2);
        QVERIFY(game.get(ThemeFile).contains("X=77") && game.get(ThemeFile).contains("W=55"));
      }
    }
  }

  void theWorkingCopiesAreSweptAway() {
    const GameFolder game;
    Program program(game);
    program.open();
    program.edit();
    const QByteArray edited = game.get(ThemeCopy);
    program.row(u"Y"_s);
    QVERIFY(QFile::remove(game.native(ThemeCopy)));
    program.tools().Text1->SetText(u"88"_s);
    program.tools().Command1->click();
    QVERIFY2(program.status().contains(u"made anew"), qPrintable(program.status()));
    QCOMPARE(game.get(ThemeCopy).size(), edited.size());
    for (const QString& copy : {ThemeCopy, SkinCopy, LanguageCopy}) QFile::remove(game.native(copy));
    program.click(2);
    QVERIFY(program.status().contains(u"made anew") && !program.state.Changed);
    QVERIFY(game.get(ThemeFile).contains("X=77") && game.get(ThemeFile).contains("Y=88"));
  }

  void oneRowForOneLineOfColour() {
    const GameFolder game;
    game.put(ThemeFile, game.get(ThemeFile).replace("Red=200 40 40", "Red=200 40 40\r\nred=9 9 9"));
    Program program(game);
    program.open();
    program.tag(u"LoadingStaticA"_s);
    program.row(u"Color"_s);
    const auto table = [&] { return program.colors().filter(QRegularExpression(u"^[^=]"_s)); };
    QCOMPARE(table(), (QStringList{u"Red=200 40 40"_s, u"red=200 40 40"_s, u"Blue=30 60 200"_s}));
    program.dialogs.boxes = {BoxAnswer::Yes};
    program.tools().Combo3->SetText(u"red"_s);
    program.tools().Command5->click();  // the first line of the name goes
    QCOMPARE(table(), (QStringList{u"red=9 9 9"_s, u"Blue=30 60 200"_s}));
    QCOMPARE(support::entries(*program.tools().Combo3), (QStringList{u"red"_s, u"Blue"_s}));
    // A group on show that lacks a name that the theme has.
    program.soleRow(u"Color"_s, u"P1Dark"_s);
    program.dialogs.inputs = {u"blue"_s};
    program.tools().Command3->click();
    QCOMPARE(table(), (QStringList{u"red=9 9 9"_s, u"Blue=150 150 150"_s}));
    QVERIFY2(program.status().contains(u"Blue was 30 60 200"), qPrintable(program.status()));
  }
};

QTEST_MAIN(SecondEditorTest)
#include "second_editor_test.moc"
