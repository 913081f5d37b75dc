#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "editing/session.h"

/// Edits of colours and keys don't wait for Update: they are written at once, draw nothing, and leave the theme as
/// changed as it was.
namespace editing {

/// Runs `write` and tells the user where the edit is kept. A failure is reported as one of `step`. Returns whether the
/// write succeeded.
bool writeAtOnce(Session& session, QStringView step, const std::function<void()>& write);

/// The same for one key of a working copy; without a value the key is removed.
bool writeAtOnce(Session& session, QStringView step, QString themefiles::ThemePaths::*copy, const QString& section,
                 const QString& key, const std::optional<QString>& value);

/// Whether a key of that name can be read back from an ini file.
bool isUsableName(const QString& name);

}  // namespace editing
