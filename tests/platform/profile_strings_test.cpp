#include "platform/profile_strings.h"

#include <QTest>

using namespace platform;

namespace {

/// "|" ends a line in the tables, as CR LF.
QByteArray fileOf(QByteArray table) {
  return table.replace('|', "\r\n");
}

}  // namespace

class ProfileStringsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void values_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("value");  // null: not found
    const auto row = [](const char* name, const char* file, const char* section, const char* key, const char* value) {
      QTest::newRow(name) << QByteArray(file) << QByteArray(section) << QByteArray(key) << QByteArray(value);
    };
    row("first of two keys", "[S]|k=v|k=w", "S", "k", "v");
    row("first of two sections", "[S]|[S]|k=v", "S", "k", nullptr);
    row("case", "[S\xE4]|k\xF6=v", "s\xC4", "K\xD6", "v");
    row("arguments lose blanks", "[S]|k=v", " S ", "  k ", "v");
    row("above the first section", "k=v|[S]|j=w", "", "k", nullptr);
    row("empty key", "[S]|=v|k=w", "S", "", nullptr);
    row("behind the bracket", "[S]k=v", "S", "k", nullptr);
    row("bracket missing", "[S   |k=v", "S", "k", "v");
    row("no opening bracket", "S]|k=v", "S", "k", nullptr);
    row("blanks round the brackets", " \t[ \tS\t ]|k=v", "S", "k", "v");
    row("name ends at the first bracket", "[a]b]|k=v", "a", "k", "v");
    row("a name's head", "[Song]|k=v|[So]|k=w", "So", "k", "w");
    row("a name's tail", "[MySong]|k=v|[Song]|k=w", "Song", "k", "w");
    row("brackets in a value", "[A]|x=[S]|k=w|[S]|k=v", "S", "k", "v");
    row("brackets in a comment", ";[S]|k=w|[S]|k=v", "S", "k", "v");
    row("comment behind blanks", "[S]| ;k=v", "S", "k", nullptr);
    row("no comment mark", "[S]|#k=v", "S", "#k", "v");
    row("no comment behind a value", "[S]|k=;v", "S", "k", ";v");
    row("blanks and tabs", "[S]| k \t=  v\t ", "S", "k", "v");
    row("other white space stays", "[S]|k=\v\xA0v\xA0", "S", "k", "\v\xA0v\xA0");
    row("empty value", "[S]|k=|j=v", "S", "k", "");
    row("quoted", "[S]|k=  \"  v  \"  ", "S", "k", "  v  ");
    row("different marks", "[S]|k=\"v'", "S", "k", "\"v'");
    row("outermost pair", "[S]|k=''v''", "S", "k", "'v'");
    row("two signs", "[S]|k=a=b", "S", "k", "a=b");
    row("line without a sign", "[S]|k|k=v", "S", "k", "v");
    row("mark of another encoding", "\xEF\xBB\xBF[S]|k=v|[T]|k=w", "S", "k", nullptr);
    row("behind such a mark", "\xEF\xBB\xBF[S]|k=v|[T]|k=w", "T", "k", "w");
    row("LF", "[R]\nk=u\n[S]\nk=v\nj=w", "S", "k", "v");
    row("CR", "[R]\rk=u\r[S]\rk=v\rj=w", "S", "k", "v");
    row("key of the next section", "[S]|[T]|k=v", "S", "k", nullptr);
  }

  void values() {
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, section);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, value);
    const auto found = FindProfileValue(fileOf(file), section, key);
    QCOMPARE(found.has_value(), !value.isNull());
    if (found) QCOMPARE(*found, value);
  }

  void keyLists_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("keys");  // "|" ends a key
    QTest::newRow("no section") << QByteArray("[T]|k=v") << QByteArray();
    QTest::newRow("empty section") << QByteArray("[S]||;|[T]|k=v") << QByteArray();
    QTest::newRow("line without a sign") << QByteArray("[S]|x|k=v") << QByteArray("k|");
    QTest::newRow("comments") << QByteArray("[S]|;c=1|#d=2|e=3") << QByteArray("#d|e|");
    QTest::newRow("doubles") << QByteArray("[S]|k=1|j=2|k=3") << QByteArray("k|j|k|");
    QTest::newRow("no name") << QByteArray("[S]|=1| = 2|k=3") << QByteArray("k|");
    QTest::newRow("blanks") << QByteArray("[S]|\ta b = 1|[ S ]|k=2") << QByteArray("a b|");
  }

  void keyLists() {
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, keys);
    QCOMPARE(ListProfileKeys(fileOf(file), "s"), keys.replace('|', '\0'));
  }

  void set_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("result");  // of setting k in S; null: nothing to change
    const auto row = [](const char* name, const char* file, const char* value, const char* result) {
      QTest::newRow(name) << QByteArray(file) << QByteArray(value) << QByteArray(result);
    };
    row("empty file", "", "v", "[S]|k=v|");
    row("replaced", "[S]|j=1| K =  old|l=2", "v", "[S]|j=1| K =v|l=2");
    row("end without line end stays", "[S]|k=old", "v", "[S]|k=v");
    row("value as given", "[S]|k=old|", " \"v\" ", "[S]|k= \"v\" |");
    row("emptied", "[S]|k=old|", "", "[S]|k=|");
    row("same bytes", "[S]|k=v|", "v", nullptr);
    row("first of two keys", "[S]|k=1|k=2|", "v", "[S]|k=v|k=2|");
    row("first of two sections", "[S]|j=1|[S]|k=2|", "v", "[S]|j=1|k=v|[S]|k=2|");
    row("in front of the section's end", "[S]|j=1|;c||[T]|k=2|", "v", "[S]|j=1|k=v|;c||[T]|k=2|");
    row("section without keys", "[S]|;c||[T]|k=2|", "v", "[S]|k=v|;c||[T]|k=2|");
    row("comment isn't the key", "[S]|;k=1|", "v", "[S]|k=v|;k=1|");
    row("key line without end", "[S]|j=1", "v", "[S]|j=1|k=v|");
    row("section line without end", "[T]|[S", "v", "[T]|[S|k=v|");
    row("new section", "[T]|j=1|", "v", "[T]|j=1|[S]|k=v|");
    row("new section behind an open line", "[T]|j=1", "v", "[T]|j=1|[S]|k=v|");
    row("first line end: LF", "[T]\nj=1|", "v", "[T]\nj=1|[S]\nk=v\n");
    row("first line end: CR", "[T]\r[S]\rj=1\r", "v", "[T]\r[S]\rj=1\rk=v\r");
    row("line's own end stays", "[S]\nk=1|j=2", "v", "[S]\nk=v|j=2");
  }

  void set() {
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, result);
    const auto changed = SetProfileValue(fileOf(file), "S", "k", value);
    QCOMPARE(changed.has_value(), !result.isNull());
    if (changed) QCOMPARE(*changed, fileOf(result));
  }

  void refused_data() {
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("line end in the value") << QByteArray("S") << QByteArray("k") << QByteArray("v\nj=1");
    QTest::newRow("line end in the key") << QByteArray("S") << QByteArray("k\r") << QByteArray("v");
    QTest::newRow("bracket in the section") << QByteArray("S]") << QByteArray("k") << QByteArray("v");
    QTest::newRow("no key") << QByteArray("S") << QByteArray(" ") << QByteArray("v");
    QTest::newRow("sign in the key") << QByteArray("S") << QByteArray("k=j") << QByteArray("v");
    QTest::newRow("key like a comment") << QByteArray("S") << QByteArray(" ;k") << QByteArray("v");
  }

  void refused() {
    QFETCH(QByteArray, section);
    QFETCH(QByteArray, key);
    QFETCH(QByteArray, value);
    QVERIFY(!SetProfileValue("[S]\r\nk=1\r\n", section, key, value));
  }

  void remove_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("result");  // of removing k from S; null: nothing to remove
    const auto row = [](const char* name, const char* file, const char* result) {
      QTest::newRow(name) << QByteArray(file) << QByteArray(result);
    };
    row("last key leaves the section", "[S]|k=v|[T]|", "[S]|[T]|");
    row("with its blanks", "[S]|j=1| k = v |;c", "[S]|j=1|;c");
    row("line without end", "[S]|k=v", "[S]|");
    row("first of two keys", "[S]|k=1|k=2|", "[S]|k=2|");
    row("CR", "[S]\rk=1\rj=2\r", "[S]\rj=2\r");
    row("no such key", "[S]|j=1|[T]|k=2|", nullptr);
    row("comment", "[S]|;k=1|", nullptr);
  }

  void remove() {
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, result);
    const auto changed = RemoveProfileKey(fileOf(file), "s", " K ");
    QCOMPARE(changed.has_value(), !result.isNull());
    if (changed) QCOMPARE(*changed, fileOf(result));
  }
};

QTEST_APPLESS_MAIN(ProfileStringsTest)
#include "profile_strings_test.moc"
