#include "platform/numbers.h"

#include <limits>

#include <QTest>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

}  // namespace

class NumbersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void numberOfText() {
    for (const char* row : {"=0", "  -12.5abc=-12.5", "+7=7", ".5=0.5", "-.25=-0.25", "5.=5", ".=0", "- 5=0", "1 2=1",
                            "1.2.3=1.2", "1e3=1", "inf=0", "\t5=0", "\u00A0 5=0", "\u0663=0"}) {
      const QStringList fields = QString::fromUtf8(row).split(u'=');
      QVERIFY2(NumberOf(fields[0]) == fields[1].toDouble(), row);
    }
    QCOMPARE(NumberOf(QString(400, u'9')), Infinite);
    QCOMPARE(NumberOf(u'-' + QString(400, u'9')), -Infinite);
    QCOMPARE(NumberOf(u"0."_s + QString(400, u'0') + u'1'), 0.0);
  }

  void rounding() {
    // A number, and what 16 bits and a byte make of it; "-" where it doesn't fit.
    for (const char* row :
         {"127.5 128 128", "0.49999999999999994 0 0", "-0.5 0 0", "-0.51 -1 -", "255.49 255 255", "255.5 256 -",
          "32767.49 32767 -", "32767.5 - -", "-32768.5 -32768 -", "-32768.51 - -", "inf - -", "nan - -"}) {
      const QStringList fields = QString::fromLatin1(row).split(u' ');
      const auto shown = [](auto rounded) { return rounded ? QString::number(*rounded) : u"-"_s; };
      const double number = fields[0].toDouble();
      QVERIFY2(shown(RoundToInt16(number)) == fields[1] && shown(RoundToByte(number)) == fields[2], row);
    }
  }

  void textOfNumber() {
    for (const char* row : {"0=0", "-0=0", "0.5=0.5", "66.66666666666667=66.6666666666667", "0.30000000000000004=0.3",
                            "1e-7=0.0000001", "1.5e18=1500000000000000000", "123456789012345678=123456789012346000"}) {
      const QStringList fields = QString::fromLatin1(row).split(u'=');
      QCOMPARE(NumberText(fields[0].toDouble()), fields[1]);
    }
  }

  void blanks() {
    QCOMPARE(TrimBlanks(u"  a b\t "_s), u"a b\t"_s);
    QCOMPARE(TrimBlanks(u"   "_s), QString());
    QCOMPARE(SplitAtBlanks(u" 1  2\t3 "_s).join(u'/'), u"/1//2\t3/"_s);
    QCOMPARE(SplitAtBlanks(QString()), QStringList{QString()});
  }
};

QTEST_APPLESS_MAIN(NumbersTest)
#include "numbers_test.moc"
