#include "themefiles/screen_table.h"

#include <QTest>

#include "support/theme_doubles.h"

using namespace themefiles;
using namespace support;

namespace {

const QString Name = QStringLiteral("a.ini");

ModuleState stateWith(const Folder& folder, const QByteArray& theme) {
  ModuleState state;
  InitScreenTable(state);
  folder.put(Name, theme);
  state.Paths.ThemeFile = folder.path(Name);
  return state;
}

QString text(const char* latin) {
  return QString::fromLatin1(latin);
}

}  // namespace

class ScreenTableTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void runs_data() {
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QString>("tags");  // joined by "/"
    const auto row = [](const char* name, const char* screen, const QByteArray& theme, const char* tags) {
      QTest::newRow(name) << text(screen) << theme << text(tags);
    };
    const auto main = [&](const char* name, const char* theme, const char* tags) {
      row(name, "Main Screen", linesOf(theme), tags);
    };
    main("sorted by upper case", "[Main]|[MainZ]|[Mainb]|[MainA]|[MainButton10]|[MainButton2]",
         "Main/MainA/Mainb/MainButton10/MainButton2/MainZ");
    main("ends at another bare stem", "[Theme]|[Song]|[MainA]|[Main]|[Sing] |[Sing]|[MainB]", "Main/MainA");
    main("doesn't end at other sections", "[MainA]|[SingStatic]|[Colors]|[MainB]", "MainA/MainB");
    main("blank in front", " [MainA]|[MainB]", "MainB");
    main("tail behind the bracket", "[MainA]x|[MainB] |[MainC", "Main/MainA]/MainB]");
    main("lower-case header", "[mainA]|[sing]|[MAINB]", "mainA/MAINB");
    main("keys and comments", "[MainA]|X=[MainX]|;[MainY]|#[MainZ]", "MainA");
    row("prefix before the first tag", "Song Screen (Party)", linesOf("[SongMenu]|[SongStatic]|[SongMenu]|[SongText]"),
        "SongMenu/SongStatic");
    row("prefix behind the first tag", "Options Screen", linesOf("[Options]|[OptionsA]|[OptionsGame]|[OptionsB]"),
        "Options/OptionsA");
    row("name in no row is the stem", "Stat", linesOf("[StatMain]|[StatA]|[StatDetail]|[StatB]"), "StatMain/StatA");
    row("no section", "Check Popup", linesOf("[Main]"), "");
    row("LF", "Stats Main", "[StatMain]\n[StatMainA]\n\n[StatDetail]", "StatMain/StatMainA");
    row("CR", "Stats Detail", "x\r[StatDetail]\r[StatDetailA]\r\r[StatMain]\r[StatDetailB]", "StatDetail/StatDetailA");
  }

  void runs() {
    QFETCH(QString, screen);
    QFETCH(QByteArray, theme);
    QFETCH(QString, tags);
    Folder folder;
    const ModuleState state = stateWith(folder, theme);
    Tags list;
    Panel panel;
    int yields = 0;
    QCOMPARE(ReadTags(state, screen, list, panel, [&] { ++yields; }), -1);
    QStringList expected = tags.split(u'/', Qt::SkipEmptyParts);
    std::sort(expected.begin(), expected.end(), platform::NameLess);
    QCOMPARE(list.rows, expected);
    QCOMPARE(yields, list.ListCount());
    QCOMPARE(list.ListIndex(), tags.isEmpty() ? -1 : 0);
    QVERIFY(panel.texts.isEmpty());
  }

  void picksAndFailures() {
    Folder folder;
    const QString screen = text("Main Screen");
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

  void filters_data() {
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("leftOut");
    const auto row = [](const char* screen, const char* taken, const char* leftOut) {
      QTest::newRow(screen) << text(screen) << text(taken) << text(leftOut);
    };
    row("Song Screen (Single)", "SongStaticNonParty SongText SongStatic",
        "SongStaticParty1 songtextparty MySongStaticTeamX");
    row("Song Screen (Party)", "SongStaticParty SongStaticTeam1", "SongStaticNonParty SongTextNonPartyX");
    row("Score Screen (1 Player)", "Score ScoreTextName1 ScoreStaticBoxLightest1 ScorePlayer1Text ScoreTextName22",
        "ScoreTextName2 scoretexttotalscore6 ScorePlayer2TextX ScorePlayer6Static1 ScoreStaticLevelRound3");
    row("Score Screen (2 Player)", "ScoreTextScore2 ScoreTextNotes3 ScorePlayer3Static2",
        "ScoreTextNotesScore1 ScoreTextLineBonus4 ScoreTextLineBonusScore5 ScoreTextGoldenNotes6 ScorePlayer1Text");
    row("Score Screen (3 Player)", "ScoreTextGoldenNotesScore4 ScoreTextTotal5 ScoreStaticBoxDark6 ScorePlayer4Text",
        "ScoreStaticBackLevel1 ScoreStaticBackLevelRound2 ScoreStaticLevel3 ScoreStaticBoxLight1 ScorePlayer3Static");
    row("Sing Screen (1 Player)", "Sing SINGTIMEPROGRESS SingTimeText SingP1SingBar SingText1 SingP1StaticX SingP1Text",
        "SingP1TwoPStatic SingP1TwoPSingBar SingTimeProgressX SingBackground SingP2RText");
    row("Sing Screen (2 Player)", "Sing SingP1TwoPSingBar SingP2RSingBar SingP1TwoPText SingP2RStatic2 SingStatic",
        "SingP1SingBar SingP1Static SingP2MStatic SingP1ThreePText");
    row("Sing Screen (3 Player)",
        "SingTimeText SingP1ThreePSingBar SingP2MSingBar SingP3SingBar SingP1ThreePStatic SingP2MText SingP3RText",
        "SingP3RSingBar SingP2RSingBar SingP1Text");
    row("Main Screen", "Main SongStaticParty ScoreTextName2", "");
  }

  void filters() {
    QFETCH(QString, screen);
    QFETCH(QString, taken);
    QFETCH(QString, leftOut);
    const TagFilter filter = FilterOf(screen);
    for (const QString& tag : taken.split(u' ')) QVERIFY2(!SplitTags(filter, tag), qPrintable(tag));
    for (const QString& tag : leftOut.split(u' ', Qt::SkipEmptyParts)) {
      QVERIFY2(SplitTags(filter, tag), qPrintable(tag));
    }
  }

  void checksInTheirOrder() {
    const QString a = text("Aa,b");
    QVERIFY(SplitTags({a, {}, a, a}, text("aA")));
    QVERIFY(SplitTags({{}, a, a, a}, text("xAAx")));
    QVERIFY(SplitTags({{}, {}, a, {}}, text("bb")));
    QVERIFY(!SplitTags({{}, {}, a, text("x,bB")}, text("cbbc")));
    QVERIFY(!SplitTags({{}, {}, {}, a}, text("other")));
  }
};

QTEST_MAIN(ScreenTableTest)
#include "screen_table_test.moc"
