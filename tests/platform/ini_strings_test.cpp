#include <QTest>

#include "platform/ini_reading.h"
#include "platform/ini_writing.h"
#include "support/folder.h"

using namespace platform;
using support::linesOf;

namespace {

using Outcome = std::optional<QByteArray>;

/// Checks cases like "file => outcome": "|" ends a line, as CR LF, and "none" is no outcome.
template <std::size_t Count, typename Work>
void compareAll(const char* const (&cases)[Count], Work work) {
  for (const char* text : cases) {
    const qsizetype arrow = QByteArrayView(text).indexOf(" => ");
    const QByteArray expected = linesOf(text + arrow + 4);
    const Outcome outcome = work(linesOf(QByteArray(text, arrow)));
    QVERIFY2(outcome == (expected == "none" ? Outcome() : Outcome(expected)),
             text + ("; is: " + outcome.value_or("none")));
  }
}

}  // namespace

class IniStringsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void values() {
    const auto valueOfK = [](const QByteArray& file) { return findIniValue(file, "S", "k"); };
    const char* const places[] = {"[S]|[S]|k=v => none", "[S]|[T]|k=v => none", "[S]k=v => none", "[S]|k=v|k=w => v",
                                  " \t[ \tS\t ]|k=v => v", "[MyS]|k=v|[S]|k=w => w", "[S]x]|k=v => v",
                                  "[A]|x=[S]|k=w|[S]|k=v => v", ";[S]|k=w|[S]|k=v => v", "[S]| ;k=v => none",
                                  "[R]\nk=u\n[S]\nk=v\nj=w => v", "[R]\rk=u\r[S]\rk=v\rj=w => v",
                                  // The mark of another encoding hides the first section only.
                                  "\xEF\xBB\xBF[S]|k=v|[T]|k=w => none", "\xEF\xBB\xBF[T]|k=v|[S]|k=w => w"};
    compareAll(places, valueOfK);
    const char* const texts[] = {
        "[S]|k=;v => ;v",   "[S]| k \t=  v\t  => v",        "[S]|k=\v\xA0v\xA0 => \v\xA0v\xA0",
        "[S]|k=|j=v => ",   "[S]|k=  \"  v  \"   =>   v  ", "[S]|k=''v'' => 'v'",
        "[S]|k=a=b => a=b",
    };
    compareAll(texts, valueOfK);
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
    const char* const cases[] = {"[T]|k=v => ", "[S]|;c=1|#d=2|e=3 => #d|e|", "[S]|k=1|j=2|k=3 => k|j|k|",
                                 "[S]|=1| = 2|k=3 => k|", "[S]|\ta b = 1|[ S ]|k=2 => a b|"};
    compareAll(cases, [](const QByteArray& file) { return listIniKeys(file, "s").replace('\0', "\r\n"); });
  }

  void set() {
    const char* const cases[] = {
        " => [S]|k=v|", "[S]|j=1| K =  old|l=2 => [S]|j=1| K =v|l=2", "[S]|k=v| => none",
        "[S]|k=1|k=2| => [S]|k=v|k=2|", "[S]|j=1|[S]|k=2| => [S]|j=1|k=v|[S]|k=2|",
        "[S]|j=1|;c||[T]|k=2| => [S]|j=1|k=v|;c||[T]|k=2|", "[S]|;c||[T]|k=2| => [S]|k=v|;c||[T]|k=2|",
        "[S]|;k=1| => [S]|k=v|;k=1|", "[T]|j=1| => [T]|j=1|[S]|k=v|",
        // A last line that has no end keeps none, unless something comes behind it.
        "[S]|k=old => [S]|k=v", "[S]|j=1 => [S]|j=1|k=v|", "[T]|[S => [T]|[S|k=v|", "[T]|j=1 => [T]|j=1|[S]|k=v|",
        // New lines take the first line end of the file, a changed one keeps its own.
        "[T]\nj=1| => [T]\nj=1|[S]\nk=v\n", "[T]\r[S]\rj=1\r => [T]\r[S]\rj=1\rk=v\r", "[S]\nk=1|j=2 => [S]\nk=v|j=2"};
    compareAll(cases, [](const QByteArray& file) { return setIniValue(file, "S", "k", "v"); });
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
    const char* const cases[] = {
        "[S]|k=v|[T]| => [S]|[T]|", "[S]|j=1| k = v |;c => [S]|j=1|;c", "[S]|k=v => [S]|",
        "[S]|k=1|k=2| => [S]|k=2|", "[S]\rk=1\rj=2\r => [S]\rj=2\r",    "[S]|j=1|[T]|k=2| => none",
        "[S]|;k=1| => none"};
    compareAll(cases, [](const QByteArray& file) { return removeIniKey(file, "s", " K "); });
  }
};

QTEST_APPLESS_MAIN(IniStringsTest)
#include "ini_strings_test.moc"
