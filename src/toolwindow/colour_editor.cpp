#include "toolwindow/colour_editor.h"

#include <algorithm>

#include <QPushButton>

#include "controls/combo_box.h"
#include "controls/swatch_button.h"
#include "drawing/system_colours.h"
#include "platform/code_page.h"
#include "platform/dialogs.h"
#include "themefiles/colour_tables.h"
#include "themefiles/ini_access.h"
#include "themefiles/working_copies.h"
#include "toolwindow/edit_reports.h"
#include "toolwindow/tool_window.h"

namespace toolwindow {
namespace {

using themefiles::NamedColor;

// The entries of Combo4.
constexpr int ThemeGroup = 0;
constexpr int ProgramGroup = 1;
constexpr int PlayerGroup = 2;

QString section() {
  return QStringLiteral("Colors");
}

QString newColor() {
  return QStringLiteral("150 150 150");
}

QColor shownColor(const QString& color) {
  return drawing::colorOf(static_cast<quint32>(themefiles::ColorToRGB(color)));
}

template <typename Table>
auto rowNamed(Table& table, const QString& name) {
  return std::find_if(table.begin(), table.end(), [&](const NamedColor& row) { return row.Name == name; });
}

template <typename Table>
QStringList namesOf(const Table& table) {
  QStringList names;
  for (const NamedColor& row : table) {
    if (!row.Name.isEmpty()) names += row.Name;
  }
  return names;
}

QStringList namesOfGroup(const themefiles::ModuleState& state, int group) {
  if (group == ProgramGroup) return themefiles::programColorNames();
  return group == ThemeGroup ? namesOf(state.ThemeColors) : namesOf(state.PlayerColors);
}

/// The group that holds the name; -1 for none. Free rows of the tables have an empty name.
int groupOf(const themefiles::ModuleState& state, const QString& name) {
  if (rowNamed(state.ThemeColors, name) != state.ThemeColors.end()) return ThemeGroup;
  if (themefiles::programColorNames().contains(name)) return ProgramGroup;
  return rowNamed(state.PlayerColors, name) != state.PlayerColors.end() ? PlayerGroup : -1;
}

void listNames(Form2& form, const QStringList& names) {
  form.Combo3->Clear();
  for (const QString& name : names) form.Combo3->AddItem(name);
}

/// First row of the name as an ini file tells names apart: not by case.
auto rowLike(themefiles::ModuleState& state, const QString& name) {
  return std::find_if(state.ThemeColors.begin(), state.ThemeColors.end(),
                      [&](const NamedColor& row) { return platform::sameName(row.Name, name); });
}

/// Sets the value in all rows of that name: an ini file has one value for equal keys.
void setRowsLike(Form2& form, const QString& name, const QString& value) {
  for (NamedColor& row : form.services.state.ThemeColors) {
    if (platform::sameName(row.Name, name)) row.Value = value;
  }
  form.Combo3->updateSwatches();
}

bool writeColor(Form2& form, QStringView step, const QString& name, const std::optional<QString>& value) {
  return writeAtOnce(form, step, &themefiles::ThemePaths::ThemeFile, section(), name, value);
}

}  // namespace

void FillColorEditor(Form2& form, const QString& Value) {
  form.Combo3->Clear();
  form.Command2->SetBackColor(shownColor(newColor()));
  const int group = groupOf(form.services.state, Value);
  if (group < 0) return;
  form.Command3->setEnabled(true);
  form.Command5->setEnabled(true);
  listNames(form, namesOfGroup(form.services.state, group));
  form.Combo4->SetListIndex(group);
  form.Combo3->selectText(Value);
}

void Combo4_Click(Form2& form, controls::Cause cause) {
  if (cause != controls::Cause::User) return;
  const int group = form.Combo4->ListIndex();
  for (QPushButton* button : std::initializer_list<QPushButton*>{form.Command3, form.Command2, form.Command5})
    button->setEnabled(group == ThemeGroup);
  listNames(form, namesOfGroup(form.services.state, group));
  if (form.Combo3->ListCount() > 0) form.Combo3->SetListIndex(0);
}

void Combo3_Click(Form2& form) {
  const themefiles::ModuleState& state = form.services.state;
  const QString name = form.Combo3->Text();
  const int group = form.Combo4->ListIndex();
  if (group == ThemeGroup) {
    const auto row = rowNamed(state.ThemeColors, name);
    if (!name.isEmpty() && row != state.ThemeColors.end()) form.Command2->SetBackColor(shownColor(row->Value));
  } else if (group == ProgramGroup || group == PlayerGroup) {
    form.Command2->SetBackColor(shownColor(themefiles::ResolveColor(state, name, form.services.schemeName())));
  }
}

void followScheme(Form2& form) {
  form.Combo3->updateSwatches();
  if (form.Combo4->ListIndex() == ProgramGroup && form.Combo3->ListIndex() >= 0) Combo3_Click(form);
}

void Command2_Click(Form2& form) {
  if (form.Combo3->ListIndex() < 0) return;
  themefiles::ModuleState& state = form.services.state;
  const auto color = form.services.dialogs.chooseColor(&form, form.Command2->BackColor());
  if (!color) return;
  const QString name = form.Combo3->Text();
  const auto row = rowNamed(state.ThemeColors, name);
  const bool ofTheme = !name.isEmpty() && row != state.ThemeColors.end();
  const QString text = QStringLiteral("%1 %2 %3").arg(color->red()).arg(color->green()).arg(color->blue());
  if (!ofTheme) {
    form.Command2->SetBackColor(*color);
    return;
  }
  if (!writeColor(form, WriteStep, name, text)) return;
  form.Command2->SetBackColor(*color);
  setRowsLike(form, name, text);
}

void putSavedColorBack(Form2& form, const QString& name, const SavedValue& saved) {
  const ToolServices& services = form.services;
  const bool written = writeAtOnce(form, WriteStep, [&] {
    for (const SavedLine& line : saved.lines) {
      themefiles::putLineInCopy(services.state, line.copy, line.section, line.key, line.line, services.status);
    }
  });
  if (!written) return;
  const QString value = themefiles::GetINI(section(), name, newColor(), services.state.paths.ThemeFile);
  setRowsLike(form, name, value);
  form.Command2->SetBackColor(shownColor(value));
}

void Command3_Click(Form2& form) {
  const QStringView step = u"Error while adding colors";
  const QString name =
      form.services.dialogs.inputBox(&form, QStringLiteral("Name of the New Color:"), QStringLiteral("New Color"));
  if (name.isEmpty()) return;
  if (form.Combo3->entryLike(name) >= 0) {
    showErrorBox(form, QStringLiteral("Color already exist!"));
    return;
  }
  if (!acceptNewName(form, name)) return;
  themefiles::ModuleState& state = form.services.state;
  // Another group is on show and the theme already has the name: the file has one line for it, so the table gets no
  // second row.
  auto row = rowLike(state, name);
  if (row == state.ThemeColors.end()) row = rowNamed(state.ThemeColors, QString());
  if (row == state.ThemeColors.end()) {
    form.services.status.ShowStatus(platform::reportText(step.toString(), QString()));
    return;
  }
  // The file may have a colour of the name that the table had no room for, or that another program has added.
  QString replaced;
  const bool read = platform::guarded(form.services.status, step.toString(), [&] {
    replaced = themefiles::wholeValue(section(), name, state.paths.ThemeFile);
  });
  const platform::Telling telling(form.services.status);
  if (!read || !writeColor(form, step, name, newColor())) return;
  if (row->Name.isEmpty()) row->Name = name;
  setRowsLike(form, name, newColor());
  form.Combo3->AddItem(row->Name);
  form.Combo3->SetListIndex(form.Combo3->entryLike(name));
  if (replaced.isEmpty()) return;
  form.services.status.note(QStringLiteral("%1 was %2 and is a new colour now").arg(row->Name, replaced));
}

void Command5_Click(Form2& form) {
  const QString name = form.Combo3->Text();
  if (name.isEmpty()) return;
  const auto answer = form.services.dialogs.messageBox(
      &form, QStringLiteral("Really delete this Color?") + QStringLiteral("\n\n") + name,
      QStringLiteral("Delete Color"), platform::BoxKind::YesNoDefaultNo);
  if (answer != platform::BoxAnswer::Yes) return;
  themefiles::ModuleState& state = form.services.state;
  if (rowNamed(state.ThemeColors, name) == state.ThemeColors.end()) return;
  if (!writeColor(form, WriteStep, name, std::nullopt)) return;
  // Removes the row whose line was removed from the file. If two names differ only in case, that isn't the selected
  // one.
  const auto row = rowLike(state, name);
  const int entry = form.Combo3->findText(row->Name);
  *row = {};
  setRowsLike(form, name, themefiles::GetINI(section(), name, QStringLiteral("0 0 0"), state.paths.ThemeFile));
  form.Combo3->RemoveItem(entry >= 0 ? entry : form.Combo3->ListIndex());
  form.Combo3->SetListIndex(-1);
  form.Command2->SetBackColor(drawing::colorOf(drawing::ButtonFaceColor));
}

}  // namespace toolwindow
