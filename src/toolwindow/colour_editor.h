#pragma once

#include <QString>

#include "controls/cause.h"
#include "toolwindow/saved_state.h"

namespace toolwindow {

class Form2;

// The frame Color: the choice of a colour's name, and the care of the theme's own colours. Changing, adding and
// removing a colour write into the working copy and the table at once, whatever becomes of the row.

/// Shows the colour that the row names: its group, the names of the group, the swatch. A name in no table is shown as
/// nothing.
void FillColorEditor(Form2& form, const QString& Value);

/// The user has chosen a group of names.
void Combo4_Click(Form2& form, controls::Cause cause);

/// A name has been selected: paints the swatch.
void Combo3_Click(Form2& form);

/// Changes the selected colour by the colour dialog. Failures end it silently, but for a write that did not succeed.
void Command2_Click(Form2& form);

/// Puts a colour of the theme back as it was saved; goes as a change by Command2.
void putSavedColorBack(Form2& form, const QString& name, const SavedValue& saved);

/// Adds a colour to the theme.
void Command3_Click(Form2& form);

/// Removes the selected colour from the theme, after a question.
void Command5_Click(Form2& form);

}  // namespace toolwindow
