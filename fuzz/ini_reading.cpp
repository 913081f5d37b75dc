#include "platform/ini_reading.h"

#include <optional>

#include <QSet>

#include "input.h"
#include "platform/code_page.h"
#include "platform/ini_outline.h"
#include "platform/numbers.h"
#include "platform/text_lines.h"

using namespace platform;

namespace {

QByteArrayView trimmed(QByteArrayView text) {
  while (text.startsWith(' ') || text.startsWith('\t')) text = text.sliced(1);
  while (text.endsWith(' ') || text.endsWith('\t')) text.chop(1);
  return text;
}

/// Whether a name in the file is the one that is asked for, which may have blanks round it.
bool isAsked(QByteArrayView name, QByteArrayView asked) {
  return sameName(fromAnsi(trimmed(name)), trimBlanks(fromAnsi(asked)));
}

/// The same rules told line by line, slow and plain.
std::optional<QByteArray> plainValue(QByteArrayView file, QByteArrayView section, QByteArrayView key) {
  TextLines walk(file);
  bool inside = false;
  while (const auto line = walk.next()) {
    QByteArrayView text = trimmed(*line);
    if (text.startsWith('[')) {
      if (inside) return std::nullopt;
      const qsizetype end = text.indexOf(']');
      inside = isAsked(text.first(end < 0 ? text.size() : end).sliced(1), section);
    } else if (inside && !text.startsWith(';') && text.indexOf('=') > 0) {
      if (!isAsked(text.first(text.indexOf('=')), key)) continue;
      text = trimmed(text.sliced(text.indexOf('=') + 1));
      for (const char mark : {'"', '\''}) {
        if (text.size() > 1 && text.startsWith(mark) && text.endsWith(mark))
          return text.sliced(1).chopped(1).toByteArray();
      }
      return text.toByteArray();
    }
  }
  return std::nullopt;
}

}  // namespace

/// Section, key, then the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  fuzz::Input input(data, size);
  const QByteArrayView section = input.line();
  const QByteArrayView key = input.line();
  const QByteArrayView file = input.rest();
  fuzz::require(findIniValue(file, section, key) == plainValue(file, section, key), "the fast way finds the same");

  QSet<QString> counted;
  const IniText text(file.toByteArray());
  const IniSections sections(text);
  const QByteArray& bytes = text.bytes();
  fuzz::require(sections.lines(section).data() == findIniSection(bytes, section).value_or(QByteArrayView()).data(),
                "the index has the section that is found");
  for (const OutlineSection& found : iniOutline(text)) {
    const QString name = upperCase(fromAnsi(found.name));
    const bool isFirst = !counted.contains(name);
    counted += name;
    QSet<QString> keys;
    for (const OutlineKey& line : found.keys) {
      const QString keyName = upperCase(fromAnsi(line.name));
      if (isFirst && !keys.contains(keyName)) {
        fuzz::require(findIniValue(file, found.name, line.name) == line.value, "the outline has what is found");
      }
      keys += keyName;
    }
  }

  const QByteArray keys = listIniKeys(file, section);
  fuzz::require(keys.isEmpty() || keys.endsWith('\0'), "every key is ended");
  if (QByteArrayView(file).contains('\0')) return 0;
  QByteArrayView rest = keys;
  while (!rest.isEmpty()) {
    const qsizetype end = rest.indexOf('\0');
    fuzz::require(findIniValue(file, section, rest.first(end)).has_value(), "a listed key has a value");
    rest = rest.sliced(end + 1);
  }
  return 0;
}
