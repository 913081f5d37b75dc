#include <QTest>

#include "support/editing.h"

using namespace support;
using themefiles::Hit;

namespace {

const QByteArray Theme =
    "[Loading]|[LoadingStaticA]|X=1|Y=2|[LoadingStaticB]|X=3|[LoadingTextC]|Size=9|"
    "[Main]|[MainStaticA]|X=5|Y=6|";
const QString Loading = u"Loading Screen"_s;
const QString Main = u"Main Screen"_s;

}  // namespace

/// What is chosen in a theme: its screen and object, and where a search hit leads.
class ChoiceTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void listing() {
    OpenTheme theme(Theme);
    theme.state.ButtonListFilled = true;
    theme.screen(Loading);
    QCOMPARE(theme.tags.rows().join(u' '), u"Loading LoadingStaticA LoadingStaticB LoadingTextC"_s);
    QCOMPARE(theme.told(), u"settles, Loading(), mark in the work"_s);
    QVERIFY(theme.session.listIsComplete() && !theme.state.ButtonListFilled);
    // An object that stays chosen; one that is gone gives its place to the first.
    for (const auto& [kept, chosen] : {std::pair{"LoadingStaticB", "LoadingStaticB(X), mark"}, {"Gone", "mark in"}}) {
      theme.screen(Loading, QLatin1StringView(kept));
      QVERIFY2(theme.told().contains(QLatin1StringView(chosen)), kept);
    }
    // One that the user picks while the list fills outranks both.
    theme.session.listObjects(u"LoadingStaticB"_s, [&] {
      QVERIFY(!theme.session.listIsComplete());
      if (theme.tags.ListCount() == 2) theme.session.pickObject(1);
    });
    QCOMPARE(theme.session.object(), u"LoadingStaticA"_s);
    QVERIFY(theme.told().endsWith(u"LoadingStaticA(X Y), mark"_s));
    // So does a hit, which may come later in the list.
    theme.session.listObjects(u"LoadingStaticB"_s, [&] {
      if (theme.tags.ListCount() == 2) theme.session.goTo({Loading, u"LoadingTextC"_s, 0, u"Size"_s, {}});
    });
    QCOMPARE(theme.session.object(), u"LoadingTextC"_s);
    theme.session.chooseScreen(Main);
    QVERIFY(!theme.session.listIsComplete());
  }

  void choosing() {
    OpenTheme theme(Theme);
    theme.screen(Loading);
    theme.told();
    theme.session.pickObject(1);
    QCOMPARE(theme.told(), u"settles, LoadingStaticA(X Y), mark"_s);
    QCOMPARE(theme.state.CursorRect.X + theme.state.CursorRect.Y, u"12"_s);
    // What came to its end may have led to the theme's.
    QObject::connect(&theme.session, &editing::Session::settling, [&] { theme.session.end(); });
    theme.session.pickObject(2);
    QCOMPARE(theme.told(), u"settles, ends"_s);
    QVERIFY(theme.session.object().isEmpty() && theme.state.CursorRect.X == u"1");
  }

  void several() {
    OpenTheme theme(Theme);
    theme.session.toggleMember(u"LoadingStaticA"_s);  // nothing is chosen to be beside
    theme.screen(Loading);
    theme.told();
    for (const char* name : {"LoadingTextC", "Loading", "Gone", "LoadingStaticA", "LoadingStaticB", "LoadingStaticA"}) {
      theme.session.toggleMember(QLatin1StringView(name));
    }
    QCOMPARE(theme.told(),
             u"{LoadingTextC}, {LoadingTextC LoadingStaticA}, "
             "{LoadingTextC LoadingStaticA LoadingStaticB}, {LoadingTextC LoadingStaticB}"_s);
    // What ends a group: a choice, when all that was done by hand has come to its end; a listing; Esc; the theme's end.
    const auto add = [&] {
      theme.session.toggleMember(u"LoadingStaticA"_s);
      theme.told();
    };
    theme.session.chooseRow(0);
    theme.session.pickObject(0);
    QCOMPARE(theme.told(), u"settles, {}, Loading(), mark"_s);
    QCOMPARE(theme.session.row(), -1);
    add();
    theme.screen(Loading, u"Loading"_s);
    QVERIFY(theme.told().startsWith(u"{}, settles"));
    add();
    theme.session.endGroup();
    theme.session.endGroup();
    QCOMPARE(theme.told(), u"{}"_s);
    add();
    theme.session.end();
    QCOMPARE(theme.told(), u"{}, ends"_s);
  }

  void searchHits() {
    OpenTheme theme(Theme);
    theme.screen(Loading);
    const Hit here{Loading, u"LoadingStaticB"_s, 0, u"X"_s, {}};
    const Hit there{Main, u"MainStaticA"_s, 1, u"Y"_s, {}};
    theme.told();
    theme.session.goTo(here);
    QCOMPARE(theme.told(), u"settles, LoadingStaticB(X), mark, to row 0"_s);
    theme.session.goTo(there);
    QCOMPARE(theme.told(), u"to Main Screen"_s);
    theme.screen(Main);
    QVERIFY(theme.told().endsWith(u"MainStaticA(X Y), mark, to row 1"_s));
    theme.screen(Main);  // once
    QVERIFY(!theme.told().contains(u"row"));
    // What the user has chosen meanwhile outranks it.
    theme.session.goTo(here);
    theme.session.pickObject(0);
    theme.screen(Loading);
    QCOMPARE(theme.session.object(), u"Loading"_s);
    theme.session.goTo(there);
    theme.screen(u"Check Popup"_s);
    theme.screen(Main);
    QCOMPARE(theme.session.object(), u"Main"_s);
    // Another program has removed the object.
    theme.putCopy("theme", "[Main]|X=1|");
    theme.screen(Main);
    theme.session.goTo(there);
    QCOMPARE(theme.report(), u"Error while finding [MainStaticA is gone]"_s);
  }
};

QTEST_GUILESS_MAIN(ChoiceTest)
#include "choice_test.moc"
