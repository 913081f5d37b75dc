#include "platform/numbers.h"

#include <limits>

#include <QTest>

using namespace platform;

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

}  // namespace

class NumbersTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void numberOfText_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    const auto row = [](const char* text, double number) {
      QTest::newRow(*text ? text : "empty") << QString::fromUtf8(text) << number;
    };
    row("", 0);
    row("  -12.5abc", -12.5);
    row("+7", 7);
    row(".5", 0.5);
    row("-.25", -0.25);
    row("5.", 5);
    row(".", 0);
    row("- 5", 0);
    row("1 2", 1);
    row("1.2.3", 1.2);
    row("1e3", 1);
    row("inf", 0);
    row("\t5", 0);
    row("\xC2\xA0 5", 0);
    row("\xD9\xA3", 0);  // a digit of another script
  }

  void numberOfText() {
    QFETCH(QString, text);
    QFETCH(double, number);
    QCOMPARE(NumberOf(text), number);
  }

  void numbersBeyondTheRange() {
    QCOMPARE(NumberOf(QString(400, u'9')), Infinite);
    QCOMPARE(NumberOf(u'-' + QString(400, u'9')), -Infinite);
    QCOMPARE(NumberOf(QStringLiteral("0.") + QString(400, u'0') + u'1'), 0.0);
    QVERIFY(!RoundToInt16(Infinite));
    QVERIFY(!RoundToByte(std::numeric_limits<double>::quiet_NaN()));
  }

  void rounding_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("int16");  // Off: doesn't fit
    QTest::addColumn<int>("byte");
    QTest::newRow("half up") << 127.5 << 128 << 128;
    QTest::newRow("below a half") << 0.49999999999999994 << 0 << 0;
    QTest::newRow("negative half") << -0.5 << 0 << 0;
    QTest::newRow("negative") << -0.51 << -1 << Off;
    QTest::newRow("last byte") << 255.49 << 255 << 255;
    QTest::newRow("past the last byte") << 255.5 << 256 << Off;
    QTest::newRow("last") << 32767.49 << 32767 << Off;
    QTest::newRow("past the last") << 32767.5 << Off << Off;
    QTest::newRow("first, from a half") << -32768.5 << -32768 << Off;
    QTest::newRow("past the first") << -32768.51 << Off << Off;
  }

  void rounding() {
    QFETCH(double, number);
    const auto int16 = RoundToInt16(number);
    const auto byte = RoundToByte(number);
    QTEST(int16 ? int(*int16) : Off, "int16");
    QTEST(byte ? int(*byte) : Off, "byte");
  }

  void textOfNumber_data() {
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    const auto row = [](double number, const char* text) {
      QTest::newRow(text) << number << QString::fromLatin1(text);
    };
    row(0, "0");
    row(-0.0, "0");
    row(0.5, "0.5");
    row(200.0 / 3, "66.6666666666667");
    row(0.1 + 0.2, "0.3");
    row(1e-7, "0.0000001");
    row(1.5e18, "1500000000000000000");
    row(123456789012345678.0, "123456789012346000");
  }

  void textOfNumber() {
    QFETCH(double, number);
    QTEST(NumberText(number), "text");
  }

  void blanks() {
    QCOMPARE(TrimBlanks(QStringLiteral("  a b\t ")), QStringLiteral("a b\t"));
    QCOMPARE(TrimBlanks(QStringLiteral("   ")), QString());
    const QStringList fields = {QString(), QStringLiteral("1"), QString(), QStringLiteral("2\t3"), QString()};
    QCOMPARE(SplitAtBlanks(QStringLiteral(" 1  2\t3 ")), fields);
    QCOMPARE(SplitAtBlanks(QString()), QStringList{QString()});
  }

 private:
  static constexpr int Off = 99999;
};

QTEST_APPLESS_MAIN(NumbersTest)
#include "numbers_test.moc"
