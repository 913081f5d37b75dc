#include "platform/profile_strings.h"

#include <algorithm>
#include <cstring>

#include "platform/code_page.h"

namespace platform {

namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

bool isLineEnd(char c) {
  return c == '\n' || c == '\r';
}

QByteArrayView trimmed(QByteArrayView text) {
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

/// A name that is asked for: only blanks (0x20) at its ends don't count.
QByteArrayView askedName(QByteArrayView name) {
  while (name.startsWith(' ')) name = name.sliced(1);
  while (name.endsWith(' ')) name.chop(1);
  return name;
}

/// Whether a name that is asked for can be none of a file: there tabs at the ends don't count either.
bool endsInTab(QByteArrayView name) {
  return name.startsWith('\t') || name.endsWith('\t');
}

bool sameName(QByteArrayView a, QByteArrayView b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return upperCaseByte(x) == upperCaseByte(y); });
}

QByteArray upperCase(QByteArrayView name) {
  QByteArray upper(name.size(), Qt::Uninitialized);
  std::transform(name.begin(), name.end(), upper.begin(), upperCaseByte);
  return upper;
}

/// Where the text of the line at `at` ends.
const char* lineTextEnd(const char* at, const char* fileEnd) {
  return std::find_if(at, fileEnd, isLineEnd);
}

/// Where the next line starts, `textEnd` being the end of a line's text.
const char* nextLine(const char* textEnd, const char* fileEnd) {
  if (textEnd == fileEnd) return fileEnd;
  const bool two = *textEnd == '\r' && textEnd + 1 != fileEnd && textEnd[1] == '\n';
  return textEnd + (two ? 2 : 1);
}

bool standsAtHead(const char* place, const char* fileBegin) {
  while (place != fileBegin && isBlank(place[-1])) --place;
  return place == fileBegin || isLineEnd(place[-1]);
}

/// Whether nothing but blanks stands at `at` up to the "]" of a section line, which may be missing.
bool endsName(const char* at, const char* fileEnd) {
  while (at != fileEnd && isBlank(*at)) ++at;
  return at == fileEnd || *at == ']' || isLineEnd(*at);
}

/// The line behind the line of the first section of that name; null without one. Most sections drop out by the first or
/// the last letter of the name.
const char* findSection(QByteArrayView file, QByteArrayView name) {
  const char* const end = file.end();
  const qsizetype length = name.size();
  const char first = length > 0 ? upperCaseByte(name.front()) : '\0';
  const char last = length > 0 ? upperCaseByte(name.back()) : '\0';
  if (std::any_of(name.begin(), name.end(), [](char c) { return c == ']' || isLineEnd(c); })) return nullptr;
  if (endsInTab(name)) return nullptr;
  for (const char* at = file.begin(); at != end;) {
    const auto* bracket = static_cast<const char*>(std::memchr(at, '[', std::size_t(end - at)));
    if (!bracket) return nullptr;
    at = bracket + 1;
    while (at != end && isBlank(*at)) ++at;
    if (end - at < length) return nullptr;
    if (length > 0 && (upperCaseByte(at[length - 1]) != last || upperCaseByte(*at) != first)) continue;
    if (!endsName(at + length, end) || !sameName({at, length}, name) || !standsAtHead(bracket, file.begin())) continue;
    return nextLine(lineTextEnd(at + length, end), end);
  }
  return nullptr;
}

struct KeyLine {
  QByteArrayView key;
  const char* begin;    ///< of the whole line
  const char* value;    ///< directly behind the "="
  const char* textEnd;  ///< in front of the line's end
  const char* next;     ///< behind the line's end
};

/// Walks the key lines of the section whose lines begin at `at`.
class KeyLines {
 public:
  KeyLines(const char* at, const char* fileEnd) : at_(at), end_(fileEnd) {}

  std::optional<KeyLine> next() {
    while (at_ != end_) {
      const char* const begin = at_;
      const char* const head = std::find_if_not(begin, end_, isBlank);
      if (head != end_ && *head == '[') return std::nullopt;
      const char* const textEnd = lineTextEnd(head, end_);
      at_ = nextLine(textEnd, end_);
      if (head == textEnd || *head == ';' || *head == '=') continue;
      const char* const sign = std::find(head, textEnd, '=');
      if (sign != textEnd) return KeyLine{trimmed({head, sign}), begin, sign + 1, textEnd, at_};
    }
    return std::nullopt;
  }

  std::optional<KeyLine> find(QByteArrayView key) {
    auto line = next();
    while (line && !sameName(line->key, key)) line = next();
    return line;
  }

 private:
  const char* at_;
  const char* end_;
};

/// The value of a key line as who asks for it gets it.
QByteArray shownValue(const KeyLine& line) {
  return unquoted(trimmed({line.value, line.textEnd})).toByteArray();
}

/// The end of the file's first line, CR LF when it has none.
QByteArray firstLineEnd(QByteArrayView file) {
  const char* textEnd = lineTextEnd(file.begin(), file.end());
  const char* next = nextLine(textEnd, file.end());
  return textEnd == next ? QByteArray("\r\n") : QByteArray(textEnd, next - textEnd);
}

QByteArray replaced(QByteArrayView file, const char* from, const char* to, QByteArrayView text) {
  QByteArray result;
  result.reserve(file.size() + text.size());
  return result.append(QByteArrayView(file.begin(), from)).append(text).append(QByteArrayView(to, file.end()));
}

bool fitsOneLine(QByteArrayView text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return isLineEnd(c) || c == '\0'; });
}

/// Whether a line written for these names could be found again.
bool canBeFound(QByteArrayView section, QByteArrayView key) {
  return fitsOneLine(section) && !section.contains(']') && !endsInTab(section) && fitsOneLine(key) && !key.isEmpty() &&
         !key.contains('=') && !endsInTab(key) && key.front() != ';' && key.front() != '[';
}

/// What of a key's line is written.
enum class Part { Value, Line };

std::optional<QByteArray> setPart(QByteArrayView file, QByteArrayView section, QByteArrayView key, QByteArrayView text,
                                  Part part) {
  section = askedName(section);
  key = askedName(key);
  if (!canBeFound(section, key) || !fitsOneLine(text)) return std::nullopt;
  const QByteArray lineEnd = firstLineEnd(file);
  QByteArray added = (part == Part::Value ? key.toByteArray() + '=' : QByteArray()) + text.toByteArray() + lineEnd;

  const char* place = findSection(file, section);
  if (place) {
    KeyLines walk(place, file.end());
    while (const auto line = walk.next()) {
      if (sameName(line->key, key)) {
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
  const bool openLine = place != file.begin() && !isLineEnd(place[-1]);
  if (openLine) added.prepend(lineEnd);
  return replaced(file, place, place, added);
}

}  // namespace

std::optional<QByteArray> findProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key) {
  const auto lines = findProfileSection(file, section);
  return lines ? findProfileValue(*lines, key) : std::nullopt;
}

std::optional<QByteArrayView> findProfileSection(QByteArrayView file, QByteArrayView section) {
  const char* const lines = findSection(file, askedName(section));
  if (!lines) return std::nullopt;
  return QByteArrayView(lines, file.end());
}

std::optional<QByteArray> findProfileValue(QByteArrayView lines, QByteArrayView key) {
  const auto line = KeyLines(lines.begin(), lines.end()).find(askedName(key));
  if (!line) return std::nullopt;
  return shownValue(*line);
}

QByteArrayView unquoted(QByteArrayView value) {
  const bool quoted =
      value.size() > 1 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.sliced(1, value.size() - 2) : value;
}

QByteArray listProfileKeys(QByteArrayView file, QByteArrayView section) {
  QByteArray keys;
  const char* const lines = findSection(file, askedName(section));
  if (!lines) return keys;
  KeyLines walk(lines, file.end());
  while (const auto line = walk.next()) keys.append(line->key).append('\0');
  return keys;
}

ProfileKeys profileKeys(QByteArrayView lines) {
  ProfileKeys keys;
  KeyLines walk(lines.begin(), lines.end());
  while (const auto line = walk.next()) {
    const QByteArray name = upperCase(line->key);
    if (keys.contains(name)) continue;
    keys.insert(name, {line->key, trimmed({line->value, line->textEnd}), {line->begin, line->textEnd}});
  }
  return keys;
}

const ProfileLine* lineOf(const ProfileKeys& keys, QByteArrayView key) {
  const auto line = keys.constFind(upperCase(askedName(key)));
  return line == keys.constEnd() ? nullptr : &*line;
}

ProfileSections::ProfileSections(QByteArrayView file) {
  QByteArray name;
  const char* lines = nullptr;
  const auto endSection = [&](const char* end) {
    if (lines && !sections_.contains(name)) sections_.insert(name, QByteArrayView(lines, end));
  };
  for (const char* at = file.begin(); at != file.end();) {
    const char* const head = std::find_if_not(at, file.end(), isBlank);
    const char* const textEnd = lineTextEnd(head, file.end());
    if (head != textEnd && *head == '[') {
      endSection(at);
      name = upperCase(trimmed({head + 1, std::find(head + 1, textEnd, ']')}));
      lines = nextLine(textEnd, file.end());
    }
    at = nextLine(textEnd, file.end());
  }
  endSection(file.end());
}

QByteArrayView ProfileSections::lines(QByteArrayView name) const {
  return sections_.value(upperCase(askedName(name)));
}

std::vector<OutlineSection> profileOutline(QByteArrayView file) {
  std::vector<OutlineSection> sections;
  const char* const end = file.end();
  const char* next = nullptr;
  int number = 0;
  for (const char* at = file.begin(); at != end; at = next) {
    ++number;
    const char* const textEnd = lineTextEnd(at, end);
    next = nextLine(textEnd, end);
    const char* const head = std::find_if_not(at, textEnd, isBlank);
    if (head != textEnd && *head == '[') {
      const QByteArrayView name = trimmed({head + 1, std::find(head + 1, textEnd, ']')});
      sections.push_back({name.toByteArray(), number, {}});
    } else if (!sections.empty()) {
      const auto key = KeyLines(at, next).next();
      if (key) sections.back().keys.push_back({key->key.toByteArray(), shownValue(*key), number});
    }
  }
  return sections;
}

std::optional<QByteArray> setProfileValue(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                          QByteArrayView value) {
  return setPart(file, section, key, value, Part::Value);
}

std::optional<QByteArray> setProfileLine(QByteArrayView file, QByteArrayView section, QByteArrayView key,
                                         QByteArrayView line) {
  return setPart(file, section, key, line, Part::Line);
}

std::optional<QByteArray> removeProfileKey(QByteArrayView file, QByteArrayView section, QByteArrayView key) {
  const char* const lines = findSection(file, askedName(section));
  if (!lines) return std::nullopt;
  const auto line = KeyLines(lines, file.end()).find(askedName(key));
  if (!line) return std::nullopt;
  return replaced(file, line->begin, line->next, {});
}

}  // namespace platform
