#include "platform/ini_writing.h"

#include <algorithm>

#include <QSet>

#include "input.h"
#include "platform/code_page.h"
#include "platform/ini_outline.h"
#include "platform/ini_reading.h"
#include "platform/numbers.h"

using namespace platform;

namespace {

bool hasLineEnd(QByteArrayView text) {
  return text.contains('\n') || text.contains('\r');
}

/// What reading makes of a value: it is read from a file of its own.
QByteArray readForm(QByteArrayView value) {
  return findIniValue("[S]\nk=" + value.toByteArray(), "S", "k").value_or(QByteArray());
}

/// All bytes outside one place stay, and a place that held something lies inside one line.
void requireOnePlace(QByteArrayView before, QByteArrayView after, bool replaced) {
  const auto head = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first - before.begin();
  qsizetype tail = 0;
  const qsizetype most = std::min(before.size(), after.size()) - head;
  while (tail < most && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  const QByteArrayView gone = before.sliced(head, before.size() - head - tail);
  fuzz::require(replaced ? !hasLineEnd(gone) : gone.isEmpty(), "all other bytes stay");
}

/// Sets a line in that section, then one in each section of the file: at once, and one after the other.
void requireSameTogether(const QByteArray& file, const IniSetting& first) {
  // A line that ends in CR grows together with an LF behind it.
  if (QByteArray(file).replace("\r\n", {}).contains('\r') && file.contains('\n')) return;
  std::vector<IniSetting> settings{first};
  QSet<QString> names;
  for (const OutlineSection& section : iniOutline(IniText(file))) {
    const QString name = upperCase(fromAnsi(section.name));
    if (names.contains(name)) continue;
    names += name;
    settings.push_back({section.name.toByteArray(), "a key of its own", "a key of its own=1"});
  }
  QByteArray each = file;
  for (const IniSetting& setting : settings) {
    each = setIniLine(each, setting.section, setting.key, setting.line).value_or(each);
  }
  fuzz::require(setIniLines(file, settings) == each, "lines that are set together come where each alone would");
}

}  // namespace

/// Section, key, value, then the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  fuzz::Input input(data, size);
  const QByteArrayView section = input.line();
  const QByteArrayView key = input.line();
  const QByteArrayView value = input.line();
  const QByteArrayView file = input.rest();
  const auto old = findIniValue(file, section, key);

  if (const auto changed = setIniValue(file, section, key, value)) {
    fuzz::require(findIniValue(*changed, section, key) == readForm(value), "a written value is read back");
    requireOnePlace(file, *changed, old.has_value());
    fuzz::require(!setIniValue(*changed, section, key, value), "the second write has nothing to do");
    const auto removed = removeIniKey(*changed, section, key);
    fuzz::require(removed.has_value(), "a written key can be removed");
    requireOnePlace(*removed, *changed, false);
  }
  const QByteArray line = key.toByteArray() + '=' + value.toByteArray();
  requireSameTogether(file.toByteArray(), {section.toByteArray(), key.toByteArray(), line});
  fuzz::require(removeIniKey(file, section, key).has_value() == old.has_value(), "what is found can be removed");
  return 0;
}
