#include "editing/held_numbers.h"

#include <QTest>

#include "support/editing.h"
#include "support/results.h"
#include "support/row_name.h"

using namespace support;
using editing::Grip;
using editing::HeldNumbers;

constexpr Grip Move, Left{-1, 0}, Right{1, 0}, UpperLeft{-1, -1};

/// The numbers of an object that is moved or sized by hand.
class HeldNumbersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// Exactly as far as the mouse went, within what can be written, and never to the -1 that would mean another place.
  void byHand() {
    compareRows(u"held_numbers.txt"_s, [](const QString& row) {
      const QMap<QString, Grip> named{
          {u"move"_s, {}}, {u"left"_s, Left}, {u"right"_s, Right}, {u"corner"_s, UpperLeft}};
      const QStringList words = row.split(u' ');
      const auto number = [&](qsizetype word) { return words.at(word).toInt(); };
      const bool isText = words.at(2) == u"text";
      const HeldNumbers start = isText ? HeldNumbers{number(0), number(1), 0, 0, {}}
                                       : HeldNumbers{number(0), number(1), number(2), number(3), u"H"_s};
      const QString how = words.at(isText ? 3 : 4);
      const Grip grip = how == u"at" ? editing::gripAt({start.X, start.Y, start.W, start.H}, {number(5), number(6)})
                                     : named.value(how);
      const qsizetype last = words.size() - 1;
      const HeldNumbers moved = editing::moved(start, grip, {number(last - 1), number(last)});
      QStringList told;
      for (const auto& [key, value] : editing::changedValues(start, moved)) told += key + u'=' + value;
      return told.join(u' ') + u"; "_s + editing::labelOf(moved, grip);
    });
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
                {"X=40.6", "X=wide", Right, "H", QString()},
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
};

QTEST_GUILESS_MAIN(HeldNumbersTest)
#include "held_numbers_test.moc"
