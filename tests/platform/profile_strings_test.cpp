#include "platform/profile_strings.h"

#include <QTest>

#include "support/folder.h"
#include "support/row_name.h"

using namespace platform;
using support::linesOf;

class ProfileStringsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // In the tables "|" ends a line, as CR LF, and no value or result stands for none.

  void values() {
    const struct {
      const char *name, *file, *section, *key, *value;
    } rows[] = {
        {"first of two keys", "[S]|k=v|k=w", "S", "k", "v"},
        {"first of two sections", "[S]|[S]|k=v", "S", "k", nullptr},
        {"case", "[S\xE4]|k\xF6=v", "s\xC4", "K\xD6", "v"},
        {"arguments lose blanks", "[S]|k=v", " S ", "  k ", "v"},
        {"above the first section", "k=v|[S]|j=w", "", "k", nullptr},
        {"empty key", "[S]|=v|k=w", "S", "", nullptr},
        {"behind the bracket", "[S]k=v", "S", "k", nullptr},
        {"bracket missing", "[S   |k=v", "S", "k", "v"},
        {"no opening bracket", "S]|k=v", "S", "k", nullptr},
        {"blanks round the brackets", " \t[ \tS\t ]|k=v", "S", "k", "v"},
        {"name ends at the first bracket", "[a]b]|k=v", "a", "k", "v"},
        {"a name's head", "[Song]|k=v|[So]|k=w", "So", "k", "w"},
        {"a name's tail", "[MySong]|k=v|[Song]|k=w", "Song", "k", "w"},
        {"brackets in a value", "[A]|x=[S]|k=w|[S]|k=v", "S", "k", "v"},
        {"brackets in a comment", ";[S]|k=w|[S]|k=v", "S", "k", "v"},
        {"comment behind blanks", "[S]| ;k=v", "S", "k", nullptr},
        {"no comment mark", "[S]|#k=v", "S", "#k", "v"},
        {"no comment behind a value", "[S]|k=;v", "S", "k", ";v"},
        {"blanks and tabs", "[S]| k \t=  v\t ", "S", "k", "v"},
        {"other white space stays", "[S]|k=\v\xA0v\xA0", "S", "k", "\v\xA0v\xA0"},
        {"empty value", "[S]|k=|j=v", "S", "k", ""},
        {"quoted", "[S]|k=  \"  v  \"  ", "S", "k", "  v  "},
        {"different marks", "[S]|k=\"v'", "S", "k", "\"v'"},
        {"outermost pair", "[S]|k=''v''", "S", "k", "'v'"},
        {"two signs", "[S]|k=a=b", "S", "k", "a=b"},
        {"line without a sign", "[S]|k|k=v", "S", "k", "v"},
        {"mark of another encoding", "\xEF\xBB\xBF[S]|k=v|[T]|k=w", "S", "k", nullptr},
        {"behind such a mark", "\xEF\xBB\xBF[S]|k=v|[T]|k=w", "T", "k", "w"},
        {"LF", "[R]\nk=u\n[S]\nk=v\nj=w", "S", "k", "v"},
        {"CR", "[R]\rk=u\r[S]\rk=v\rj=w", "S", "k", "v"},
        {"key of the next section", "[S]|[T]|k=v", "S", "k", nullptr},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      const auto found = FindProfileValue(linesOf(row.file), row.section, row.key);
      QCOMPARE(found.has_value(), row.value != nullptr);
      if (found) QCOMPARE(*found, QByteArray(row.value));
    }
  }

  void keyLists() {
    const struct {
      const char *name, *file, *keys;  // "|" ends a key
    } rows[] = {
        {"no section", "[T]|k=v", ""},
        {"empty section", "[S]||;|[T]|k=v", ""},
        {"line without a sign", "[S]|x|k=v", "k|"},
        {"comments", "[S]|;c=1|#d=2|e=3", "#d|e|"},
        {"doubles", "[S]|k=1|j=2|k=3", "k|j|k|"},
        {"no name", "[S]|=1| = 2|k=3", "k|"},
        {"blanks", "[S]|\ta b = 1|[ S ]|k=2", "a b|"},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      QCOMPARE(ListProfileKeys(linesOf(row.file), "s"), QByteArray(row.keys).replace('|', '\0'));
    }
  }

  void set() {
    const struct {
      const char *name, *file, *value, *result;  // of setting k in S
    } rows[] = {
        {"empty file", "", "v", "[S]|k=v|"},
        {"replaced", "[S]|j=1| K =  old|l=2", "v", "[S]|j=1| K =v|l=2"},
        {"end without line end stays", "[S]|k=old", "v", "[S]|k=v"},
        {"value as given", "[S]|k=old|", " \"v\" ", "[S]|k= \"v\" |"},
        {"emptied", "[S]|k=old|", "", "[S]|k=|"},
        {"same bytes", "[S]|k=v|", "v", nullptr},
        {"first of two keys", "[S]|k=1|k=2|", "v", "[S]|k=v|k=2|"},
        {"first of two sections", "[S]|j=1|[S]|k=2|", "v", "[S]|j=1|k=v|[S]|k=2|"},
        {"in front of the section's end", "[S]|j=1|;c||[T]|k=2|", "v", "[S]|j=1|k=v|;c||[T]|k=2|"},
        {"section without keys", "[S]|;c||[T]|k=2|", "v", "[S]|k=v|;c||[T]|k=2|"},
        {"comment isn't the key", "[S]|;k=1|", "v", "[S]|k=v|;k=1|"},
        {"key line without end", "[S]|j=1", "v", "[S]|j=1|k=v|"},
        {"section line without end", "[T]|[S", "v", "[T]|[S|k=v|"},
        {"new section", "[T]|j=1|", "v", "[T]|j=1|[S]|k=v|"},
        {"new section behind an open line", "[T]|j=1", "v", "[T]|j=1|[S]|k=v|"},
        {"first line end: LF", "[T]\nj=1|", "v", "[T]\nj=1|[S]\nk=v\n"},
        {"first line end: CR", "[T]\r[S]\rj=1\r", "v", "[T]\r[S]\rj=1\rk=v\r"},
        {"line's own end stays", "[S]\nk=1|j=2", "v", "[S]\nk=v|j=2"},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      const auto changed = SetProfileValue(linesOf(row.file), "S", "k", row.value);
      QCOMPARE(changed.has_value(), row.result != nullptr);
      if (changed) QCOMPARE(*changed, linesOf(row.result));
    }
  }

  void remove() {
    const struct {
      const char *name, *file, *result;  // of removing k from S
    } rows[] = {
        {"last key leaves the section", "[S]|k=v|[T]|", "[S]|[T]|"},
        {"with its blanks", "[S]|j=1| k = v |;c", "[S]|j=1|;c"},
        {"line without end", "[S]|k=v", "[S]|"},
        {"first of two keys", "[S]|k=1|k=2|", "[S]|k=2|"},
        {"CR", "[S]\rk=1\rj=2\r", "[S]\rj=2\r"},
        {"no such key", "[S]|j=1|[T]|k=2|", nullptr},
        {"comment", "[S]|;k=1|", nullptr},
    };
    for (const auto& row : rows) {
      const support::RowName name(row.name);
      const auto changed = RemoveProfileKey(linesOf(row.file), "s", " K ");
      QCOMPARE(changed.has_value(), row.result != nullptr);
      if (changed) QCOMPARE(*changed, linesOf(row.result));
    }
  }
};

QTEST_APPLESS_MAIN(ProfileStringsTest)
#include "profile_strings_test.moc"
