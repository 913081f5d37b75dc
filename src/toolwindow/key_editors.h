#pragma once

#include <QString>

#include "themefiles/module_state.h"

namespace toolwindow {

class Form2;

/// The frames Texts and Texture share their design: a list of a section's keys, and a text box with the selected key's
/// value. Adding and removing a key write into the working copy at once.
enum class KeyEditor { Text, Texture };

/// A key of a language or skin file, and its value.
struct Reference {
  QString themefiles::ThemePaths::*copy;  ///< the working copy that has the section
  QString section;
  QString name;  ///< of the key; empty when none is selected
  QString content;
};

/// What the frame shows.
Reference shownReference(const Form2& form, KeyEditor which);

/// Lists the keys of the section anew and selects the one that equals Value, if any.
void FillTextKeys(Form2& form, const QString& Value);
void FillTextureKeys(Form2& form, const QString& Value);

/// A key has been selected: shows its value. If the value is too long for the box or can't be read, that is reported
/// and no key is selected.
void KeyList_Click(Form2& form, KeyEditor which);

/// Adds a key with an empty value.
void AddKey_Click(Form2& form, KeyEditor which);

/// Removes the selected key, after a question.
void RemoveKey_Click(Form2& form, KeyEditor which);

/// Proposes another image for the texture key; it must lie in the skin's own folder.
void Command4_Click(Form2& form);

}  // namespace toolwindow
