#include "toolwindow/value_commit.h"

#include <cmath>
#include <functional>
#include <memory>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/shown_text.h"
#include "controls/text_box.h"
#include "controls/work_queue.h"
#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "themefiles/ini_access.h"
#include "themefiles/working_copies.h"
#include "toolwindow/edit_reports.h"
#include "toolwindow/key_editors.h"
#include "toolwindow/mark_placing.h"
#include "toolwindow/tool_window.h"
#include "toolwindow/value_grid.h"

namespace toolwindow {
namespace {

/// What a commit is about.
struct Commit {
  int row;
  QString section;
  QString key;   ///< identity of the row's key
  QString name;  ///< the key as the row shows it
};

/// Throws platform::Failure for a section that can't be written into.
void checkSection(const QString& section) {
  if (section.isEmpty()) throw platform::Failure(QStringLiteral("no object is selected"));
  if (section.contains(u']') || section.startsWith(u'\t') || section.endsWith(u'\t')) {
    throw platform::Failure(QStringLiteral("the section %1 can't be found again").arg(section));
  }
}

/// Throws platform::Failure for a row whose value is shown cut: no editor has it.
void checkEditable(const Form2& form, int row) {
  if (form.ListView1->subItem(row).size() > controls::LongestText) {
    throw platform::Failure(tooLongText(form.ListView1->rowText(row)));
  }
}

Commit commitOf(const Form2& form, int row) {
  if (row < 0) throw platform::Failure(QStringLiteral("no row is selected"));
  const QString key = form.ListView1->rowText(row);
  Commit commit{row, platform::trimBlanks(form.List1->Text()), themefiles::keyIdentity(key), platform::trimBlanks(key)};
  checkSection(commit.section);
  return commit;
}

void SetSelectedRowValue(Form2& form, const QString& Value) {
  form.ListView1->setSubItem(form.ListView1->selectedRow(), Value);
}

/// The value of an entry of Combo2: the text before its "=".
QString selectedValue(const Form2& form) {
  if (form.Combo2->ListIndex() < 0) throw platform::Failure(QStringLiteral("nothing is selected"));
  return platform::trimBlanks(form.Combo2->Text().section(u'=', 0, 0));
}

/// A name that a list of names has selected.
QString selectedName(const QString& name) {
  if (name.isEmpty()) throw platform::Failure(QStringLiteral("nothing is selected"));
  return name;
}

void put(Form2& form, QString themefiles::ThemePaths::*copy, const QString& section, const QString& key,
         const QString& value) {
  themefiles::putInCopy(form.services.state, copy, section, key, value, form.services.status);
}

void commitValue(Form2& form, const Commit& commit, const QString& value) {
  put(form, &themefiles::ThemePaths::ThemeFile, commit.section, commit.key, value);
  SetSelectedRowValue(form, value);
}

QString assignment(const QString& key, const QString& value) {
  return key + QStringLiteral(" = ") + value;
}

/// What is told of a key of the language or the skin: "words 'SONG' = Choose a song".
QString contentAssignment(QString themefiles::ThemePaths::*copy, const QString& name, const QString& content) {
  const bool isWords = copy == &themefiles::ThemePaths::LanguageFile;
  return assignment((isWords ? QStringLiteral("words '") : QStringLiteral("texture '")) + name + u'\'', content);
}

/// Writes a reference into the theme, and what it refers to into the file that owns that. Adds to `told` which of both
/// has changed.
void commitReference(Form2& form, const Commit& commit, KeyEditor editor, QStringList& told) {
  const Reference shown = shownReference(form, editor);
  const QString name = selectedName(shown.name);
  themefiles::checkLineText(shown.content);
  const themefiles::ThemePaths& paths = form.services.state.paths;
  const bool renamed = themefiles::GetINI(commit.section, commit.key, QString(), paths.ThemeFile) != name;
  QString content;
  const bool read =
      platform::guardedSilently([&] { content = themefiles::wholeValue(shown.section, name, paths.*shown.copy); });
  const bool refilled = !read || content != shown.content;
  put(form, &themefiles::ThemePaths::ThemeFile, commit.section, commit.key, name);
  put(form, shown.copy, shown.section, name, shown.content);
  SetSelectedRowValue(form, name);
  if (!refilled) return;
  if (renamed) told += assignment(commit.name, name);
  told += contentAssignment(shown.copy, name, shown.content);
}

/// Updates the record that the mark is drawn from, if the key is one of five.
void updateCursorRect(themefiles::CursorRecord& record, const QString& key, const QString& value) {
  const double number = platform::numberOf(value);
  // A value that is no number stays as it is; placing the mark reports it.
  const QString measure = std::isfinite(number) ? platform::numberText(number) : value;
  if (key == u"X") record.X = measure;
  if (key == u"Y") record.Y = measure;
  if (key == u"W") record.W = measure;
  if (key == u"H") record.H = measure;
  if (key == u"SIZE") record.Size = platform::roundToInt16(number).value_or(record.Size);
}

/// Reads the editor of the group and writes its value. Adds to `told` what has changed beside the row.
void writeEditor(Form2& form, const Commit& commit, themefiles::KeyGroup group, QStringList& told) {
  switch (themefiles::rowOf(group).frame) {
    case themefiles::EditorFrame::Numbers:
      commitValue(form, commit, form.Text1->Text());
      updateCursorRect(form.services.state.CursorRect, commit.key, form.Text1->Text());
      break;
    case themefiles::EditorFrame::FloatNumbers:
      commitValue(form, commit, form.Text4->Text());
      break;
    case themefiles::EditorFrame::Selection:
      commitValue(form, commit, selectedValue(form));
      break;
    case themefiles::EditorFrame::Color:
      commitValue(form, commit, selectedName(form.Combo3->Text()));
      break;
    case themefiles::EditorFrame::Texts:
      commitReference(form, commit, KeyEditor::Text, told);
      break;
    case themefiles::EditorFrame::Texture:
      commitReference(form, commit, KeyEditor::Texture, told);
      break;
  }
}

bool isShown(const Form2& form, const QString& section) {
  return platform::trimBlanks(form.List1->Text()) == section;
}

/// The steps of a commit behind its writes; `told` is what it has changed: "X = 1".
void finishCommit(Form2& form, const QString& section, const QStringList& told) {
  const ToolServices& services = form.services;
  services.state.Changed = true;
  services.enableSave();
  services.status.showDone(section + QStringLiteral(": ") + told.join(QStringLiteral(", ")));
  services.queue.draw();
  // If another object was picked during the drawing, it has its mark already.
  if (isShown(form, section)) placeMarkAgain(form);
}

/// Runs a commit. A failure is reported and leaves out the steps behind it. Returns whether there was none.
bool runCommit(Form2& form, const std::function<void()>& commit) {
  const ToolServices& services = form.services;
  const auto telling = std::make_shared<platform::Telling>(services.status);
  services.status.startAnew();
  const bool done = platform::guarded(services.status, WriteStep.toString(), commit);
  form.markLater();
  // Keeps the notes until a drawing that waits has run, so that both are reported together.
  services.queue.runOutside([telling] {});
  return done;
}

/// A commit into a row of the grid: writes by `write`, and does all that follows. `write` adds to `told` what has
/// changed if that isn't the row's value. Returns whether it succeeded.
bool commitRow(Form2& form, int row, const std::function<void(const Commit& commit, QStringList& told)>& write) {
  form.services.settleHand();
  return runCommit(form, [&] {
    const Commit commit = commitOf(form, row);
    QStringList told;
    write(commit, told);
    if (told.isEmpty()) told += assignment(commit.name, form.ListView1->subItem(row));
    finishCommit(form, commit.section, told);
    form.ListView1->setFocus();
  });
}

/// The first row of the key; -1 without one.
int firstRowOf(const Form2& form, const QString& key) {
  for (int row = 0; row < form.ListView1->rowCount(); ++row) {
    if (themefiles::keyIdentity(form.ListView1->rowText(row)) == key) return row;
  }
  return -1;
}

/// Brings a committed value into grid and record. The focus stays where it is.
void showValue(Form2& form, const QString& key, const QString& value) {
  updateCursorRect(form.services.state.CursorRect, key, value);
  const int row = firstRowOf(form, key);
  if (row < 0) return;
  form.ListView1->setSubItem(row, value);
  if (!form.services.state.EditorShown || form.ListView1->selectedRow() != row) return;
  QWidget* const focus = form.focusWidget();
  ListView1_ItemClick(form, row);
  if (focus != nullptr) focus->setFocus();
}

}  // namespace

void Command1_Click(Form2& form) {
  commitRow(form, form.ListView1->selectedRow(), [&](const Commit& commit, QStringList& told) {
    const auto group = themefiles::groupOf(commit.key);
    if (!group) return;
    checkEditable(form, commit.row);
    writeEditor(form, commit, *group, told);
  });
}

bool commitValues(Form2& form, const QString& section, const std::vector<std::pair<QString, QString>>& values) {
  bool done = false;
  runCommit(form, [&] {
    checkSection(section);
    auto written = values;
    for (auto& [key, value] : written) key = themefiles::keyIdentity(key);
    themefiles::putValuesInCopy(form.services.state, &themefiles::ThemePaths::ThemeFile, section, written,
                                form.services.status);
    done = true;
    if (isShown(form, section)) {
      for (const auto& [key, value] : written) showValue(form, key, value);
    }
    QStringList told;
    for (const auto& [key, value] : values) told += assignment(key, value);
    finishCommit(form, section, told);
  });
  return done;
}

void putSavedBack(Form2& form, int row, const SavedValue& saved) {
  const ToolServices& services = form.services;
  const bool done = commitRow(form, row, [&](const Commit& commit, QStringList& told) {
    for (const SavedLine& line : saved.lines) {
      themefiles::putLineInCopy(services.state, line.copy, line.section, line.key, line.line, services.status);
      const bool isReferred = line.copy != &themefiles::ThemePaths::ThemeFile;
      const QString value = platform::trimBlanks(platform::fromAnsi(line.line).section(u'=', 1));
      told += isReferred ? contentAssignment(line.copy, line.key, value) : assignment(commit.name, saved.value);
    }
    form.ListView1->setSubItem(row, saved.value);
    updateCursorRect(services.state.CursorRect, commit.key, saved.value);
  });
  // Behind the report of the commit: a value that no editor can show is reported, too.
  if (done && services.state.EditorShown && form.ListView1->selectedRow() == row) ListView1_ItemClick(form, row);
}

}  // namespace toolwindow
