#include "platform/code_page.h"

#include <QTest>

using namespace platform;

class CodePageTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyByteSurvives() {
    for (int i = 0; i < 256; ++i) {
      const QByteArray byte(1, static_cast<char>(i));
      const QString letter = FromAnsi(byte);
      QCOMPARE(letter.size(), 1);
      QCOMPARE(ToAnsi(letter), byte);
      // The capital of a byte and the capital of its letter are the same one.
      QCOMPARE(ToAnsi(UpperCase(letter)), QByteArray(1, UpperCaseByte(byte[0])));
    }
  }

  void lettersOfTheCodePage() {
    QCOMPARE(FromAnsi("\x80\x8A\x9F\xE4\x81"), QStringLiteral(u"\u20AC\u0160\u0178\u00E4\u0081"));
    QVERIFY(!ToAnsi(QStringLiteral(u"a\u0151")));
    QVERIFY(!ToAnsi(QStringLiteral(u"\u0394")));
    // A letter outside whose low byte is a letter inside.
    QVERIFY(!ToAnsi(QStringLiteral(u"\u0141")));
  }

  void capitals_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("capitals");
    QTest::newRow("division sign") << QStringLiteral(u"\u00F7\u00D7") << QStringLiteral(u"\u00F7\u00D7");
    QTest::newRow("no capital of one letter")
        << QStringLiteral(u"\u00DF\u00B5\u0192") << QStringLiteral(u"\u00DF\u00B5\u0192");
    QTest::newRow("capital elsewhere") << QStringLiteral(u"\u00FF\u0161\u0153\u017E")
                                       << QStringLiteral(u"\u0178\u0160\u0152\u017D");
    QTest::newRow("outside the code page")
        << QStringLiteral(u"\u0151\u03B1\u0131") << QStringLiteral(u"\u0151\u03B1\u0131");
  }

  void capitals() {
    QFETCH(QString, text);
    QFETCH(QString, capitals);
    QCOMPARE(UpperCase(text), capitals);
    QVERIFY(SameName(text, capitals));
  }

  void order() {
    // "_" stands behind the capitals and before the small letters.
    QVERIFY(NameLess(QStringLiteral("az"), QStringLiteral("a_")));
    QVERIFY(NameLess(QStringLiteral("Button10"), QStringLiteral("button9")));
    QVERIFY(NameLess(QStringLiteral("song"), QStringLiteral("SongText")));
    QVERIFY(!NameLess(QStringLiteral("SONG"), QStringLiteral("song")));
    QVERIFY(!SameName(QStringLiteral("song"), QStringLiteral("songs")));
  }
};

QTEST_APPLESS_MAIN(CodePageTest)
#include "code_page_test.moc"
