#include "platform/ini_writing.h"

#include <algorithm>
#include <functional>

#include "platform/ini_lines.h"
#include "platform/ini_reading.h"

namespace platform {

using ini::KeyLines;

namespace {

/// The line end of the file's first line, or CR LF if it has none.
QByteArray firstLineEnd(QByteArrayView file) {
  const char* const textEnd = ini::lineTextEnd(file.begin(), file.end());
  const char* const next = ini::nextLine(textEnd, file.end());
  return textEnd == next ? QByteArray("\r\n") : QByteArray(textEnd, next - textEnd);
}

QByteArray replaced(QByteArrayView file, const char* from, const char* to, QByteArrayView text) {
  QByteArray result;
  result.reserve(file.size() + text.size());
  return result.append(QByteArrayView(file.begin(), from)).append(text).append(QByteArrayView(to, file.end()));
}

bool fitsOneLine(QByteArrayView text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return ini::isLineEnd(c) || c == '\0'; });
}

/// Whether a line with these names can be found again once it is written.
bool canBeFound(QByteArrayView section, QByteArrayView key) {
  return fitsOneLine(section) && !section.contains(']') && !ini::endsInTab(section) && fitsOneLine(key) &&
         !key.isEmpty() && !key.contains('=') && !ini::endsInTab(key) && key.front() != ';' && key.front() != '[';
}

/// A text that comes in the place of a part of the file.
struct Change {
  const char* from;
  const char* to;
  QByteArray text;
};

QByteArray withChanges(QByteArrayView file, std::vector<Change>& changes) {
  std::stable_sort(changes.begin(), changes.end(),
                   [](const Change& a, const Change& b) { return std::less<>{}(a.from, b.from); });
  QByteArray result;
  const char* done = file.begin();
  for (const Change& change : changes) {
    result.append(QByteArrayView(done, change.from)).append(change.text);
    done = change.to;
  }
  return result.append(QByteArrayView(done, file.end()));
}

/// Which part of a key's line is set.
enum class Part { Value, Line };

std::optional<QByteArray> setPart(QByteArrayView file, QByteArrayView section, QByteArrayView key, QByteArrayView text,
                                  Part part) {
  section = ini::askedName(section);
  key = ini::askedName(key);
  if (!canBeFound(section, key) || !fitsOneLine(text)) return std::nullopt;
  const QByteArray lineEnd = firstLineEnd(file);
  QByteArray added = (part == Part::Value ? key.toByteArray() + '=' : QByteArray()) + text.toByteArray() + lineEnd;

  const char* place = ini::findSection(file, section);
  if (place) {
    KeyLines walk(place, file.end());
    while (const auto line = walk.next()) {
      if (ini::sameName(line->key, key)) {
        const char* const from = part == Part::Value ? line->value : line->begin;
        if (QByteArrayView(from, line->textEnd) == text) return std::nullopt;
        return replaced(file, from, line->textEnd, text);
      }
      place = line->next;
    }
  } else {
    place = file.end();
    added.prepend('[' + section.toByteArray() + ']' + lineEnd);
  }
  const bool openLine = place != file.begin() && !ini::isLineEnd(place[-1]);
  if (openLine) added.prepend(lineEnd);
  return replaced(file, place, place, added);
}

}  // namespace

std::optional<QByteArray> setIniValue(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                      QByteArrayView value) {
  return setPart(file, section, key, value, Part::Value);
}

std::optional<QByteArray> setIniLine(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                     QByteArrayView line) {
  return setPart(file, section, key, line, Part::Line);
}

QByteArray setIniLines(const QByteArray& file, const std::vector<IniSetting>& settings) {
  const QByteArray lineEnd = firstLineEnd(file);
  const IniSections sections{IniText(file)};
  std::vector<IniName> order;
  QHash<IniName, std::vector<const IniSetting*>> bySection;
  for (const IniSetting& each : settings) {
    const IniName name{ini::askedName(each.section)};
    if (!canBeFound(name.letters, ini::askedName(each.key)) || !fitsOneLine(each.line)) continue;
    if (!bySection.contains(name)) order.push_back(name);
    bySection[name].push_back(&each);
  }
  // A key at the end of the file's last section comes before a new section.
  std::stable_partition(order.begin(), order.end(),
                        [&](const IniName& name) { return !sections.lines(name.letters).isNull(); });
  std::vector<Change> changes;
  for (const IniName& name : order) {
    const QByteArrayView lines = sections.lines(name.letters);
    const std::vector<IniLine> present = iniLines(lines);
    const IniKeys keys = iniKeys(lines);
    QByteArray added;
    for (const IniSetting* each : bySection[name]) {
      if (const IniLine* line = lineOf(keys, each->key)) {
        changes.push_back({line->line.begin(), line->line.end(), each->line});
      } else {
        added += each->line + lineEnd;
      }
    }
    if (added.isEmpty()) continue;
    const char* place = file.end();
    if (lines.isNull()) {
      added.prepend('[' + name.letters.toByteArray() + ']' + lineEnd);
    } else {
      place = present.empty() ? lines.begin() : ini::nextLine(present.back().line.end(), file.end());
    }
    const bool follows =
        std::any_of(changes.begin(), changes.end(), [&](const Change& change) { return change.from == file.end(); });
    if (!(follows && place == file.end()) && place != file.begin() && !ini::isLineEnd(place[-1])) {
      added.prepend(lineEnd);
    }
    changes.push_back({place, place, added});
  }
  return withChanges(file, changes);
}

std::optional<QByteArray> removeIniKey(QByteArrayView file, QByteArrayView section, QByteArrayView key) {
  const char* const lines = ini::findSection(file, ini::askedName(section));
  if (!lines) return std::nullopt;
  const auto line = KeyLines(lines, file.end()).find(ini::askedName(key));
  if (!line) return std::nullopt;
  return replaced(file, line->begin, line->next, {});
}

}  // namespace platform
