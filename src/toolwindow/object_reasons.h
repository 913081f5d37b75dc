#pragma once

#include "renderer/render_account.h"

namespace controls {
class ListBox;
}

namespace toolwindow {

/// Gives each row of the list of objects a tool tip with the reasons why its object, or a part of it, wasn't drawn.
/// Rows of objects that weren't drawn at all are grey.
void showReasons(controls::ListBox& objects, const renderer::RenderAccount& account);

}  // namespace toolwindow
