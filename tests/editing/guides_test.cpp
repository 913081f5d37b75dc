#include "editing/guides.h"

#include <QTest>

using editing::Grip;
using namespace Qt::StringLiterals;

/// What a drag of a rectangle meets on its way. Its edges and centre are 100, 130, 160 across and 100, 120, 140 down.
class GuidesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void meets_data() {
    QTest::addColumn<Grip>("grip");
    QTest::addColumn<QList<QPoint>>("ways");
    QTest::addColumn<QString>("met");
    const auto row = [](const char* name, const Grip& grip, const QList<QPoint>& ways, const char* met) {
      QTest::newRow(name) << grip << ways << QString::fromLatin1(met);
    };
    row("lower edges", {}, {{196, 1}}, "200,1: column 300 from 101 to 309 at A");
    row("too far from them", {}, {{195, 1}}, "195,1");
    row("centres", {}, {{181, 1}}, "180,1: column 310 from 101 to 309 at A");
    row("upper edges", {}, {{158, 1}}, "160,1: column 319 from 101 to 309 at A");
    row("one below another", {}, {{1, 211}}, "1,210: row 309 from 101 to 319 at A");
    row("both", {}, {{199, 201}}, "200,200: column 300 from 300 to 339 at A, row 300 from 300 to 359 at A");
    row("the nearer one", {}, {{-202, 1}}, "-203,1: column -103 from -300 to 140 at C");
    row("the first of two equally near", {}, {{-201, 1}}, "-200,1: column -100 from -300 to 140 at B");
    row("where it began", {}, {{-3, 403}}, "-3,403");
    row("where it began, once left", {}, {{-5, 403}, {-3, 403}}, "0,403: column 100 from 503 to 809 at D");
    row("the right edge alone", {1, 0}, {{142, 198}}, "140,198: column 300 from 100 to 309 at A");
    row("not the left one", {1, 0}, {{200, 198}}, "200,198");
    row("the upper edge alone", {0, -1}, {{198, 198}}, "198,200: row 300 from 100 to 319 at A");
    row("not the lower one", {0, -1}, {{198, 162}}, "198,162");
  }
  void meets() {
    QFETCH(const Grip, grip);
    QFETCH(const QList<QPoint>, ways);
    editing::Guides guides({{u"A"_s, {300, 300, 20, 10}},
                            {u"B"_s, {-100, -300, 60, 10}},
                            {u"C"_s, {-103, -300, 1000, 10}},
                            {u"D"_s, {100, 800, 500, 10}}},
                           {100, 100, 60, 40}, grip);
    editing::MetMovement met;
    for (const QPoint& way : ways) met = guides.met(way, true, true);
    QStringList lines;
    for (const auto& [upright, at, from, to, name] : met.lines) {
      lines += QLatin1StringView(upright ? "column" : "row") +
               u" %1 from %2 to %3 at %4"_s.arg(at).arg(from).arg(to).arg(name);
    }
    QTEST(u"%1,%2"_s.arg(met.by.x()).arg(met.by.y()) + (lines.isEmpty() ? QString() : u": "_s) + lines.join(u", "_s),
          "met");
    QCOMPARE(guides.met({199, 201}, false, false).by, QPoint(199, 201));
  }

  void tellsEachOnce() {
    QCOMPARE(editing::metText({}), QString());
    QCOMPARE(editing::metText({{true, 1, 0, 1, u"A"_s}, {false, 1, 0, 1, u"A"_s}, {false, 1, 0, 1, u"B"_s}}),
             u", at A and B"_s);
  }
};

QTEST_GUILESS_MAIN(GuidesTest)
#include "guides_test.moc"
