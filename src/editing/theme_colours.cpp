#include "editing/theme_colours.h"

#include <algorithm>

#include "editing/immediate_edits.h"
#include "editing/reports.h"
#include "platform/code_page.h"
#include "themefiles/colour_tables.h"
#include "themefiles/ini_access.h"
#include "themefiles/section_names.h"
#include "themefiles/working_copies.h"

namespace editing {
namespace {

using themefiles::ColorsSection;
using themefiles::ModuleState;
using themefiles::NamedColor;

constexpr QStringView AddStep = u"Error while adding colors";

template <typename Table>
auto rowNamed(Table& table, const QString& name) {
  return std::find_if(table.begin(), table.end(), [&](const NamedColor& row) { return row.Name == name; });
}

template <typename Table>
QStringList namesIn(const Table& table) {
  QStringList names;
  for (const NamedColor& row : table) {
    if (!row.Name.isEmpty()) names += row.Name;
  }
  return names;
}

bool isOfTheme(const ModuleState& state, const QString& name) {
  return !name.isEmpty() && rowNamed(state.ThemeColors, name) != state.ThemeColors.end();
}

/// First row of the name as an ini file tells names apart: not by case.
auto rowLike(ModuleState& state, const QString& name) {
  return std::find_if(state.ThemeColors.begin(), state.ThemeColors.end(),
                      [&](const NamedColor& row) { return platform::sameName(row.Name, name); });
}

/// Sets the value in all rows of that name: an ini file has one value for equal keys.
void setRowsLike(Session& session, const QString& name, const QString& value) {
  for (NamedColor& row : session.state().ThemeColors) {
    if (platform::sameName(row.Name, name)) row.Value = value;
  }
  Q_EMIT session.colorsChanged();
}

bool write(Session& session, QStringView step, const QString& name, const std::optional<QString>& value) {
  return writeAtOnce(session, step, &themefiles::ThemePaths::ThemeFile, ColorsSection, name, value);
}

}  // namespace

QString newColor() {
  return QStringLiteral("150 150 150");
}

QStringList colorNames(const ModuleState& state, ColorGroup group) {
  if (group == ColorGroup::Program) return themefiles::programColorNames();
  return group == ColorGroup::Theme ? namesIn(state.ThemeColors) : namesIn(state.PlayerColors);
}

std::optional<ColorGroup> colorGroupOf(const ModuleState& state, const QString& name) {
  if (rowNamed(state.ThemeColors, name) != state.ThemeColors.end()) return ColorGroup::Theme;
  if (themefiles::programColorNames().contains(name)) return ColorGroup::Program;
  if (rowNamed(state.PlayerColors, name) != state.PlayerColors.end()) return ColorGroup::Player;
  return std::nullopt;
}

std::optional<QString> colorValue(const ModuleState& state, ColorGroup group, const QString& name,
                                  const QString& scheme) {
  if (group != ColorGroup::Theme) return themefiles::ResolveColor(state, name, scheme);
  if (!isOfTheme(state, name)) return std::nullopt;
  return rowNamed(state.ThemeColors, name)->Value;
}

bool changeColor(Session& session, const QString& name, const QString& color) {
  if (!isOfTheme(session.state(), name) || !write(session, WriteStep, name, color)) return false;
  setRowsLike(session, name, color);
  return true;
}

std::optional<SavedValue> savedColor(const ModuleState& state, const QString& name) {
  const SavedState saved(state);
  return SavedObject(saved, ColorsSection).of(name, std::nullopt);
}

bool putSavedColorBack(Session& session, const QString& name, const SavedValue& saved) {
  if (!writeAtOnce(session, WriteStep, [&] { putLinesBack(session.state(), saved.lines, session.status()); }))
    return false;
  followColors(session, {name});
  return true;
}

void followColors(Session& session, const QStringList& names) {
  ModuleState& state = session.state();
  const QStringList inFile = themefiles::keyNames(ColorsSection, state.paths.ThemeFile);
  for (const QString& name : names) {
    auto row = rowLike(state, name);
    if (row == state.ThemeColors.end()) row = rowNamed(state.ThemeColors, QString());
    const auto given =
        std::find_if(inFile.begin(), inFile.end(), [&](const QString& key) { return platform::sameName(key, name); });
    if (row != state.ThemeColors.end()) row->Name = given == inFile.end() ? name : *given;
    setRowsLike(session, name, themefiles::GetINI(ColorsSection, name, newColor(), state.paths.ThemeFile));
  }
}

std::optional<QString> addColor(Session& session, const QString& name) {
  ModuleState& state = session.state();
  platform::StatusLine& status = session.status();
  // If another group is on show, the theme may have the name already: the file has one line for it, so the table gets
  // no second row.
  auto row = rowLike(state, name);
  if (row == state.ThemeColors.end()) row = rowNamed(state.ThemeColors, QString());
  if (row == state.ThemeColors.end()) {
    status.ShowStatus(platform::reportText(AddStep.toString(), QString()));
    return std::nullopt;
  }
  // The file may have a colour of the name that the table had no room for, or that another program has added.
  QString replaced;
  const bool read = platform::guarded(status, AddStep.toString(), [&] {
    const QByteArray theme = themefiles::presentText(state, &themefiles::ThemePaths::ThemeFile);
    replaced = themefiles::wholeValue(theme, ColorsSection, name).value_or(QString());
  });
  const platform::ReportScope scope(status);
  if (!read || !write(session, AddStep, name, newColor())) return std::nullopt;
  if (row->Name.isEmpty()) row->Name = name;
  setRowsLike(session, name, newColor());
  if (!replaced.isEmpty()) status.note(QStringLiteral("%1 was %2 and is a new colour now").arg(row->Name, replaced));
  return row->Name;
}

std::optional<QString> removeColor(Session& session, const QString& name) {
  ModuleState& state = session.state();
  if (!isOfTheme(state, name) || !write(session, WriteStep, name, std::nullopt)) return std::nullopt;
  // If two names differ only in case, the row whose line was removed isn't the one of that name.
  NamedColor& row = *rowLike(state, name);
  const QString removed = row.Name;
  row = {};
  setRowsLike(session, name, themefiles::GetINI(ColorsSection, name, QStringLiteral("0 0 0"), state.paths.ThemeFile));
  return removed;
}

}  // namespace editing
