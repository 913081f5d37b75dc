#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "themefiles/module_state.h"

namespace toolwindow {

class Form2;

/// Step name of the report of a value that an editor can't load.
inline constexpr QStringView ReadStep = u"Error while reading Value";
/// Its cause for a value that is longer than controls::LongestText.
QString tooLongText(const QString& key);

/// Step name of the report of a search hit that is gone.
inline constexpr QStringView FindStep = u"Error while finding";

/// Step name of the report of a failed write.
inline constexpr QStringView WriteStep = u"Error while writing tempfile";

/// Writes a key of a working copy at once, or removes it if there is no value, and tells the user where the edit is
/// kept. Returns whether the write succeeded; if not, it is reported as a failed `step`.
bool writeAtOnce(Form2& form, QStringView step, QString themefiles::ThemePaths::*copy, const QString& section,
                 const QString& key, const std::optional<QString>& value);

/// The same with another way to write.
bool writeAtOnce(Form2& form, QStringView step, const std::function<void()>& write);

/// An error box over the tool window.
void showErrorBox(Form2& form, const QString& text);

/// Whether a key named `name` can be read back from an ini file. Tells the user if it can't.
bool acceptNewName(Form2& form, const QString& name);

}  // namespace toolwindow
