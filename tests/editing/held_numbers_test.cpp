#include "editing/held_numbers.h"

#include <QTest>

#include "support/editing.h"
#include "support/row_name.h"

using namespace support;
using editing::Grip;
using editing::HeldNumbers;

constexpr Grip Move, Left{-1, 0}, Right{1, 0}, UpperLeft{-1, -1};

/// The numbers of an object that is moved or sized by hand.
class HeldNumbersTest : public QObject {
  Q_OBJECT

 private:
  static QString changed(const HeldNumbers& start, Grip grip, const QPoint& by) {
    QStringList all;
    for (const auto& [key, value] : editing::changedValues(start, editing::moved(start, grip, by))) {
      all += key + u'=' + value;
    }
    return all.join(u' ');
  }

 private Q_SLOTS:
  void grips() {
    const std::pair<QPoint, QString> rows[] = {{{13, 50}, u"X=15 W=95"_s},        {{106, 50}, u"W=105"_s},
                                               {{60, 21}, u"Y=27 H=73"_s},        {{60, 99}, u"H=87"_s},
                                               {{14, 95}, u"X=15 Y=27"_s},        {{10, 20}, u"X=15 Y=27 W=95 H=73"_s},
                                               {{109, 20}, u"Y=27 W=105 H=73"_s}, {{10, 99}, u"X=15 W=95 H=87"_s},
                                               {{109, 99}, u"W=105 H=87"_s}};
    for (const auto& [pixel, expected] : rows) {
      const Grip grip = editing::gripAt({10, 20, 100, 80}, pixel);
      QCOMPARE(changed({10, 20, 100, 80, u"H"_s}, grip, {5, 7}), expected);
    }
  }

  /// Exactly as far as the mouse went, within what can be written, and never to the -1 that would mean another place.
  void far() {
    const QString h = u"H"_s;
    const struct {
      HeldNumbers start;
      Grip grip;
      QPoint by;
      QString changed;
    } rows[] = {{{-42, -20, 0, 0, {}}, Move, {1, 0}, u"X=-41"_s},
                {{5, 0, 0, 0, {}}, Move, {-6, -1}, u"X=-1 Y=-1"_s},  // a text
                {{-1, -1, 0, 0, {}}, Move, {3, 0}, u"X=2"_s},
                {{5, 0, 10, 10, h}, Move, {-6, -1}, u"X=-2 Y=-2"_s},
                {{-2, -9, 10, 10, h}, Move, {1, 8}, u"X=0 Y=0"_s},
                {{9990, -9990, 10, 10, h}, Move, {50, -50}, u"X=10000 Y=-10000"_s},
                {{10, 10, 10, 10, h}, Right, {-50, 0}, u"W=1"_s},
                {{10, 10, 9999, 10, h}, Right, {50, 0}, u"W=10000"_s},
                {{10, 10, 0, 10, h}, Right, {-1, 0}, QString()},
                {{10, 10, -50, 10, h}, Right, {51, 0}, u"W=1"_s},
                {{5, 9, 10, 10, h}, Left, {-6, 0}, u"X=-2 W=17"_s},
                {{-5, 9, 5, 10, h}, Left, {50, 0}, u"X=-2 W=2"_s},
                {{0, 9, 9999, 10, h}, Left, {-1, 0}, QString()},
                {{5, 9, 10, 10, h}, UpperLeft, {50, 50}, u"X=14 Y=18 W=1 H=1"_s}};
    for (const auto& [start, grip, by, expected] : rows) {
      const RowName name(expected.toLatin1());
      QCOMPARE(changed(start, grip, by), expected);
    }
  }

  /// What stands in the theme for an object in hand, and why it can't be moved or sized.
  void reading() {
    const QByteArray section = "[MainStaticA]|X=40.6|Y=-50|W=100|H=60|SelectH=70|";
    const QString ownSize = u"a texture drawn at its own size can't be sized"_s;
    const struct {
      QByteArray line, instead;
      Grip grip;
      const char* heightKey;
      QString why;
    } rows[] = {{"X=40.6", "", Move, "H", u"X is missing"_s},
                {"X=40.6", "X=wide", Move, "H", u"X: wide is no number"_s},
                {"Y=-50", "Y=-1.4", Move, "H", u"Y is -1"_s},
                {"Y=-50", "Y=-1", Move, "", QString()},  // a text
                {"X=40.6", "X=-10001", Move, "H", u"X: -10001 is too large"_s},
                {"X=40.6", "X=99999999999", Move, "H", u"X: 99999999999 is too large"_s},
                {"X=40.6", "X=-1", Right, "H", ownSize},
                {"Y=-50", "Y=-1", Right, "H", ownSize},
                {"W=100", "W=-1", Right, "H", ownSize},
                {"H=60", "H=-1", Right, "H", ownSize},
                {"H=60", "H=-1", Right, "SelectH", QString()},
                {"", "", Right, "", u"a text can't be sized"_s},
                {"[MainStaticA]", "[MainStaticB]", Move, "H", u"its section is gone"_s}};
    OpenTheme theme(section);
    const auto read = [&](Grip grip, const char* heightKey) {
      return editing::heldIn(editing::readTheme(theme.session), u"MainStaticA"_s, grip, QLatin1StringView(heightKey));
    };
    for (const auto& [line, instead, grip, heightKey, why] : rows) {
      const RowName name(instead + ' ' + heightKey);
      theme.putCopy("theme", line.isEmpty() ? section : QByteArray(section).replace(line, instead));
      const auto failure = platform::failureIn([&, grip = grip, heightKey = heightKey] { read(grip, heightKey); });
      QCOMPARE(failure.value_or(QString()), why);
    }
    // A working copy that is gone is made anew.
    QFile::remove(theme.folder.native(u"theme.ini.tmp"_s));
    const HeldNumbers numbers = read(UpperLeft, "SelectH");
    QCOMPARE(editing::labelOf(numbers, UpperLeft), u"X 41, Y -50, W 100, SelectH 70"_s);
    QCOMPARE(theme.copy("theme"), section);
  }

  void labels() {
    const HeldNumbers button{10, 20, 30, 40, u"SelectH"_s};
    const std::pair<Grip, QString> rows[] = {{Move, u"X 10, Y 20"_s},
                                             {Right, u"W 30, SelectH 40"_s},
                                             {Left, u"X 10, W 30, SelectH 40"_s},
                                             {UpperLeft, u"X 10, Y 20, W 30, SelectH 40"_s}};
    for (const auto& [grip, expected] : rows) QCOMPARE(editing::labelOf(button, grip), expected);
    const HeldNumbers passed = editing::moved(button, Move, {-11, 0});
    QCOMPARE(editing::labelOf(passed, Move), u"X -2, Y 20 (-1 would be its own place)"_s);
    QCOMPARE(editing::labelOf(editing::moved(passed, Move, {-1, 0}), Move), u"X -3, Y 20"_s);
  }
};

QTEST_GUILESS_MAIN(HeldNumbersTest)
#include "held_numbers_test.moc"
