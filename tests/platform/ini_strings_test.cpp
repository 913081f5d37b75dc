#include <QTest>

#include "platform/ini_reading.h"
#include "platform/ini_writing.h"
#include "support/results.h"

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

/// Compares with a file of rows: what the work makes of each file; "none" is nothing.
void compareFiles(const QString& name, const std::function<std::optional<QByteArray>(const QByteArray& file)>& work) {
  support::compareRows(name, [&](const QString& row) {
    const auto outcome = work(support::bytesOf(row.toLatin1(), "\r\n"));
    return outcome ? support::rowOf(*outcome) : QStringLiteral("none");
  });
}

}  // namespace

class IniStringsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void values() {
    compareFiles(u"ini_values.txt"_s, [](const QByteArray& file) { return findIniValue(file, "S", "k"); });
    QCOMPARE(findIniValue("[S\xE4]\nk\xF6=v", " s\xC4 ", "  K\xD6"), QByteArray("v"));
    QCOMPARE(findIniValue("[S]\n#k=v", "S", "#k"), QByteArray("v"));
    QVERIFY(!findIniValue("k=v\n[S]\nj=w", "", "k"));
    // Of what is asked for, only blanks are cut off.
    for (const auto& [section, key, found] : {std::tuple("S", "\tk", false),
                                              {"S", "k\t ", false},
                                              {"\tS", "k", false},
                                              {"S\t", "k", false},
                                              {" S ", " k ", true}}) {
      for (const QByteArray file : {"[S]\nk=v", "[ S\t]\n\tk\t=v"}) {
        QCOMPARE(findIniValue(file, section, key).has_value(), found);
        QCOMPARE(setIniValue(file, section, key, "w").has_value(), found);
      }
    }
  }

  void keyLists() {
    compareFiles(u"ini_keys.txt"_s, [](const QByteArray& file) { return listIniKeys(file, "s").replace('\0', "|"); });
  }

  void set() {
    compareFiles(u"ini_set.txt"_s, [](const QByteArray& file) { return setIniValue(file, "S", "k", "v"); });
    QCOMPARE(setIniValue("[S]\nk=old\n", "S", "k", " \"v\" "), QByteArray("[S]\nk= \"v\" \n"));
    QCOMPARE(setIniValue("[S]\nk=old\n", "S", "k", ""), QByteArray("[S]\nk=\n"));
    QVERIFY(!setIniValue("[S]\nk=1\n", "S", "k", "v\nj=1"));
  }

  void sectionsAndLines() {
    const QByteArray file("k=0\n [ a\t]x\nk= \"v\" \nK=w\n[b\nj=1\n[A]\nk=2\n[\xE4nd \xFFmany More\xB5]\n[]\ne=");
    const IniSections sections{IniText(file)};
    for (const char* name : {"A", " b", "", "a\t", "c", "\xC4ND \x9FMany mORE\xB5", "\xC4ND \x9FMany"}) {
      const auto found = findIniSection(file, name);
      QCOMPARE(sections.lines(name).data(), found ? found->data() : nullptr);
    }
    QCOMPARE(sections.lines("a"), QByteArrayView("k= \"v\" \nK=w\n"));
    const IniKeys keys = iniKeys(sections.lines("a"));
    const IniLine* line = lineOf(keys, " K ");
    QVERIFY(line != nullptr && lineOf(keys, "j") == nullptr);
    QCOMPARE(line->value, QByteArrayView("\"v\""));
    QCOMPARE(line->line, QByteArrayView("k= \"v\" "));
    QCOMPARE(setIniLine("[S]\n K=1 \nj=2", "S", "k", "k = 3 "), QByteArray("[S]\nk = 3 \nj=2"));
    QCOMPARE(setIniLine("[S]\nj=2", "S", "k", "k = 3 "), QByteArray("[S]\nj=2\nk = 3 \n"));
    // Several: each stays in its section, whatever comes first, and what can't be found again is left out.
    QCOMPARE(setIniLines("[S]\rk=1\r;c\r[T]\r[U]\rj=1", {{"u", "k", "k=5"},
                                                         {"New", "a", "a=1"},
                                                         {"s", "K", "K =2"},
                                                         {"S", "n", "n=3"},
                                                         {"T", "m", "m="},
                                                         {"S", "a=b", "a=b"},
                                                         {"new", "b", "b=2"},
                                                         {"S", "o", "o=4"},
                                                         {"Other", "c", "c=3"},
                                                         {"U", "l", "l=6"}}),
             QByteArray("[S]\rK =2\rn=3\ro=4\r;c\r[T]\rm=\r[U]\rj=1\rk=5\rl=6\r[New]\ra=1\rb=2\r[Other]\rc=3\r"));
    QCOMPARE(sections.names(), std::vector<QByteArrayView>({"a", "b", "\xE4nd \xFFmany More\xB5", ""}));
  }

  void remove() {
    compareFiles(u"ini_removed.txt"_s, [](const QByteArray& file) { return removeIniKey(file, "s", " K "); });
  }
};

QTEST_APPLESS_MAIN(IniStringsTest)
#include "ini_strings_test.moc"
