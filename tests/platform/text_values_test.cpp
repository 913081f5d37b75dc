#include <QTest>

#include "platform/code_page.h"
#include "platform/console.h"
#include "platform/numbers.h"
#include "support/results.h"

using namespace platform;
using namespace Qt::StringLiterals;

class TextValuesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// Bytes in hex: their letters, the bytes of the letters' capitals, and the capitals of the bytes.
  void letters() {
    support::compareRows(u"letters.txt"_s, [](const QString& row) {
      const QByteArray bytes = QByteArray::fromHex(row.toLatin1());
      const QString text = fromAnsi(bytes);
      QString told;
      for (const QChar letter : text) told += QString::number(letter.unicode(), 16) + u' ';
      told += QString::fromLatin1(toAnsi(upperCase(text)).value_or("none").toHex()) + u' ';
      for (const char byte : bytes) told += QString::number(static_cast<uchar>(upperCaseByte(byte)), 16);
      return toAnsi(text) == bytes ? told : told + u" not the same bytes again"_s;
    });
    // The last one's low byte is a letter inside.
    for (const QString& outside : {u"\u0394"_s, u"a\u0141"_s}) QVERIFY(!toAnsi(outside));
  }

  void capitalsAndOrder() {
    // Signs, letters without one capital, letters whose capital lies elsewhere, letters outside the code page.
    const QString text = u"\u00F7\u00D7 \u00DF\u00B5\u0192 \u00FF\u0161\u0153\u017E \u0151\u03B1\u0131"_s;
    const QString capitals = u"\u00F7\u00D7 \u00DF\u00B5\u0192 \u0178\u0160\u0152\u017D \u0151\u03B1\u0131"_s;
    QCOMPARE(upperCase(text), capitals);
    QVERIFY(sameName(text, capitals));
    // "_" stands behind the capitals and before the small letters.
    QVERIFY(nameLess(u"az"_s, u"a_"_s));
    QVERIFY(!nameLess(u"SONG"_s, u"song"_s));
  }

  void numberOfText() {
    support::compareRows(u"numbers_of_texts.txt"_s, [](const QString& text) {
      return QString::number(numberOf(text), 'g', 17) + (isNumber(text) ? u""_s : u" (no number)"_s);
    });
  }

  void rounding() {
    support::compareRows(u"rounded_numbers.txt"_s, [](const QString& number) {
      const auto shown = [](auto rounded) { return rounded ? QString::number(*rounded) : u"-"_s; };
      return shown(roundToInt16(number.toDouble())) + u' ' + shown(roundToByte(number.toDouble()));
    });
  }

  void textOfNumber() {
    support::compareRows(u"texts_of_numbers.txt"_s,
                         [](const QString& number) { return numberText(number.toDouble()); });
  }

  void oneLine() {
    support::compareRows(u"one_line.txt"_s, [](const QString& row) {
      QString text, told;
      for (const QString& letter : row.split(u' ')) text += QChar(letter.toUShort(nullptr, 16));
      for (const QChar letter : onOneLine(text)) told += u' ' + QString::number(letter.unicode(), 16);
      return told.mid(1);
    });
  }

  void blanks() {
    QCOMPARE(trimBlanks(u"  a b\t "_s), u"a b\t"_s);
    QCOMPARE(splitAtBlanks(u" 1  2\t3 "_s).join(u'/'), u"/1//2\t3/"_s);
  }
};

QTEST_APPLESS_MAIN(TextValuesTest)
#include "text_values_test.moc"
