#include "themecheck/colours.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "themefiles/colour_tables.h"

namespace themecheck {
namespace {

using themefiles::ColorsSection;

constexpr qsizetype MostColors = 99;

bool isColor(const QString& value) {
  const QStringList fields = platform::splitAtBlanks(value);
  return fields.size() == 3 && std::all_of(fields.begin(), fields.end(), [](const QString& field) {
           const double number = platform::numberOf(field);
           return platform::isNumber(field) && number >= 0 && number <= 255;
         });
}

/// A section without any of the colours in use is one fault.
void checkTable(CheckedTheme& theme, QSet<QString> used, Findings& findings) {
  used.removeIf([&](const QString& name) { return isBuiltInColor(theme, name); });
  const IniFile& file = theme.theme();
  const IniSection* table = file.find(ColorsSection);
  const auto isThere = [&](const QString& name) { return table && table->find(name); };
  const qsizetype least = table ? 2 : 1;
  if (used.size() < least || std::any_of(used.begin(), used.end(), isThere)) return;
  theme.colorsLost = true;
  if (platform::sameName(file.sectionBehindMark(), ColorsSection)) return;  // told already
  if (table) {
    findings.add(Kind::EmptyTable, file.place(ColorsSection), {QString::number(used.size())});
  } else {
    findings.add(Kind::NoTable, file.wholeFile(), {ColorsSection, namesOfTheme(used.size())});
  }
}

}  // namespace

void checkColors(CheckedTheme& theme, Findings& findings) {
  const IniFile& file = theme.theme();
  const QSet<QString> used = valuesOf(file, themefiles::KeyGroup::Color);
  HeardReports reports;
  themefiles::ModuleState read = theme.state;
  themefiles::ReadColors(read, reports);
  const IniSection* table = file.find(ColorsSection);
  if (reports.heard && table && std::ssize(table->keys) > MostColors) {
    theme.colorsLost = true;
    findings.add(Kind::TooManyColors, file.placeOf(*table, table->keys[MostColors]));
  }
  theme.state = read;
  if (!theme.colorsLost) checkTable(theme, used, findings);
  for (const IniKey* key : file.keysOf(ColorsSection)) {
    if (!isColor(key->value)) {
      theme.badColors += key->name;
      findings.add(Kind::BadColor, file.valueOf(ColorsSection, key->name), {key->value});
    }
    if (isBuiltInColor(theme, key->name) || !used.contains(key->name)) {
      findings.add(Kind::UnusedColor, file.placeOf(*table, *key));
    }
  }
}

}  // namespace themecheck
