#pragma once

#include "mainwindows/command.h"

namespace mainwindows {

/// Every command of the main window, those of the toolbar's buttons first and in their order.
CommandRows commandRows();

/// Whether a command is enabled.
bool canRun(const Form1& form, const CommandRow& row);

/// Runs a command that is enabled: now, or when the running work is over. Brings what is under way on the preview to
/// its end first. The row and the targets have to live as long as the form.
void runCommand(const CommandTargets& targets, const CommandRow& row);

}  // namespace mainwindows
