#include <QTest>

#include "support/panel.h"
#include "support/results.h"
#include "themefiles/colour_tables.h"
#include "themefiles/key_table.h"
#include "themefiles/mark_record.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"
#include "themefiles/theme_paths.h"
#include "themefiles/theme_search.h"

using namespace themefiles;
using namespace support;

namespace {

QString toldOf(const CursorRecord& record) {
  const QString measures = QStringList{record.X, record.Y, record.W, record.H, record.Text}.join(u'/');
  return u"%1 %2 %3"_s.arg(measures).arg(record.Size).arg(record.Font);
}

/// What the readers work on: a theme file, "|" being a line end.
struct Theme {
  explicit Theme(const QByteArray& theme) {
    put(theme);
    state.paths.ThemeFile = folder.path(u"a.ini"_s);
    InitScreenTable(state);
  }
  void put(const QByteArray& theme) const { folder.put(u"a.ini"_s, linesOf(theme)); }
  const NamedColor& color(int row) const { return state.ThemeColors.at(row); }
  /// What is listed of the screen, joined by "/", and the reports.
  QString tagsOf(const QString& screen) {
    QString counts;  // as each of them lets events happen
    listScreenTags(state, screen, tags, panel, [&] { counts += u' ' + QString::number(tags.ListCount()); });
    return tags.rows().join(u'/') + panel.texts.join(u' ') + counts + state.Filter.SkipTagParts + state.Filter.OnlyTags;
  }
  /// "item:value" of each row of the section "S", joined by "/"; the record for the mark, and the reports. A text and a
  /// font were there before.
  QString rowsOfS() {
    QStringList rows;
    state.CursorRect = {u"9"_s, u"9"_s, u"9"_s, u"9"_s, u"old"_s, 9, 3};
    for (const ValueRow& row : ReadTag(state, u"S"_s, panel)) rows += row.Item + u':' + row.Value;
    return rows.join(u'/') + u", "_s + toldOf(state.CursorRect) + u' ' + panel.texts.join(u' ');
  }
  /// Whether there are so many reports, all of the step.
  bool reported(int count, const QString& step) const {
    return panel.texts.size() == count &&
           panel.texts.filter(u"Error while reading "_s + step + u" ["_s).size() == count;
  }

  Folder folder;
  ModuleState state;
  Panel panel;
  SortedTags tags;
};

}  // namespace

class ThemeReadingTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void asManyColoursAsRows() {
    Theme theme(manyColors(99));
    ReadColors(theme.state, theme.panel);
    QVERIFY(theme.color(98).Name == u"C99" && theme.color(98).Value == u"99 0 0");
    QVERIFY(theme.color(99).Name.isEmpty() && theme.color(99).Value == u"0 0 0");
    QCOMPARE(schemeNames(theme.state).join(u' '), u"Blue Green Pink Red Violet Orange Yellow Brown Black"_s);
    // A shorter list leaves the rows behind it, none at all leaves every row.
    for (const char* shorter : {"[Colors]|new=|", "[Color]|a=1 1 1|"}) {
      theme.put(shorter);
      ReadColors(theme.state, theme.panel);
      QVERIFY(theme.color(0).Name == u"new" && theme.color(0).Value.isEmpty());
      QVERIFY(theme.color(1).Value == u"0 0 0" && theme.color(2).Name == u"C3");
    }
    QVERIFY(theme.panel.texts.isEmpty());

    Theme oneTooMany(manyColors(100));
    ReadColors(oneTooMany.state, oneTooMany.panel);
    QVERIFY(oneTooMany.reported(1, u"Colors"_s));
    QCOMPARE(oneTooMany.color(99).Name, u"C100"_s);
    QCOMPARE(schemeNames(oneTooMany.state), QStringList(9, QString()));
  }

  /// A name, and a scheme behind "/": the colour, and its number.
  void colours() {
    Theme theme(
        "[Colors]|Red=200 40 255|red=1 1 1|P1Dark=9 9 9|colordark=8 8 8|Blue=7 7 7|Two=1 2|Four=1 2 3 4|"
        "Wide= 1  2|Words=ten 20x 30.5|Half=0.5 1.5 2.5|Big=256 300 65535|Large=32768 0 0|Less=1 -1 1|None=|Sum=1 2 "
        "300|");
    ReadColors(theme.state, theme.panel);
    compareRows(u"colours.txt"_s, [&](const QString& row) {
      const QString value = ResolveColor(theme.state, row.section(u'/', 0, 0), row.section(u'/', 1));
      return value + u" = "_s + QString::number(ColorToRGB(value), 16);
    });
  }

  /// Each screen with its stem and the parts of its filter.
  void screens() {
    const Theme theme("");
    QStringList lines;
    for (const auto& [name, stem] : theme.state.ScreenTable) {
      const TagFilter filter = filterOf(name);
      const QStringList lists{filter.SkipTags, filter.SkipTagParts, filter.OnlyTags, filter.OnlyTagParts};
      lines += QStringList{name, stem, lists.join(u" / "_s)}.join(u": "_s);
    }
    const ThemePaths paths = pathsOf(u"C:\\Game\\"_s, u"T"_s, u"S"_s, u"L"_s);
    lines += {paths.ExeDirectory,  paths.LanguagesDirectory, paths.ThemeFile,
              paths.SkinDirectory, paths.SkinFile,           paths.LanguageFile};
    compareText(u"screens.txt"_s, lines);
  }

  /// A key: how it is edited.
  void keys() {
    compareRows(u"keys.txt"_s, [](const QString& key) {
      const auto group = groupOf(keyIdentity(key));
      if (!group) return u"none"_s;
      QStringList told{QList{u"numbers"_s, u"decimals"_s, u"list"_s, u"colour"_s, u"texture"_s,
                             u"texts"_s}[int(rowOf(*group).frame)]};
      for (const QStringView entry : rowOf(*group).entries) told += entry.toString();
      return told.join(u", "_s);
    });
  }

  /// "key=value" of commits one after the other: the record of the mark.
  void commits() {
    compareRows(u"commits.txt"_s, [](const QString& row) {
      CursorRecord record;
      for (const QString& commit : row.split(u", "_s))
        followCommit(record, commit.section(u'=', 0, 0), commit.section(u'=', 1));
      return toldOf(record);
    });
  }

  void runsOfTags() {
    compareRows(u"tags.txt"_s, [](const QString& row) {
      const qsizetype colon = row.indexOf(u": ");
      return Theme(row.sliced(colon + 2).toLatin1()).tagsOf(row.first(colon));
    });
  }

  void picksAndFailures() {
    Theme theme("[Main]|[MainA]|[MainB]|");
    const auto pickTheSecond = [&] {
      if (theme.tags.ListCount() == 2) theme.tags.SetListIndex(1);
    };
    QCOMPARE(ReadTags(theme.state, u"Main Screen"_s, theme.tags, theme.panel, pickTheSecond), 1);
    QCOMPARE(theme.tags.ListIndex(), 0);
    theme.state.paths.ThemeFile.chop(1);
    theme.tags.Clear();
    QCOMPARE(ReadTags(theme.state, u"Main Screen"_s, theme.tags, theme.panel, pickTheSecond), -1);
    QVERIFY(theme.reported(1, u"Tags"_s) && theme.tags.ListIndex() == -1);
  }

  void rowsOfATag() {
    compareRows(u"rows.txt"_s,
                [](const QString& theme) { return rowOf(Theme(bytesOf(theme.toLatin1(), "|")).rowsOfS().toLatin1()); });
  }

  void finds() {
    Theme theme(
        "[Main]|[MainStaticBar]|Tex=1|X=120|x=7|#Y=1|Color=Red=|[MainTextGo]|Size=9|Text=\"Go\"|Text=OWN|[MainTextOwn]|"
        "X=1|"
        "[MainStaticBar]|X=5|[MainSongs]|[Song]|[SongStaticParty]|X=1|[songstaticParty]|[SongTextGo]|text= "
        "GO|[SongMenu]|[ErrorPopup]|Text=|[ErrorPopupText]|Text=Nowhere|[Stray]|");
    theme.folder.put(u"l.ini"_s,
                     linesOf("[Text]|GO='Los, gr\xFC\xDF Gott'|go=other|MAINTEXTOWN=own words|MAIN=Spare|SPARE=x|"));
    theme.state.paths.LanguageFile = theme.folder.path(u"l.ini"_s);
    const ThemeSearch search(theme.state);
    compareRows(u"searches.txt"_s, [&](const QString& typed) {
      const Hits hits = search.find(typed, 3);
      QString told = QString::number(hits.count);
      for (const Hit& hit : hits.first) told += u"; %1, row %2"_s.arg(hit.shown).arg(hit.row);
      return told;
    });
  }
};

QTEST_GUILESS_MAIN(ThemeReadingTest)
#include "theme_reading_test.moc"
