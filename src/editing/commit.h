#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QString>

#include "editing/differences.h"
#include "editing/saved_state.h"
#include "editing/session.h"
#include "renderer/trial_values.h"
#include "themefiles/key_table.h"

/// The one way in which values become part of the theme. A commit checks that there is something to write and somewhere
/// to write it, writes, and reads back; then follow, in this order: the row shows the value, the mark's record has it,
/// the theme counts as changed and can be saved, the success is reported, the screen is drawn and the mark placed. A
/// failure is reported and leaves out the steps behind it. If another program has removed the object's section
/// meanwhile, the commit makes it anew.
namespace editing {

/// A row of the chosen object's values.
struct EditedRow {
  int number = -1;  ///< -1 without one
  QString key;
  QString value;
};

/// What an editor proposes for a key.
struct Proposal {
  std::optional<QString> value;  ///< none if nothing is selected in the editor
  QString content;               ///< of a reference: the words or the file that its name stands for
  bool operator==(const Proposal&) const = default;
};

/// What a commit would tell of a proposal for a key that stands as in `before`; empty if nothing would change.
QString changeText(themefiles::EditorFrame frame, const QString& key, const Proposal& before, const Proposal& proposal);

/// Update: writes what the editor of the row's key proposes. A key without an editor is written nothing; all other
/// steps are the same. Returns whether nothing failed.
bool commitRow(Session& session, const EditedRow& row, const std::function<Proposal(themefiles::EditorFrame)>& editor);

/// Puts the saved value of a row back.
bool putSavedBack(Session& session, const EditedRow& row, const SavedValue& saved);

/// Puts the saved lines of those of the keys that differ back: those of a file by one write, told with their count. If
/// a file can't be written, those before it stay written. Colours alone leave the theme as changed as it was and draw
/// nothing. Returns whether nothing failed.
bool putBack(Session& session, const std::vector<KeyPlace>& places);

/// "3 values"
QString countOf(int values);

/// Commits what was tried by hand: the values of all objects by one write. Returns whether that succeeded; if not,
/// nothing has changed.
bool commitValues(Session& session, const std::vector<renderer::TrialValues>& objects);

}  // namespace editing
