#include "platform/ini_lines.h"

#include <algorithm>
#include <cstring>

#include "platform/code_page.h"

namespace platform::ini {

namespace {

/// Whether only blanks follow up to the "]" of a section line, or to its end if the "]" is missing.
bool endsName(const char* at, const char* fileEnd) {
  while (at != fileEnd && isBlank(*at)) ++at;
  return at == fileEnd || *at == ']' || isLineEnd(*at);
}

/// The start of the next section's line, or the file's end.
const char* sectionEnd(const char* section, const char* fileEnd) {
  for (const char* at = section; at != fileEnd;) {
    const auto* const bracket = static_cast<const char*>(std::memchr(at, '[', fileEnd - at));
    if (!bracket) break;
    if (const char* const head = lineHeadedBy(bracket, section)) return head;
    at = bracket + 1;
  }
  return fileEnd;
}

}  // namespace

QByteArrayView trimmed(QByteArrayView text) {
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

QByteArrayView askedName(QByteArrayView name) {
  while (name.startsWith(' ')) name = name.sliced(1);
  while (name.endsWith(' ')) name.chop(1);
  return name;
}

bool endsInTab(QByteArrayView name) {
  return name.startsWith('\t') || name.endsWith('\t');
}

bool sameName(QByteArrayView a, QByteArrayView b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return upperCaseByte(x) == upperCaseByte(y); });
}

const char* lineHeadedBy(const char* place, const char* fileBegin) {
  while (place != fileBegin && isBlank(place[-1])) --place;
  return place == fileBegin || isLineEnd(place[-1]) ? place : nullptr;
}

const char* lineTextEnd(const char* at, const char* fileEnd) {
  return std::find_if(at, fileEnd, isLineEnd);
}

const char* nextLine(const char* textEnd, const char* fileEnd) {
  if (textEnd == fileEnd) return fileEnd;
  const bool two = *textEnd == '\r' && textEnd + 1 != fileEnd && textEnd[1] == '\n';
  return textEnd + (two ? 2 : 1);
}

QByteArrayView sectionName(const char* bracket, const char* textEnd) {
  return trimmed({bracket + 1, std::find(bracket + 1, textEnd, ']')});
}

/// Compares the first and last letter first: that rules out most sections.
const char* findSection(QByteArrayView file, QByteArrayView name) {
  const char* const end = file.end();
  const qsizetype length = name.size();
  const char first = length > 0 ? upperCaseByte(name.front()) : '\0';
  const char last = length > 0 ? upperCaseByte(name.back()) : '\0';
  if (std::any_of(name.begin(), name.end(), [](char c) { return c == ']' || isLineEnd(c); })) return nullptr;
  if (endsInTab(name)) return nullptr;
  for (const char* at = file.begin(); at != end;) {
    const auto* bracket = static_cast<const char*>(std::memchr(at, '[', end - at));
    if (!bracket) return nullptr;
    at = bracket + 1;
    while (at != end && isBlank(*at)) ++at;
    if (end - at < length) return nullptr;
    if (length > 0 && (upperCaseByte(at[length - 1]) != last || upperCaseByte(*at) != first)) continue;
    if (!endsName(at + length, end) || !sameName({at, length}, name) || !lineHeadedBy(bracket, file.begin())) continue;
    return nextLine(lineTextEnd(at + length, end), end);
  }
  return nullptr;
}

std::optional<KeyLine> KeyLines::next() {
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

/// Goes from "=" to "=": the letter in front of one rules out most lines.
std::optional<KeyLine> KeyLines::find(QByteArrayView key) {
  const bool isNoKey = std::any_of(key.begin(), key.end(), [](char c) { return c == '=' || isLineEnd(c); });
  if (key.isEmpty() || isNoKey || endsInTab(key) || key.front() == ';' || key.front() == '[') return std::nullopt;
  const char last = upperCaseByte(key.back());
  const char* const end = sectionEnd(at_, end_);
  for (const char* at = at_; at != end;) {
    const auto* const sign = static_cast<const char*>(std::memchr(at, '=', end - at));
    if (!sign) return std::nullopt;
    at = sign + 1;
    const char* keyEnd = sign;
    while (keyEnd != at_ && isBlank(keyEnd[-1])) --keyEnd;
    if (keyEnd - at_ < key.size() || upperCaseByte(keyEnd[-1]) != last) continue;
    const QByteArrayView found(keyEnd - key.size(), keyEnd);
    if (!sameName(found, key)) continue;
    const char* const begin = lineHeadedBy(found.begin(), at_);
    if (!begin) continue;
    const char* const textEnd = lineTextEnd(at, end_);
    at_ = nextLine(textEnd, end_);
    return KeyLine{found, begin, sign + 1, textEnd, at_};
  }
  return std::nullopt;
}

QByteArrayView trimmedValue(const KeyLine& line) {
  return trimmed({line.value, line.textEnd});
}

}  // namespace platform::ini
