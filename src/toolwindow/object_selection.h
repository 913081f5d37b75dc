#pragma once

#include "controls/cause.h"
#include "renderer/render_account.h"
#include "themefiles/theme_search.h"

namespace toolwindow {

class Form2;

/// Fills the tag list for the chosen screen and selects the tag `kept`, or the first one if it isn't there. The drawing
/// of the screen follows in the work queue. Lets events through; what the queue's yield throws passes through.
void listScreen(Form2& form, const QString& kept = {});

/// An object has been chosen: shows its keys, closes an open editor and places the mark. Draws nothing.
void List1_Click(Form2& form, controls::Cause cause);

/// Chooses the object of the row as the user's click in the list would.
void pickTag(Form2& form, int row);

/// Goes to a screen, an object and a row of the grid as the user's clicks on them would; the present screen isn't
/// chosen again. Object and row follow when the screen's list is there, unless the user has chosen something else by
/// then. What isn't there any more is reported.
void goToHit(Form2& form, const themefiles::Hit& hit);

/// Tells on each row why its object isn't drawn, as a tool tip, and shows the rows of those that weren't in grey.
void showReasons(Form2& form, const renderer::RenderAccount& account);

}  // namespace toolwindow
