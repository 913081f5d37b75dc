#pragma once

#include <functional>

#include "mainwindows/command.h"

class QPoint;
class QWidget;

namespace mainwindows {

/// Shows the menu of the start picture and of the preview at a place of the screen. It doesn't block; `run` gets the
/// command that was chosen when the menu is gone.
void showPreviewMenu(QWidget& form, const QPoint& place, const std::function<void(Command command)>& run);

}  // namespace mainwindows
