#include "editing/differences.h"

#include <QTest>

#include "editing/commit.h"
#include "editing/goals.h"
#include "platform/failure.h"
#include "support/editing.h"

using namespace support;
using editing::Difference;
using editing::KeyPlace;
using themefiles::ThemePaths;

namespace {

constexpr const char* Theme =
    "[Theme]|Name=N|[Colors]|Red=200 0 0|Blue=0 0 200|[Main]|[MainStaticB]|Tex=Plate|X=1|Y=2|Color=Red|"
    "[MainStaticA]|X=5|x=6|;c|Text=GO|[Song]|[SongStaticC]|X=7|x=9|[SongTextD]|Y=1|Tex=Plate|[Lost]|X=8|";

std::vector<Difference> all(const OpenTheme& theme) {
  editing::Differences differences(theme.state);
  while (differences.step()) {
  }
  return differences.found();
}

QStringList told(const OpenTheme& theme) {
  QStringList lines;
  for (const Difference& each : all(theme)) lines += each.told();
  return lines;
}

std::vector<KeyPlace> places(const OpenTheme& theme) {
  std::vector<KeyPlace> all;
  for (const Difference& each : ::all(theme)) all.push_back(each.place);
  return all;
}

}  // namespace

/// What differs from the saved state over a whole theme, and how it comes back.
class DifferencesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void findsAll() {
    OpenTheme theme(Theme, "Plate=a.png|", "GO=Go|");
    QCOMPARE(told(theme), QStringList());
    theme.putCopy(
        "theme",
        "[Theme]|Name=M|[Colors]|Red=200 0 1|Blue=0 0 200|[Main]|[MainStaticB]|Tex=Plate|X=10|New=1|Color=Red|"
        "[MainStaticA]|X = 5|x=7|;d|Text=\xFF|[Song]|[SongTextD]|Y=2|Tex=Plate|[Lost]|X=9|");
    theme.putCopy("skin", "[Textures]|Plate=b.png|");
    theme.putCopy("language", "[Text]|");
    const QStringList expected{u"Main Screen, MainStaticA: Text = \u00FF (saved: GO)"_s,
                               u"Main Screen, MainStaticB: X = 10 (saved: 1)"_s,
                               u"Main Screen, MainStaticB: New = 1 (new)"_s,
                               u"Main Screen, MainStaticB: Y is gone (saved: 2)"_s,
                               u"Song Screen (Single), SongTextD: Y = 2 (saved: 1)"_s,
                               u"[Theme]: Name = M (saved: N)"_s,
                               u"colour 'Red' = 200 0 1 (saved: 200 0 0)"_s,
                               u"[Lost]: X = 9 (saved: 8)"_s,
                               u"[SongStaticC]: X is gone (saved: 7)"_s,
                               u"texture 'Plate' = b.png (saved: a.png)"_s,
                               u"words 'GO' is gone (saved: Go)"_s};
    QCOMPARE(told(theme), expected);
    QCOMPARE(editing::countDifferences(theme.state), 11);
    const auto inScreen = editing::differencesIn(theme.state, editing::objectsOfScreen(theme.state, u"Main Screen"_s));
    QCOMPARE(inScreen.size(), 5U);  // without what is new, with what the references stand for
    QVERIFY(editing::objectsOfScreen(theme.state, u"Song Screen (Party)"_s).contains(u"SongStaticC"_s));  // is gone
    // All of it comes back, but what is new; a section that was gone stands at the end.
    theme.screen(u"Main Screen"_s);
    theme.session.pickObject(1);
    theme.told();
    const auto differing = places(theme);
    QVERIFY(editing::putBack(theme.session, differing));
    QCOMPARE(told(theme), QStringList(u"Main Screen, MainStaticB: New = 1 (new)"_s));
    QVERIFY(theme.copy("theme").endsWith("|[SongTextD]|Y=1|Tex=Plate|[Lost]|X=8|[SongStaticC]|X=7|"));
    QVERIFY(theme.copy("theme").contains("[MainStaticA]|X = 5|x=7|;d|Text=GO|"));
    QCOMPARE(theme.report().section(u"; "_s, 0, 0), u"Put back: 10 values"_s);
    QCOMPARE(theme.told(), u"colours, -1 TEXT=GO, -1 TEXT=GO, Save, draws, mark again"_s);
    QVERIFY(theme.state.Changed);
    QVERIFY(editing::putBack(theme.session, differing));
    QCOMPARE(theme.report(), u"Nothing to put back"_s);
  }

  /// Colours alone go as through their button.
  void coloursAlone() {
    OpenTheme theme(Theme);
    theme.putCopy("theme", QByteArray(Theme).replace("Red=200 0 0", "Green=1 1 1").replace("0 0 200", "9 9 9"));
    themefiles::ReadColors(theme.state, theme.panel);
    theme.told();
    QVERIFY(editing::putBack(theme.session, places(theme)));
    QCOMPARE(theme.told(), u"colours, colours"_s);
    QVERIFY(theme.report().startsWith(
        u"Put back: 2 values; Kept in the working copy; the next Update makes Save available"_s));
    QVERIFY(!theme.state.Changed);
    QCOMPARE(themefiles::ResolveColor(theme.state, u"Red"_s, {}), u"200 0 0"_s);
    QCOMPARE(themefiles::ResolveColor(theme.state, u"Blue"_s, {}), u"0 0 200"_s);
    // Only rows that name one of these show it again: the first of a key, up to a second "=".
    OpenTheme other(
        "[Colors]|Red=1 1 "
        "1|[Main]|[MainStaticA]|Color=\"Red\"|Tex=a=b|Color=Blue|[MainStaticB]|Color=red|[MainStaticC]|Color=New|",
        "Plate=a.png|");
    other.putCopy("theme", other.copy("theme").replace("1 1 1", "2 2 2|New=1 1 1"));
    QVERIFY(!editing::SavedState(other.state).differsIn(u"MainStaticB"_s));  // another case
    QCOMPARE(editing::savedColorOf(other.state, u"MainStaticC"_s, u"COLOR"_s)->told, u"colour 'New' is new"_s);
    other.screen(u"Main Screen"_s);
    other.session.pickObject(1);
    other.told();
    QVERIFY(editing::putBack(other.session, places(other)));
    QCOMPARE(other.told(), u"colours, -1 COLOR=\"Red\""_s);
    other.putCopy("theme", other.copy("theme").replace("Tex=a=b", "Tex=c"));
    QVERIFY(editing::putBack(other.session, places(other)));
    QCOMPARE(other.told(), u"-1 TEX=a, Save, draws, mark again"_s);
  }

  /// A file that can't be written: those before it are, and the report tells both.
  void secondFileFails() {
    OpenTheme theme(Theme, "Plate=a.png|");
    theme.putCopy("theme", QByteArray(Theme).replace("X=7", "X=8"));
    theme.putCopy("skin", "[Textures]|Plate=b.png|");
    const auto differing = places(theme);
    theme.folder.protect(u"skin.ini.tmp"_s);
    QVERIFY(!editing::putBack(theme.session, differing));
    QVERIFY2(theme.report().startsWith(u"Put back: 1 value; Error while writing tempfile ["_s),
             qPrintable(theme.report()));
    QVERIFY(theme.state.Changed);
    QCOMPARE(theme.copy("theme"), QByteArray(Theme));
  }

  void leadsThere() {
    OpenTheme theme(Theme, "Plate=a.png|", "GO=Go|");
    const auto goal = [&](QString ThemePaths::*copy, const QString& section, const QString& key) {
      QString told;
      const auto failure = platform::failureIn([&] {
        const auto hit = editing::goalOf(theme.state, u"Song Screen (Party)"_s, {copy, section, key});
        told = QStringList{hit.screen, hit.object, QString::number(hit.row), hit.key}.join(u'/');
      });
      return failure.value_or(told);
    };
    const auto themeFile = &ThemePaths::ThemeFile;
    QCOMPARE(goal(themeFile, u"mainstaticb"_s, u"y"_s), u"Main Screen/MainStaticB/2/Y"_s);
    QCOMPARE(goal(themeFile, u"MainStaticB"_s, u"Gone"_s), u"Main Screen/MainStaticB/-1/"_s);
    QCOMPARE(goal(themeFile, u"Lost"_s, u"X"_s), u"no screen shows Lost"_s);
    QCOMPARE(goal(themeFile, u"Colors"_s, u"Red"_s), u"Main Screen/MainStaticB/3/Color"_s);
    QCOMPARE(goal(themeFile, u"Colors"_s, u"red"_s), u"no object names red"_s);
    QCOMPARE(goal(themeFile, u"SongTextD"_s, u"Y"_s), u"Song Screen (Party)/SongTextD/0/Y"_s);  // the present screen
    QCOMPARE(goal(&ThemePaths::SkinFile, u"Textures"_s, u"PLATE"_s), u"Song Screen (Party)/SongTextD/1/Tex"_s);
    QCOMPARE(goal(&ThemePaths::LanguageFile, u"Text"_s, u"GO"_s), u"Main Screen/MainStaticA/2/Text"_s);
  }

  /// Nothing grows with the square of a theme's size.
  void hugeTheme() {
    const auto text = [](bool changed) {
      QByteArray all = "[Main]|";
      for (int i = 0; i < 20'000; ++i) {
        all += "[MainObject" + QByteArray::number(i) + (changed && i % 10 == 0 ? "]|X=3|Y=2|" : "]|X=1|Y=2|");
      }
      all += "[MainMany]|";
      for (int i = 0; i < 20'000; ++i) all += "K" + QByteArray::number(i) + (changed && i % 20 == 0 ? "=2|" : "=1|");
      return all;
    };
    OpenTheme theme(text(false));
    theme.putCopy("theme", text(true));
    const auto differing = places(theme);
    QCOMPARE(differing.size(), 3'000U);
    QVERIFY(editing::putBack(theme.session, differing));
    QCOMPARE(theme.copy("theme"), text(false));
    QVERIFY(theme.report().startsWith(u"Put back: 3000 values"_s));
    editing::Goals goals(theme.state);
    const auto isNamed = [&](int texture) {
      return goals.of({}, {&ThemePaths::SkinFile, u"Textures"_s, u"No%1"_s.arg(texture)}).has_value();
    };
    for (int texture = 0; texture < 20'000; ++texture) QVERIFY(!isNamed(texture));
  }
};

QTEST_GUILESS_MAIN(DifferencesTest)
#include "differences_test.moc"
