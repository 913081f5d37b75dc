#include <QTest>

#include "platform/ini_outline.h"
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
  }

  void keyLists() {
    compareFiles(u"ini_keys.txt"_s, [](const QByteArray& file) { return listIniKeys(file, "s").replace('\0', "|"); });
  }

  void set() {
    compareFiles(u"ini_set.txt"_s, [](const QByteArray& file) { return setIniValue(file, "S", "k", "v"); });
  }

  void outlines() {
    compareFiles(u"ini_outline.txt"_s, [](const QByteArray& file) {
      QByteArray told;
      for (const OutlineSection& section : iniOutline(IniText(file))) {
        told += " [" + section.name.toByteArray() + "]" + QByteArray::number(section.line);
        for (const OutlineKey& key : section.keys) {
          told += ' ' + key.name.toByteArray() + '=' + key.value.toByteArray() + '@' + QByteArray::number(key.line);
        }
      }
      return told.mid(1);
    });
  }

  void sections() {
    compareFiles(u"ini_sections.txt"_s, [](const QByteArray& file) {
      const IniSections sections{IniText(file)};
      QByteArray told;
      for (const QByteArrayView name : sections.names()) {
        const QByteArrayView lines = sections.lines(name);
        told += " <" + name.toByteArray() + ": " + lines.toByteArray() + '>';
        if (findIniSection(file, name).value_or(QByteArrayView()).data() != lines.data()) told += '!';
      }
      return told.mid(1);
    });
  }

  void severalLines() {
    compareFiles(u"ini_lines.txt"_s, [](const QByteArray& file) {
      return setIniLines(
          file, {{"S", "k", "k=2"}, {" s ", " n ", "n=3"}, {"T", "m", "m="}, {"New", "a", "a=1"}, {"T", "k", "k = 4"}});
    });
  }

  void remove() {
    compareFiles(u"ini_removed.txt"_s, [](const QByteArray& file) { return removeIniKey(file, "s", " K "); });
  }
};

QTEST_APPLESS_MAIN(IniStringsTest)
#include "ini_strings_test.moc"
