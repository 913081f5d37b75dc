#pragma once

#include <QString>

namespace toolwindow {

class Form2;

/// What the user is told after a colour or key was written at once, behind a `note` of what came of it besides.
void TellKeptInWorkingCopy(Form2& form, const QString& note);

/// An error box over the tool window.
void ShowErrorBox(Form2& form, const QString& text);

/// Whether an ini file gives `name` back as a key's name; tells the user when it doesn't.
bool AcceptNewName(Form2& form, const QString& name);

}  // namespace toolwindow
