#include "themecheck/letters.h"

#include "platform/code_page.h"
#include "themefiles/section_names.h"

namespace themecheck {
namespace {

/// The number of bytes of the letter that begins with this one in UTF-8; 0 for none of more than one byte.
int lengthInUtf8(uchar byte) {
  return byte >= 0xC2 && byte <= 0xDF ? 2 : byte >= 0xE0 && byte <= 0xEF ? 3 : byte >= 0xF0 && byte <= 0xF4 ? 4 : 0;
}

/// The first letter of a line whose letters beyond ASCII are all right in UTF-8; -1 without one.
qsizetype firstInUtf8(QByteArrayView line) {
  qsizetype first = -1;
  for (qsizetype at = 0; at < line.size(); ++at) {
    const auto byte = static_cast<uchar>(line[at]);
    if (byte < 0x80) continue;
    const int length = lengthInUtf8(byte);
    if (length == 0 || at + length > line.size()) return -1;
    for (int next = 1; next < length; ++next) {
      if ((static_cast<uchar>(line[at + next]) & 0xC0) != 0x80) return -1;
    }
    if (first < 0) first = at;
    at += length - 1;
  }
  return first;
}

bool isComment(QByteArrayView line) {
  const QByteArrayView text = line.trimmed();
  return text.startsWith(';') || text.startsWith('#');
}

/// The mark is a part of the first line, which so is no section any more.
void checkMark(const IniFile& file, const QString& table, Findings& findings) {
  if (file.lines().empty() || !file.lines().front().startsWith(ByteOrderMark)) return;
  const QString hidden = file.sectionBehindMark();
  const bool isAboutFile =
      hidden.isEmpty() || platform::sameName(hidden, u"Theme") || platform::sameName(hidden, u"Skin");
  if (isAboutFile) {
    findings.add(Kind::Mark, file.wholeFile());
  } else {
    findings.add(table == themefiles::TextSection ? Kind::WordsHidingMark : Kind::HidingMark, file.wholeFile(),
                 {hidden});
  }
}

}  // namespace

void checkLetters(const IniFile& file, const QString& table, Findings& findings) {
  checkMark(file, table, findings);
  Place first;
  int number = 0;
  int count = 0;
  for (QByteArrayView line : file.lines()) {
    ++number;
    const qsizetype mark = number == 1 && line.startsWith(ByteOrderMark) ? ByteOrderMark.size() : 0;
    const qsizetype at = isComment(line) ? -1 : firstInUtf8(line.sliced(mark));
    if (at < 0) continue;
    if (++count == 1) first = file.lineAt(number, static_cast<int>(mark + at + 1));
  }
  if (count > 0) findings.add(Kind::Utf8, first, {QString::number(count)});
}

}  // namespace themecheck
