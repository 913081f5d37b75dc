#pragma once

#include <QString>

#include "controls/cause.h"
#include "toolwindow/saved_state.h"

namespace toolwindow {

class Form2;

// The frame Color: chooses a colour by its name, and edits the theme's own colours. Changing, adding and removing a
// colour write into the working copy and the colour table at once, without Update.

/// Shows the colour that the row names: its group, the names of the group, the swatch. A name in no table is shown as
/// nothing.
void FillColorEditor(Form2& form, const QString& Value);

/// The user has chosen a group of names.
void Combo4_Click(Form2& form, controls::Cause cause);

/// A name has been selected: paints the swatch.
void Combo3_Click(Form2& form);

/// Another colour scheme is in force: squares and swatch show its colours.
void followScheme(Form2& form);

/// Changes the selected colour by the colour dialog. A failed write is reported; other failures end it silently.
void Command2_Click(Form2& form);

/// Restores the saved value of a colour of the theme, in the way that Command2 changes one.
void putSavedColorBack(Form2& form, const QString& name, const SavedValue& saved);

/// Adds a colour to the theme.
void Command3_Click(Form2& form);

/// Removes the selected colour from the theme, after a question.
void Command5_Click(Form2& form);

}  // namespace toolwindow
