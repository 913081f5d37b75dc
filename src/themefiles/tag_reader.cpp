#include "themefiles/tag_reader.h"

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/text_lines.h"
#include "themefiles/mark_record.h"

namespace themefiles {
namespace {

const QString Step = QStringLiteral("Error while reading Tag");

bool isKeyLine(QByteArrayView line) {
  return !line.isEmpty() && line.front() != '#' && line.front() != ';' && line.contains('=');
}

/// The grid's row for a key line that was split at its "=".
ValueRow rowOf(const QStringList& parts) {
  return {parts[0], platform::trimBlanks(parts[1])};
}

/// Stores the number, or reports that it is out of range.
template <typename Field>
void storeNumber(Field& field, std::optional<Field> number, const QString& key, const QString& value,
                 platform::StatusLine& status) {
  if (number) {
    field = *number;
  } else {
    status.ShowStatus(platform::reportText(Step, QStringLiteral("%1=%2: the number is out of range").arg(key, value)));
  }
}

void updateRecord(CursorRecord& record, const QString& key, const QString& value, platform::StatusLine& status) {
  const MarkKey* const row = markKeyOf(key);
  if (row != nullptr && row->measure != nullptr) {
    record.*row->measure = value;
  } else if (row != nullptr) {
    storeNumber(record.*row->roundedSize, platform::roundToInt16(platform::numberOf(value)), key, value, status);
  } else if (key == u"TEXT") {
    record.Text = value;
  } else if (key == u"FONT") {
    storeNumber(record.Font, platform::roundToByte(platform::numberOf(value)), key, value, status);
  }
}

}  // namespace

std::vector<ValueRow> ReadTag(ModuleState& state, const QString& Section, platform::StatusLine& status) {
  const quint8 font = state.CursorRect.Font;
  state.CursorRect = {};
  state.CursorRect.Font = font;
  std::vector<ValueRow> rows;
  platform::guarded(status, Step, [&] {
    const QByteArray file = platform::readFile(state.paths.ThemeFile);
    platform::TextLines lines(file);
    const QString header = u'[' + platform::upperCase(Section) + u']';
    const auto isHeader = [&header](QByteArrayView text) {
      return text.size() == header.size() && platform::upperCase(platform::fromAnsi(text)) == header;
    };
    auto line = lines.next();
    while (line && !isHeader(*line)) line = lines.next();
    if (!line) return;
    for (line = lines.next(); line && !line->startsWith('['); line = lines.next()) {
      if (!isKeyLine(*line)) continue;
      const QStringList parts = platform::fromAnsi(*line).split(u'=');
      rows.push_back(rowOf(parts));
      updateRecord(state.CursorRect, platform::upperCase(platform::trimBlanks(parts[0])), parts[1], status);
    }
  });
  return rows;
}

QString rowValue(QByteArrayView line) {
  return rowOf(platform::fromAnsi(line).split(u'=')).Value;
}

QHash<QString, std::vector<ValueRow>> allTags(const platform::IniText& theme) {
  QHash<QString, std::vector<ValueRow>> tags;
  std::vector<ValueRow>* rows = nullptr;
  for (const QByteArrayView line : theme.lines()) {
    if (line.startsWith('[')) {
      rows = nullptr;
      if (line.size() < 2 || !line.endsWith(']')) continue;
      const QString name = platform::upperCase(platform::fromAnsi(line.sliced(1).chopped(1)));
      if (!tags.contains(name)) rows = &tags[name];
    } else if (rows != nullptr && isKeyLine(line)) {
      rows->push_back(rowOf(platform::fromAnsi(line).split(u'=')));
    }
  }
  return tags;
}

}  // namespace themefiles
