#include "platform/code_page.h"

#include <QTest>

using namespace platform;
using namespace Qt::StringLiterals;

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
    QCOMPARE(FromAnsi("\x80\x8A\x9F\xE4\x81"), u"\u20AC\u0160\u0178\u00E4\u0081"_s);
    // The last one's low byte is a letter inside.
    for (const QString& outside : {u"a\u0151"_s, u"\u0394"_s, u"\u0141"_s}) QVERIFY(!ToAnsi(outside));
  }

  void capitals() {
    // Signs, letters without one capital, letters whose capital lies elsewhere, letters outside the code page.
    const QString text = u"\u00F7\u00D7 \u00DF\u00B5\u0192 \u00FF\u0161\u0153\u017E \u0151\u03B1\u0131"_s;
    const QString capitals = u"\u00F7\u00D7 \u00DF\u00B5\u0192 \u0178\u0160\u0152\u017D \u0151\u03B1\u0131"_s;
    QCOMPARE(UpperCase(text), capitals);
    QVERIFY(SameName(text, capitals));
    QVERIFY(!SameName(u"song"_s, u"songs"_s));
  }

  void order() {
    // "_" stands behind the capitals and before the small letters.
    QVERIFY(NameLess(u"az"_s, u"a_"_s));
    QVERIFY(NameLess(u"Button10"_s, u"button9"_s));
    QVERIFY(NameLess(u"song"_s, u"SongText"_s));
    QVERIFY(!NameLess(u"SONG"_s, u"song"_s));
  }
};

QTEST_APPLESS_MAIN(CodePageTest)
#include "code_page_test.moc"
