#pragma once

#include <QString>

#include "themefiles/module_state.h"

namespace toolwindow {

class Form2;

/// The frames Texts and Texture are one design: a list of the keys of a section, and a box with what the selected key
/// stands for. Adding and removing a key write into the working copy at once.
enum class KeyEditor { Text, Texture };

/// A key of a language or skin file, and what it stands for.
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

/// A key has been selected: shows what it stands for. One that is too long for the box or can't be read is
/// reported, and no key is selected then.
void KeyList_Click(Form2& form, KeyEditor which);

/// Adds a key with an empty value.
void AddKey_Click(Form2& form, KeyEditor which);

/// Removes the selected key, after a question.
void RemoveKey_Click(Form2& form, KeyEditor which);

/// Proposes another image for the texture key; it must lie in the skin's own folder.
void Command4_Click(Form2& form);

}  // namespace toolwindow
