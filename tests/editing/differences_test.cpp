#include "editing/differences.h"

#include <QRegularExpression>
#include <QTest>

#include "editing/commit.h"
#include "editing/goals.h"
#include "editing/reference_keys.h"
#include "editing/theme_colours.h"
#include "platform/failure.h"
#include "support/editing.h"
#include "support/results.h"

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

/// Does a step of a row; gives what came of it.
QString done(OpenTheme& theme, const QString& what, const QString& with) {
  const QString name = with.section(u' ', 0, 0);
  const auto kind = what.endsWith(u"Text"_s) ? editing::ReferenceKind::Text : editing::ReferenceKind::Texture;
  const auto truth = [](bool yes) { return yes ? u"yes"_s : u"no"_s; };
  const auto told = [](const std::optional<QString>& value) { return value.value_or(u"none"_s); };
  if (what == u"screen"_s) theme.screen(with);
  if (what == u"object"_s && with.toInt() < theme.tags.ListCount()) theme.session.pickObject(with.toInt());
  if (what == u"all"_s) return truth(editing::putBack(theme.session, places(theme)));
  if (what == u"here"_s) {
    const QStringList objects = editing::objectsOfScreen(theme.state, with);
    return truth(editing::putBack(theme.session, editing::differencesIn(theme.state, objects)));
  }
  if (what == u"colour"_s) return truth(editing::changeColor(theme.session, name, with.section(u' ', 1)));
  if (what == u"addColour"_s) return told(editing::addColor(theme.session, name));
  if (what == u"colourBack"_s) {
    const auto saved = editing::savedColor(theme.state, name);
    return truth(saved && editing::putSavedColorBack(theme.session, name, *saved));
  }
  if (what == u"group"_s) {
    const auto group = editing::colorGroupOf(theme.state, name);
    return QString::number(group ? static_cast<int>(*group) : -1);
  }
  if (what == u"value"_s) return told(editing::colorValue(theme.state, editing::ColorGroup::Theme, name, {}));
  if (what == u"lose"_s) theme.state.paths.ThemeFile += u"\\none"_s;
  if (what == u"protectSkin"_s) theme.folder.protect(u"skin.ini.tmp"_s);
  if (what == u"again"_s) theme.screen(theme.session.screen(), theme.session.object());
  for (themefiles::NamedColor& color : theme.state.ThemeColors) {
    if (what == u"fill"_s && color.Name.isEmpty()) color.Name = u"used"_s;
  }
  if (what == u"removeColour"_s) return told(editing::removeColor(theme.session, name));
  if (what.startsWith(u"add"_s)) {
    return QString::number(static_cast<int>(editing::addReferenceKey(theme.session, kind, name)));
  }
  if (what.startsWith(u"remove"_s)) return truth(editing::removeReferenceKey(theme.session, kind, name));
  if (what == u"theme"_s || what == u"skin"_s || what == u"language"_s) {
    const QByteArray copy = what.toLatin1(), old = name.toLatin1(), instead = with.section(u' ', 1).toLatin1();
    theme.putCopy(copy, theme.copy(copy).replace(old, instead));
    themefiles::ReadColors(theme.state, theme.panel);
  }
  return what;
}

}  // namespace

/// What differs from the saved state over a whole theme, and how it comes back.
class DifferencesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void findsAll() {
    OpenTheme theme(Theme, "Plate=a.png|", "GO=Go|");
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
  }

  /// Themes drawn by lot, and what is done with them: what the session tells of each step, what differs then and where
  /// that leads, and the files that are others than before.
  void edits() {
    compareRows(u"edits.txt"_s, [](const QString& row) {
      const QStringList files = row.section(u": "_s, 0, 0).split(u" + "_s);
      OpenTheme theme(files[0].toLatin1(), files[1].toLatin1(), files[2].toLatin1());
      constexpr const char* Copies[] = {"theme", "skin", "language"};
      std::array<QByteArray, 3> before;
      for (int i = 0; i < 3; ++i) before[i] = theme.copy(Copies[i]);
      QStringList lines;
      for (const QString& step : row.section(u": "_s, 1).split(u", "_s)) {
        theme.told();
        theme.panel.texts.clear();
        const QString came = done(theme, step.section(u' ', 0, 0), step.section(u' ', 1));
        lines += came + u" {"_s + theme.told() + u"} "_s + theme.report().remove(theme.folder.path({}));
      }
      for (const Difference& each : all(theme)) {
        const auto goal = platform::failureIn([&] {
          const auto hit = editing::goalOf(theme.state, u"Song Screen (Party)"_s, each.place);
          lines += each.told() + u" at "_s + hit.screen + u'/' + hit.object + u'/' + QString::number(hit.row) + hit.key;
        });
        if (goal) lines += each.told() + u": "_s + *goal;
      }
      theme.state.paths.ThemeFile.remove(u"\\none"_s);
      theme.folder.protect(u"skin.ini.tmp"_s, false);
      for (const themefiles::NamedColor& color : theme.state.ThemeColors) {
        if (!color.Name.isEmpty() && color.Name != u"used") lines += color.Name + u'=' + color.Value;
      }
      for (int i = 0; i < 3; ++i) {
        if (theme.copy(Copies[i]) != before[i]) lines += QString::fromLatin1(theme.copy(Copies[i]));
      }
      return lines.replaceInStrings(QRegularExpression(u"none: [^\\]]*"_s), u"none"_s).join(u"; "_s);
    });
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
