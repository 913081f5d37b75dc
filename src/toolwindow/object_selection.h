#pragma once

#include "controls/cause.h"
#include "renderer/render_account.h"

namespace toolwindow {

class Form2;

/// Fills the tag list for the chosen screen and selects its first tag. The drawing of the screen follows in the work
/// queue. Lets events through; what the queue's yield throws passes through.
void listScreen(Form2& form);

/// An object has been chosen: shows its keys, closes an open editor and places the mark. Draws nothing.
void List1_Click(Form2& form, controls::Cause cause);

/// Chooses the object of the row as the user's click in the list would.
void pickTag(Form2& form, int row);

/// Tells on each row why its object isn't drawn, as a tool tip, and shows the rows of those that weren't in grey.
void showReasons(Form2& form, const renderer::RenderAccount& account);

}  // namespace toolwindow
