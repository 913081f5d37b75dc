#pragma once

#include "controls/cause.h"
#include "renderer/render_account.h"
#include "themefiles/theme_search.h"

namespace toolwindow {

class Form2;

/// Fills the tag list with the chosen screen's tags and selects the tag `kept`, or the first one if that is gone. The
/// work queue draws the screen next. Serves events; throws what the queue's yield throws.
void listScreen(Form2& form, const QString& kept = {});

/// An object has been chosen: shows its keys, closes an open editor and places the mark. Draws nothing.
void List1_Click(Form2& form, controls::Cause cause);

/// Chooses the object of the row as the user's click in the list would.
void pickTag(Form2& form, int row);

/// Goes to a hit's screen, object and row of the grid as clicks on them would. The present screen isn't chosen again.
/// Object and row are picked when the screen's list is complete, unless the user has chosen something else by then.
/// What is gone is reported.
void goToHit(Form2& form, const themefiles::Hit& hit);

/// Gives each row of List1 a tool tip with the reasons why its object, or a part of it, wasn't drawn. Rows of objects
/// that weren't drawn at all are grey.
void showReasons(Form2& form, const renderer::RenderAccount& account);

}  // namespace toolwindow
