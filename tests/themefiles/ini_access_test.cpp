#include "themefiles/ini_access.h"

#include <QTest>

#include "platform/failure.h"
#include "support/theme_doubles.h"

using namespace themefiles;
using namespace support;

namespace {

const QString Name = QStringLiteral("a.ini");
const QString Section = QStringLiteral("S");
const QString Key = QStringLiteral("k");

bool putChecked(const QString& section, const QString& key, const std::optional<QString>& value, const QString& file) {
  try {
    PutINIChecked(section, key, value, file);
    return true;
  } catch (const platform::Failure&) {
    return false;
  }
}

}  // namespace

class IniAccessTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void buffers() {
    Folder folder;
    folder.put(Name, linesOf("[S]|abc=123456|def=2|"));
    const auto list = [&](qint16 size) {
      return GetINI(Section, std::nullopt, QString(), folder.path(Name), size).toLatin1();
    };
    QCOMPARE(list(9), QByteArray("abc\0def\0", 8));
    QCOMPARE(list(8), QByteArray("abc\0de", 6));
    QCOMPARE(list(1), QByteArray());
    const auto value = [&](qint16 size) {
      return GetINI(Section, QStringLiteral("abc"), QString(), folder.path(Name), size).toLatin1();
    };
    QCOMPARE(value(7), QByteArray("123456"));
    QCOMPARE(value(6), QByteArray("12345"));
    QCOMPARE(value(1), QByteArray());
  }

  void defaults() {
    Folder folder;
    folder.put(Name, linesOf("[S]|k=v|e=|"));
    const QString file = folder.path(Name);
    const QString given = QStringLiteral("  d  ");
    const QString kept = QStringLiteral("  d");
    QCOMPARE(GetINI(Section, QStringLiteral("x"), given, file), kept);
    QCOMPARE(GetINI(Section, QString(), given, file), kept);
    QCOMPARE(GetINI(QStringLiteral("T"), Key, given, file), kept);
    QCOMPARE(GetINI(Section, Key, given, folder.path(QStringLiteral("b.ini"))), kept);
    QVERIFY(!folder.has(QStringLiteral("b.ini")));
    QCOMPARE(GetINI(Section, QStringLiteral("e"), given, file), QString());
    QVERIFY(GetINI(QStringLiteral("T"), std::nullopt, given, file).isEmpty());
    QCOMPARE(KeyNames(Section, file), QStringList({Key, QStringLiteral("e")}));
    QVERIFY(KeyNames(QStringLiteral("T"), file).isEmpty());
  }

  void writesAndReadsBack() {
    Folder folder;
    folder.put(Name, linesOf("[S]|k=v|k=w|"));
    const QString file = folder.path(Name);
    const QString letters = QStringLiteral("\u20AC\u00FF\u0153");
    const QString tooLong(40000, u'x');
    const QList<std::pair<QString, QString>> pairs{{letters, letters},
                                                   {QStringLiteral(" w "), QStringLiteral("w")},
                                                   {QStringLiteral("' w'"), QStringLiteral(" w")},
                                                   {QString(), QString()},
                                                   {tooLong, tooLong.left(31999)}};
    for (const auto& [value, read] : pairs) {
      QVERIFY(putChecked(Section, Key, value, file));
      QCOMPARE(GetINI(Section, Key, QStringLiteral("d"), file, ListBufferSize), read);
    }
    QVERIFY(putChecked(Section, Key, std::nullopt, file));  // of doubles the first
    QCOMPARE(folder.get(Name), linesOf("[S]|k=w|"));
    folder.protect(Name);
    QVERIFY(!putChecked(Section, Key, QStringLiteral("x"), file));
  }

  void refusals_data() {
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const QString omega = QStringLiteral("\u03A9");
    QTest::newRow("letter outside the code page") << Section << Key << omega;
    QTest::newRow("in a key") << Section << omega << QString();
    QTest::newRow("in a section") << omega << Key << QString();
    QTest::newRow("LF") << Section << Key << QStringLiteral("a\nb=c");
    QTest::newRow("CR") << Section << Key << QStringLiteral("a\r");
    QTest::newRow("NUL") << Section << Key << QString(QChar(0));
    QTest::newRow("sign in a key") << Section << QStringLiteral("a=b") << QStringLiteral("c");
    QTest::newRow("comment for a key") << Section << QStringLiteral(";a") << QStringLiteral("c");
    QTest::newRow("no key") << Section << QStringLiteral(" ") << QStringLiteral("c");
    QTest::newRow("bracket in a section") << QStringLiteral("S]") << Key << QStringLiteral("c");
  }

  void refusals() {
    QFETCH(QString, section);
    QFETCH(QString, key);
    QFETCH(QString, value);
    Folder folder;
    const QByteArray before = linesOf("[S]|k=v|", "\n");
    folder.put(Name, before);
    PutINI(section, key, value, folder.path(Name));
    QCOMPARE(folder.get(Name), before);
    QVERIFY(!putChecked(section, key, value, folder.path(Name)));
    QCOMPARE(folder.get(Name), before);
  }
};

QTEST_MAIN(IniAccessTest)
#include "ini_access_test.moc"
