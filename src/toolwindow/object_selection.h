#pragma once

#include "controls/cause.h"

namespace toolwindow {

class Form2;

/// Fills the tag list for the chosen screen and selects its first tag. The drawing of the screen follows in the work
/// queue. Lets events through; what the queue's yield throws passes through.
void ListScreen(Form2& form);

/// An object has been chosen: shows its keys, closes an open editor and places the mark. Draws nothing.
void List1_Click(Form2& form, controls::Cause cause);

}  // namespace toolwindow
