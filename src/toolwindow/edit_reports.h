#pragma once

#include <optional>

#include <QString>

#include "themefiles/module_state.h"

namespace toolwindow {

class Form2;

/// Report of a write that did not reach the file.
inline constexpr QStringView WriteStep = u"Error while writing tempfile";

/// Writes a key of a working copy at once (without a value: removes it). Gives what the user has to know of that
/// besides, mostly an empty text; nothing when the write did not reach the file, which is reported as a failed `step`.
std::optional<QString> WriteAtOnce(Form2& form, QStringView step, QString themefiles::ThemePaths::*copy,
                                   const QString& section, const QString& key, const std::optional<QString>& value);

/// What the user is told after a colour or key was written at once, behind a `note` of what came of it besides.
void TellKeptInWorkingCopy(Form2& form, const QString& note);

/// An error box over the tool window.
void ShowErrorBox(Form2& form, const QString& text);

/// Whether an ini file gives `name` back as a key's name; tells the user when it doesn't.
bool AcceptNewName(Form2& form, const QString& name);

}  // namespace toolwindow
