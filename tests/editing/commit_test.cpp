#include "editing/commit.h"

#include <QTest>

#include "support/editing.h"
#include "support/row_name.h"

using namespace support;
using editing::EditedRow;
using editing::Proposal;
using themefiles::EditorFrame;

namespace {

const QByteArray Theme = "[Loading]|[LoadingStaticA]|X=1|Tex=Plate|Z=0.5|[LoadingStaticB]|X=3|[Loading]x]|X=4|";

/// A commit of a row that is refused: what is chosen and proposed, and why.
struct Refusal {
  const char* name;
  EditedRow row;
  Proposal proposal;
  const char* cause;
};
const Refusal Refusals[] = {
    {"no row", {}, {u"2"_s, {}}, "no row is selected"},
    {"nothing in the list", {1, u"Tex"_s, u"Plate"_s}, {std::nullopt, u"a.png"_s}, "nothing is selected"},
    {"too long", {2, u"Z"_s, QString(32001, u'1')}, {u"2"_s, {}}, "Z is too long to be edited here"},
    {"a line end", {1, u"Tex"_s, u"Plate"_s}, {u"Lost"_s, u"a\nb"_s}, "the text holds a line end: a\nb"},
    {"not in the code page",
     {0, u"X"_s, u"1"_s},
     {u"\u4e2d"_s, {}},
     "the text holds a letter outside the code page: \u4e2d"},
};

}  // namespace

/// How a value becomes part of the theme.
class CommitTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<OpenTheme> theme;
  /// Chooses an object of the screen.
  void choose(const QString& name) const {
    theme->session.pickObject(static_cast<int>(theme->tags.rows().indexOf(name)));
    theme->steps.clear();
    theme->panel.texts.clear();
  }
  bool commit(const EditedRow& row, const Proposal& proposal) const {
    return editing::commitRow(theme->session, row, [&](EditorFrame) { return proposal; });
  }

 private Q_SLOTS:
  void init() {
    theme = std::make_unique<OpenTheme>(Theme, "Plate=plate.png|");
    theme->screen(u"Loading Screen"_s);
    choose(u"LoadingStaticA"_s);
  }

  void stepByStep() {
    QVERIFY(commit({0, u" x "_s, u"1"_s}, {u"7"_s, {}}));
    QCOMPARE(theme->told(), u"0 X=7, Save, draws, mark again"_s);
    QCOMPARE(theme->report(), u"LoadingStaticA: x = 7"_s);
    QCOMPARE(theme->copy("theme"), QByteArray(Theme).replace("A]|X=1", "A]|X=7"));
    QVERIFY(theme->state.Changed && theme->state.CursorRect.X == u"7");
    // A key without an editor.
    QVERIFY(commit({3, u"ColR"_s, u"0.5"_s}, {u"9"_s, {}}));
    QCOMPARE(theme->told(), u"Save, draws, mark again"_s);
    QCOMPARE(theme->report(), u"LoadingStaticA: ColR = 0.5"_s);
    // Another object is chosen during the drawing, which has its mark then.
    QObject::connect(&theme->session, &editing::Session::drawWanted, [&] { theme->session.pickObject(0); });
    QVERIFY(commit({0, u"X"_s, u"7"_s}, {u"8"_s, {}}));
    QCOMPARE(theme->told(), u"0 X=8, Save, draws, settles, Loading(), mark"_s);
    // A failure doesn't stand beside the success before.
    const platform::ReportScope scope(theme->panel);
    choose(u"LoadingStaticA"_s);
    QVERIFY(commit({0, u"X"_s, u"8"_s}, {u"9"_s, {}}) && !commit({}, {u"9"_s, {}}));
    QCOMPARE(theme->report(), u"Error while writing tempfile [no row is selected]"_s);
  }

  void references() {
    QVERIFY(commit({1, u"Tex"_s, u"Plate"_s}, {u"Other"_s, u"other.png"_s}));
    QCOMPARE(theme->told(), u"1 TEX=Other, Save, draws, mark again"_s);
    QVERIFY(theme->copy("theme").contains("|Tex=Other|"));
    QCOMPARE(theme->copy("skin"), QByteArray("[Textures]|Plate=plate.png|Other=other.png|"));
    // The second file can't be written: the first write stands, and nothing else happens.
    theme->state.Changed = false;
    theme->state.paths.SkinFile = theme->folder.path(u"none/skin.ini.tmp"_s);
    QVERIFY(!commit({1, u"Tex"_s, u"Other"_s}, {u"Third"_s, u"third.png"_s}));
    QCOMPARE(theme->told(), QString());
    QVERIFY(theme->copy("theme").contains("|Tex=Third|") && !theme->state.Changed);
  }

  void refusals() {
    for (const Refusal& refusal : Refusals) {
      const RowName name(refusal.name);
      QVERIFY(!commit(refusal.row, refusal.proposal));
      QCOMPARE(theme->report(), u"Error while writing tempfile [%1]"_s.arg(QString::fromUtf8(refusal.cause)));
    }
    theme->tags.AddItem(u"LoadingTab\t"_s);
    theme->tags.AddItem(u"\tLoadingTab"_s);
    for (const QString& section : {u"Loading]x"_s, u"LoadingTab\t"_s, u"\tLoadingTab"_s}) {
      choose(section);
      QVERIFY(!commit({0, u"X"_s, u"4"_s}, {u"2"_s, {}}));
      QVERIFY(theme->report().contains(u"the section %1 can't be found again"_s.arg(section)));
    }
    theme->tags.SetListIndex(-1);
    QVERIFY(!commit({0, u"X"_s, u"4"_s}, {u"2"_s, {}}));
    QVERIFY(theme->report().contains(u"no object is selected"));
    QCOMPARE(theme->told(), QString());
    QVERIFY(theme->copy("theme") == Theme && !theme->state.Changed);
  }

  void severalValues() {
    const renderer::TrialValues a{u"LoadingStaticA"_s, {{u"X"_s, u"10"_s}, {u"Y"_s, u"20"_s}}};
    const renderer::TrialValues b{u"LoadingStaticB"_s, {{u"X"_s, u"-30"_s}}};
    QVERIFY(editing::commitValues(theme->session, {a, b}));
    QCOMPARE(theme->told(), u"-1 X=10, -1 Y=20, Save, draws, mark again"_s);
    QCOMPARE(theme->report(), u"LoadingStaticA: X = 10, Y = 20; LoadingStaticB: X = -30"_s);
    const QByteArray written = "A]|X=10|Tex=Plate|Z=0.5|Y=20|[LoadingStaticB]|X=-30|";
    QVERIFY(theme->copy("theme").contains(written));
    QCOMPARE(theme->state.CursorRect.X + theme->state.CursorRect.Y, u"1020"_s);
    // All or none.
    const QByteArray before = theme->copy("theme");
    QVERIFY(!editing::commitValues(theme->session, {a, {u"Loading]x"_s, {{u"X"_s, u"5"_s}}}}));
    QCOMPARE(theme->copy("theme"), before);
    QCOMPARE(theme->told(), QString());
    // Another program has removed the section: it is made anew.
    theme->putCopy("theme", "[Loading]|");
    QVERIFY(editing::commitValues(theme->session, {b}));
    QCOMPARE(theme->copy("theme"), QByteArray("[Loading]|[LoadingStaticB]|X=-30|"));
    QCOMPARE(theme->told(), u"Save, draws"_s);
  }
};

QTEST_GUILESS_MAIN(CommitTest)
#include "commit_test.moc"
