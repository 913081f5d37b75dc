#include "themefiles/ini_access.h"

#include <QTest>

#include "platform/failure.h"
#include "support/panel.h"

using namespace themefiles;
using namespace support;

const QString Name = u"a.ini"_s;
const QString Section = u"S"_s;
const QString Key = u"k"_s;

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
    QCOMPARE(read(u"abc"_s, 6), QByteArray("12345"));
  }

  void defaults() {
    Folder folder;
    folder.put(Name, linesOf("[S]|k=v|e=|k=w|"));
    const QString file = folder.path(Name);
    QCOMPARE(GetINI(Section, u"x"_s, u"  d  "_s, file), u"  d"_s);
    QCOMPARE(GetINI(Section, Key, u"d"_s, folder.path(u"b.ini"_s)), u"d"_s);
    QCOMPARE(GetINI(Section, u"e"_s, u"d"_s, file), QString());
    QCOMPARE(keyNames(Section, file), QStringList({Key, u"e"_s, Key}));
  }

  void writesAndReadsBack() {
    Folder folder;
    folder.put(Name, linesOf("[S]|k=v|k=w|"));
    const QString file = folder.path(Name);
    for (const auto& [value, read] : {std::pair(u"\u20AC\u00FF"_s, u"\u20AC\u00FF"_s),
                                      {u"' w' "_s, u" w"_s},
                                      {QString(), QString()},
                                      {QString(40000, u'x'), QString(31999, u'x')}}) {
      putINIChecked(Section, Key, value, file);
      QCOMPARE(GetINI(Section, Key, u"d"_s, file, ListBufferSize), read);
    }
    putINIChecked(Section, Key, std::nullopt, file);  // of doubles the first
    QCOMPARE(folder.get(Name), linesOf("[S]|k=w|"));
    // Another program may change the file at once, but not the key.
    checkReadsBack("[S]\nk=w\nj=1", Section, Key, file);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, checkReadsBack("[S]\nk=v", Section, Key, file));
    folder.protect(Name);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, putINIChecked(Section, Key, u"x"_s, file));
  }

  void refusals() {
    Folder folder;
    folder.put(Name, "[S]\nk=v\n");
    // Section/key/value: letters outside the code page, line ends, NUL, and names that could not be found again.
    for (const QString& line : {u"S/k/\u03A9"_s, u"\u03A9/k/"_s, u"S/k/a\nb=c"_s, u"S/a\r/c"_s, u"S/k/\0"_s,
                                u"S/a=b/c"_s, u"S/[a/c"_s, u"S/ ;a/c"_s, u"S]/k/c"_s, u"S\t/k/c"_s, u"S/\tk/c"_s}) {
      const QStringList parts = line.split(u'/');
      PutINI(parts[0], parts[1], parts[2], folder.path(Name));
      QVERIFY_THROWS_EXCEPTION(platform::Failure, putINIChecked(parts[0], parts[1], parts[2], folder.path(Name)));
      QCOMPARE(folder.get(Name), QByteArray("[S]\nk=v\n"));
    }
  }
};

QTEST_MAIN(IniAccessTest)
#include "ini_access_test.moc"
