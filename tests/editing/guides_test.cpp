#include "editing/guides.h"

#include "support/results.h"

using editing::Grip;
using namespace Qt::StringLiterals;
using support::compareRows;

/// What a drag of a rectangle meets on its way.
class GuidesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void meets() {
    compareRows(u"guides.txt"_s, [](const QString& row) {
      const QStringList words = row.split(u": "_s);
      const auto has = [&](const char* side) { return words[0].contains(QLatin1StringView(side)) ? 1 : 0; };
      const Grip grip{has("right") - has("left"), has("lower") - has("upper")};
      editing::Guides guides({{u"A"_s, {300, 300, 20, 10}},
                              {u"B"_s, {-100, -300, 60, 10}},
                              {u"C"_s, {-103, -300, 1000, 10}},
                              {u"D"_s, {100, 800, 500, 10}}},
                             {100, 100, 60, 40}, grip);
      editing::MetMovement met;
      for (const QString& way : words[1].split(u' ')) {
        const QStringList numbers = way.split(u',');
        met = guides.met({numbers[0].toInt(), numbers[1].toInt()}, numbers.value(2) != u"down",
                         numbers.value(2) != u"across");
      }
      QString told = u"%1,%2"_s.arg(met.by.x()).arg(met.by.y());
      for (const auto& [upright, at, from, to, name] : met.lines) {
        told += u"; %1 %2 from %3 to %4 at %5"_s.arg(QLatin1StringView(upright ? "column" : "row"))
                    .arg(at)
                    .arg(from)
                    .arg(to)
                    .arg(name);
      }
      return told;
    });
  }

  void tellsEachOnce() {
    QCOMPARE(editing::metText({{true, 1, 0, 1, u"A"_s}, {false, 1, 0, 1, u"A"_s}, {false, 1, 0, 1, u"B"_s}}),
             u", at A and B"_s);
  }
};

QTEST_GUILESS_MAIN(GuidesTest)
#include "guides_test.moc"
