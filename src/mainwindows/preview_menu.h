#pragma once

class QPoint;

namespace mainwindows {

class Form1;

/// Shows the menu of the start picture and of the preview at a place of the screen.
void showPreviewMenu(Form1& form, const QPoint& place);

/// Asks for another game folder, and goes on as Open does, when no work is running.
void askAnotherFolder(Form1& form);

}  // namespace mainwindows
