#pragma once

#include <functional>

#include "mainwindows/command.h"

class QPoint;

namespace mainwindows {

/// Shows the menu of the start picture and of the preview at a place of the screen: the commands that have an entry,
/// with their keys; those that can't run now are grey. What arranges several objects has a menu of its own in it. It
/// doesn't block; `run` gets the command that was chosen when the menu is gone.
void showPreviewMenu(Form1& form, const QPoint& place, bool guidesOn,
                     const std::function<void(const CommandRow& row)>& run);

}  // namespace mainwindows
