#include <QTest>

#include "support/panel.h"
#include "support/results.h"
#include "themefiles/colour_tables.h"
#include "themefiles/screen_table.h"
#include "themefiles/tag_listing.h"
#include "themefiles/tag_reader.h"
#include "themefiles/theme_search.h"

using namespace themefiles;
using namespace support;

namespace {

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
    ReadTags(state, screen, tags, panel, [] {});
    return tags.rows().join(u'/') + panel.texts.join(u' ');
  }
  /// "item:value" of each row of the section "S", joined by "/".
  QString rowsOfS() {
    QStringList rows;
    for (const ValueRow& row : ReadTag(state, u"S"_s, panel)) rows += row.Item + u':' + row.Value;
    return rows.join(u'/');
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
    QStringList schemes;
    for (const QString& name : schemeNames(theme.state)) {
      schemes += name;
      for (qint16 shade = 0; shade < 3; ++shade) schemes.last() += u", "_s + GetBaseColor(theme.state, shade, name);
    }
    compareText(u"schemes.txt"_s, schemes);
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
        "[MainStaticBar]|X=5|[MainSongs]|[Song]|[SongStaticParty]|X=1|[SongTextGo]|text= "
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

  void recordOfATag() {
    Theme theme("[s]|x=1| Y = 2 |W=3|h=4|Text=a=b|SIZE=12.5|Font=1|X= 5|size=13.5|Size=32767.5|Font=256|Font=-1|H=6|");
    const CursorRecord& record = theme.state.CursorRect;
    QCOMPARE(theme.rowsOfS().count(u'/'), 12);
    QCOMPARE(QStringList({record.X, record.Y, record.W, record.H, record.Text}).join(u'/'), u" 5/ 2 /3/6/a"_s);
    QVERIFY(record.Size == 14 && record.Font == 1);
    QVERIFY(theme.reported(3, u"Tag"_s));
    // Of the tag before only the font stays, also where the file is missing.
    theme.state.paths.ThemeFile.chop(1);
    QCOMPARE(theme.rowsOfS(), QString());
    QVERIFY((record.X + record.Y + record.W + record.H + record.Text).isEmpty() && record.Size == 0);
    QVERIFY(record.Font == 1 && theme.reported(4, u"Tag"_s));
  }
};

QTEST_GUILESS_MAIN(ThemeReadingTest)
#include "theme_reading_test.moc"
