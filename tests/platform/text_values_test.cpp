#include <limits>

#include <QTest>

#include "platform/code_page.h"
#include "platform/numbers.h"

using namespace platform;
using namespace Qt::StringLiterals;

class TextValuesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyByteSurvives() {
    for (int i = 0; i < 256; ++i) {
      const QByteArray byte(1, static_cast<char>(i));
      const QString letter = fromAnsi(byte);
      QCOMPARE(letter.size(), 1);
      QCOMPARE(toAnsi(letter), byte);
      // The capital of a byte and the capital of its letter are the same one.
      QCOMPARE(toAnsi(upperCase(letter)), QByteArray(1, upperCaseByte(byte[0])));
    }
    QCOMPARE(fromAnsi("\x80\x8A\x9F\xE4\x81"), u"\u20AC\u0160\u0178\u00E4\u0081"_s);
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
    for (const char* row : {"  -12.5abc=-12.5", "+7=7", "-.25=-0.25", "5.=5", ".=0", "- 5=0", "1 2=1", "1.2.3=1.2",
                            "1e3=1", "9999999999=9999999999", "inf=0", "\u00A0 5=0", "\u0663=0"}) {
      const QStringList fields = QString::fromUtf8(row).split(u'=');
      QVERIFY2(numberOf(fields[0]) == fields[1].toDouble(), row);
    }
    QCOMPARE(numberOf(u'-' + QString(400, u'9')), -std::numeric_limits<double>::infinity());
  }

  void rounding() {
    // A number, and what 16 bits and a byte make of it; "-" where it doesn't fit.
    for (const char* row : {"127.5 128 128", "0.49999999999999994 0 0", "-0.5 0 0", "-0.51 -1 -", "255.49 255 255",
                            "255.5 256 -", "32767.49 32767 -", "32767.5 - -", "-32768.51 - -", "nan - -"}) {
      const QStringList fields = QString::fromLatin1(row).split(u' ');
      const auto shown = [](auto rounded) { return rounded ? QString::number(*rounded) : u"-"_s; };
      const double number = fields[0].toDouble();
      QVERIFY2(shown(roundToInt16(number)) == fields[1] && shown(roundToByte(number)) == fields[2], row);
    }
  }

  void textOfNumber() {
    for (const char* row : {"-0=0", "66.66666666666667=66.6666666666667", "0.30000000000000004=0.3", "1e-7=0.0000001",
                            "123456789012345678=123456789012346000"}) {
      const QStringList fields = QString::fromLatin1(row).split(u'=');
      QCOMPARE(numberText(fields[0].toDouble()), fields[1]);
    }
  }

  void blanks() {
    QCOMPARE(trimBlanks(u"  a b\t "_s), u"a b\t"_s);
    QCOMPARE(splitAtBlanks(u" 1  2\t3 "_s).join(u'/'), u"/1//2\t3/"_s);
  }
};

QTEST_APPLESS_MAIN(TextValuesTest)
#include "text_values_test.moc"
