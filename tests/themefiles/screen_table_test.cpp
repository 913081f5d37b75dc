#include "themefiles/screen_table.h"

#include <QTest>

#include "support/theme_doubles.h"

using namespace themefiles;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

const QString Name = u"a.ini"_s;

ModuleState stateWith(const Folder& folder, const QByteArray& theme) {
  ModuleState state;
  InitScreenTable(state);
  folder.put(Name, theme);
  state.Paths.ThemeFile = folder.path(Name);
  return state;
}

/// The tags of the screen, joined by "/", and what else isn't as it should be.
QString tagsOf(const QString& screen, const char* theme) {
  const Folder folder;
  Tags list;
  Panel panel;
  int yields = 0;
  const int picked = ReadTags(stateWith(folder, linesOf(theme)), screen, list, panel, [&] { ++yields; });
  const bool well = picked == -1 && yields == list.ListCount() && list.ListIndex() == qMin(0, yields - 1);
  return list.rows.join(u'/') + (well ? QString() : u" out of step"_s) + panel.texts.join(u' ');
}

}  // namespace

class ScreenTableTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void runs() {
    const QString main = u"Main Screen"_s;
    QCOMPARE(tagsOf(main, "[Main]|[MainZ]|[Mainb]|[MainA]|[MainButton10]|[MainButton2]"),
             u"Main/MainA/Mainb/MainButton10/MainButton2/MainZ"_s);
    QCOMPARE(tagsOf(main, "[Theme]|[Song]|[MainA]|[Main]|[Sing] |[Sing]|[MainB]"), u"Main/MainA"_s);
    QCOMPARE(tagsOf(main, "[MainA]|[SingStatic]|[Colors]|[MainB]"), u"MainA/MainB"_s);
    QCOMPARE(tagsOf(main, " [MainA]|[MainB]"), u"MainB"_s);
    QCOMPARE(tagsOf(main, "[MainA]x|[MainB] |[MainC"), u"Main/MainA]/MainB]"_s);
    QCOMPARE(tagsOf(main, "[mainA]|[sing]|[MAINB]"), u"mainA/MAINB"_s);
    QCOMPARE(tagsOf(main, "[MainA]|X=[MainX]|;[MainY]|#[MainZ]"), u"MainA"_s);
    QCOMPARE(tagsOf(u"Song Screen (Party)"_s, "[SongMenu]|[SongStatic]|[SongMenu]|[SongText]"),
             u"SongMenu/SongStatic"_s);
    QCOMPARE(tagsOf(u"Options Screen"_s, "[Options]|[OptionsA]|[OptionsGame]|[OptionsB]"), u"Options/OptionsA"_s);
    QCOMPARE(tagsOf(u"Stat"_s, "[StatMain]|[StatA]|[StatDetail]|[StatB]"), u"StatA/StatMain"_s);
    QCOMPARE(tagsOf(u"Check Popup"_s, "[Main]"), QString());
    QCOMPARE(tagsOf(u"Stats Detail"_s, "x\r[StatDetail]\n[StatDetailA]\r\r[StatMain]\r[StatDetailB]"),
             u"StatDetail/StatDetailA"_s);
  }

  void picksAndFailures() {
    Folder folder;
    const QString screen = u"Main Screen"_s;
    ModuleState state = stateWith(folder, "[Main]\n[MainA]\n[MainB]\n");
    Tags list;
    Panel panel;
    const auto pickTheSecond = [&] {
      if (list.ListCount() == 2) list.SetListIndex(1);
    };
    QCOMPARE(ReadTags(state, screen, list, panel, pickTheSecond), 1);
    QCOMPARE(list.ListIndex(), 0);
    state.Paths.ThemeFile.chop(1);
    list.Clear();
    QCOMPARE(ReadTags(state, screen, list, panel, pickTheSecond), -1);
    QVERIFY(panel.texts.value(0).startsWith(u"Error while reading Tags [") && list.ListIndex() == -1);
  }

  void filters() {
    const struct {
      const char *screen, *taken, *leftOut;
    } rows[] = {
        {"Song Screen (Single)", "SongStaticNonParty SongText SongStatic",
         "SongStaticParty1 songtextparty MySongStaticTeamX"},
        {"Song Screen (Party)", "SongStaticParty SongStaticTeam1", "SongStaticNonParty SongTextNonPartyX"},
        {"Score Screen (1 Player)", "Score ScoreTextName1 ScoreStaticBoxLightest1 ScorePlayer1Text ScoreTextName22",
         "ScoreTextName2 scoretexttotalscore6 ScorePlayer2TextX ScorePlayer6Static1 ScoreStaticLevelRound3"},
        {"Score Screen (2 Player)", "ScoreTextScore2 ScoreTextNotes3 ScorePlayer3Static2",
         "ScoreTextNotesScore1 ScoreTextLineBonus4 ScoreTextLineBonusScore5 ScoreTextGoldenNotes6 ScorePlayer1Text"},
        {"Score Screen (3 Player)", "ScoreTextGoldenNotesScore4 ScoreTextTotal5 ScoreStaticBoxDark6 ScorePlayer4Text",
         "ScoreStaticBackLevel1 ScoreStaticBackLevelRound2 ScoreStaticLevel3 ScoreStaticBoxLight1 ScorePlayer3Static"},
        {"Sing Screen (1 Player)",
         "Sing SINGTIMEPROGRESS SingTimeText SingP1SingBar SingText1 SingP1StaticX SingP1Text",
         "SingP1TwoPStatic SingP1TwoPSingBar SingTimeProgressX SingBackground SingP2RText"},
        {"Sing Screen (2 Player)", "Sing SingP1TwoPSingBar SingP2RSingBar SingP1TwoPText SingP2RStatic2 SingStatic",
         "SingP1SingBar SingP1Static SingP2MStatic SingP1ThreePText"},
        {"Sing Screen (3 Player)",
         "SingTimeText SingP1ThreePSingBar SingP2MSingBar SingP3SingBar SingP1ThreePStatic SingP2MText SingP3RText",
         "SingP3RSingBar SingP2RSingBar SingP1Text"},
        {"Main Screen", "Main SongStaticParty ScoreTextName2", ""},
    };
    for (const auto& row : rows) {
      const TagFilter filter = FilterOf(QString::fromLatin1(row.screen));
      for (const QByteArray& tag : QByteArray(row.taken).split(' ')) {
        QVERIFY2(!SplitTags(filter, QString::fromLatin1(tag)), tag);
      }
      for (const QByteArray& tag : QByteArray(row.leftOut).split(' ')) {
        QVERIFY2(tag.isEmpty() || SplitTags(filter, QString::fromLatin1(tag)), tag);
      }
    }
  }

  void checksInTheirOrder() {
    const QString a = u"Aa,b"_s;
    QVERIFY(SplitTags({a, {}, a, a}, u"aA"_s));
    QVERIFY(SplitTags({{}, a, a, a}, u"xAAx"_s));
    QVERIFY(SplitTags({{}, {}, a, {}}, u"bb"_s));
    QVERIFY(!SplitTags({{}, {}, a, u"x,bB"_s}, u"cbbc"_s));
    QVERIFY(!SplitTags({{}, {}, {}, a}, u"other"_s));
  }
};

QTEST_MAIN(ScreenTableTest)
#include "screen_table_test.moc"
