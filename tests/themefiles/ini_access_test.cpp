#include "themefiles/ini_access.h"

#include <QTest>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/file_identity.h"
#include "support/panel.h"
#include "support/results.h"

using namespace themefiles;
using namespace support;

const QString Name = u"a.ini"_s;
const QString Section = u"S"_s;
const QString Key = u"k"_s;

namespace {

/// What a row gives: a file and, behind "&", names and texts.
struct Given {
  explicit Given(const QString& row)
      : bytes(bytesOf(row.section(u" & "_s, 0, 0).toLatin1(), "\r\n")),
        names(QString::fromUtf8(bytesOf(row.section(u" & "_s, 1).toUtf8())).split(u'/')) {
    folder.put(Name, bytes);
  }
  Folder folder;
  QByteArray bytes;
  QStringList names;
};

}  // namespace

class IniAccessTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  /// "FILE & Section/Key/Default/size", the list of all keys being "*": what is read, also by readers of the section.
  void read() {
    compareRows(u"read.txt"_s, [](const QString& row) {
      const Given given(row);
      const bool isList = given.names[1] == u"*";
      const auto key = isList ? std::nullopt : std::optional(given.names[1]);
      const QString file = given.folder.path(Name), without = given.names[2];
      const QString value = GetINI(given.names[0], key, without, file, given.names[3].toShort());
      const SectionReader alone(given.names[0], file);
      const SectionReader oneOfMany(given.names[0], platform::IniSections(platform::IniText(given.bytes)));
      if (alone.isThere() != oneOfMany.isThere()) return u"only one finds it"_s;
      for (int i = 0; i < 4 && !isList && given.names[3] == u"256"; ++i) {
        if ((i % 2 == 0 ? alone : oneOfMany).Value(given.names[1], without) != value) return u"readers differ"_s;
      }
      return rowOf(platform::toAnsi(value).value_or("?")) + (alone.isThere() ? u""_s : u" (no section)"_s);
    });
  }

  void writesAndReadsBack() {
    Folder folder;
    folder.put(Name, linesOf("[S]|k=v|k=w|"));
    const QString file = folder.path(Name);
    putINIChecked(Section, Key, QString(40000, u'x'), file);
    QCOMPARE(GetINI(Section, Key, u"d"_s, file, ListBufferSize), QString(31999, u'x'));
    putINIChecked(Section, Key, std::nullopt, file);  // of doubles the first
    QCOMPARE(folder.get(Name), linesOf("[S]|k=w|"));
    // Another program may change the file at once, but not the key.
    checkReadsBack("[S]\nk=w\nj=1", Section, Key, file);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, checkReadsBack("[S]\nk=v", Section, Key, file));
    folder.protect(Name);
    QVERIFY_THROWS_EXCEPTION(platform::Failure, putINIChecked(Section, Key, u"x"_s, file));
  }

  /// "FILE & Section/Key/Value", to remove the key without a value: the file then, or why it stays.
  void written() {
    compareRows(u"written.txt"_s, [](const QString& row) {
      const Given given(row);
      const auto value = given.names.size() > 2 ? std::optional(given.names[2]) : std::nullopt;
      const auto put = [&](auto by) { by(given.names[0], given.names[1], value, given.folder.path(Name)); };
      const auto before = platform::identityOf(given.folder.path(Name));
      const auto failure = platform::failureIn([&] { put(putINIChecked); });
      const bool stays = platform::identityOf(given.folder.path(Name)) == before;
      const QByteArray text = given.folder.get(Name);
      given.folder.put(Name, given.bytes);
      put(PutINI);
      if (given.folder.get(Name) != text) return u"unchecked differs"_s;
      return failure ? u"no: "_s + rowOf(failure->toUtf8()) : rowOf(text) + (stays ? u" (not written)"_s : u""_s);
    });
  }
};

QTEST_MAIN(IniAccessTest)
#include "ini_access_test.moc"
