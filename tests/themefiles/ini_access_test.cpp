#include "themefiles/ini_access.h"

#include <QTest>

#include "platform/failure.h"
#include "support/theme_doubles.h"

using namespace themefiles;
using namespace support;
using namespace Qt::StringLiterals;

namespace {

const QString Name = u"a.ini"_s;
const QString Section = u"S"_s;
const QString Key = u"k"_s;

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
    const auto read = [&](const std::optional<QString>& key, qint16 size) {
      return GetINI(Section, key, QString(), folder.path(Name), size).toLatin1();
    };
    QCOMPARE(read({}, 9), QByteArray("abc\0def\0", 8));
    QCOMPARE(read({}, 8), QByteArray("abc\0de", 6));
    QCOMPARE(read({}, 1), QByteArray());
    QCOMPARE(read(u"abc"_s, 7), QByteArray("123456"));
    QCOMPARE(read(u"abc"_s, 6), QByteArray("12345"));
    QCOMPARE(read(u"abc"_s, 1), QByteArray());
  }

  void defaults() {
    Folder folder;
    folder.put(Name, linesOf("[S]|k=v|e=|"));
    const QString file = folder.path(Name);
    const QString given = u"  d  "_s;
    const QString kept = u"  d"_s;
    QCOMPARE(GetINI(Section, u"x"_s, given, file), kept);
    QCOMPARE(GetINI(Section, QString(), given, file), kept);
    QCOMPARE(GetINI(u"T"_s, Key, given, file), kept);
    QCOMPARE(GetINI(Section, Key, given, folder.path(u"b.ini"_s)), kept);
    QVERIFY(!folder.has(u"b.ini"_s));
    QCOMPARE(GetINI(Section, u"e"_s, given, file), QString());
    QVERIFY(GetINI(u"T"_s, std::nullopt, given, file).isEmpty());
    QCOMPARE(KeyNames(Section, file), QStringList({Key, u"e"_s}));
    QVERIFY(KeyNames(u"T"_s, file).isEmpty());
  }

  void writesAndReadsBack() {
    Folder folder;
    folder.put(Name, linesOf("[S]|k=v|k=w|"));
    const QString file = folder.path(Name);
    const QString letters = u"\u20AC\u00FF\u0153"_s;
    const QString tooLong(40000, u'x');
    const QList<std::pair<QString, QString>> pairs{{letters, letters},
                                                   {u" w "_s, u"w"_s},
                                                   {u"' w'"_s, u" w"_s},
                                                   {QString(), QString()},
                                                   {tooLong, tooLong.left(31999)}};
    for (const auto& [value, read] : pairs) {
      QVERIFY(putChecked(Section, Key, value, file));
      QCOMPARE(GetINI(Section, Key, u"d"_s, file, ListBufferSize), read);
    }
    QVERIFY(putChecked(Section, Key, std::nullopt, file));  // of doubles the first
    QCOMPARE(folder.get(Name), linesOf("[S]|k=w|"));
    folder.protect(Name);
    QVERIFY(!putChecked(Section, Key, u"x"_s, file));
  }

  void refusals() {
    Folder folder;
    const QByteArray before = linesOf("[S]|k=v|", "\n");
    folder.put(Name, before);
    // Section/key/value: letters outside the code page, line ends, NUL, and names that could not be found again.
    for (const QString& line :
         {u"S/k/\u03A9"_s, u"S/\u03A9/"_s, u"\u03A9/k/"_s, u"S/k/a\nb=c"_s, u"S/k/a\r"_s, u"S/a\r/c"_s, u"S/k/\0"_s,
          u"S/a=b/c"_s, u"S/[a/c"_s, u"S/ ;a/c"_s, u"S/ /c"_s, u"S]/k/c"_s}) {
      const QStringList parts = line.split(u'/');
      PutINI(parts[0], parts[1], parts[2], folder.path(Name));
      QVERIFY2(!putChecked(parts[0], parts[1], parts[2], folder.path(Name)), qPrintable(line));
      QCOMPARE(folder.get(Name), before);
    }
  }
};

QTEST_MAIN(IniAccessTest)
#include "ini_access_test.moc"
