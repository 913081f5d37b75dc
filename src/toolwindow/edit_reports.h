#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "themefiles/module_state.h"

namespace toolwindow {

class Form2;

/// Report of a value that an editor can't take.
inline constexpr QStringView ReadStep = u"Error while reading Value";
/// What it says of one that is too long (see controls::LongestText).
QString tooLongText(const QString& key);

/// Report of a find that leads nowhere.
inline constexpr QStringView FindStep = u"Error while finding";

/// Report of a write that did not reach the file.
inline constexpr QStringView WriteStep = u"Error while writing tempfile";

/// Writes a key of a working copy at once (without a value: removes it), and tells the user where that is kept. Gives
/// whether the write reached the file; if not, it is reported as a failed `step`.
bool writeAtOnce(Form2& form, QStringView step, QString themefiles::ThemePaths::*copy, const QString& section,
                 const QString& key, const std::optional<QString>& value);

/// The same by a `write` of its own.
bool writeAtOnce(Form2& form, QStringView step, const std::function<void()>& write);

/// An error box over the tool window.
void showErrorBox(Form2& form, const QString& text);

/// Whether an ini file gives `name` back as a key's name; tells the user when it doesn't.
bool acceptNewName(Form2& form, const QString& name);

}  // namespace toolwindow
