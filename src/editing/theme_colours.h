#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "editing/saved_state.h"
#include "editing/session.h"

/// The colours that a value can name, and the editing of the theme's own. An edit goes into the working copy and into
/// the state's table at once.
namespace editing {

enum class ColorGroup { Theme, Program, Player };

QStringList colorNames(const themefiles::ModuleState& state, ColorGroup group);
/// The first group that has the name, case included; none for an unknown one. An empty name is one of the theme's free
/// rows.
std::optional<ColorGroup> colorGroupOf(const themefiles::ModuleState& state, const QString& name);
/// The colour string of a name in its group; none if the theme has no such colour.
std::optional<QString> colorValue(const themefiles::ModuleState& state, ColorGroup group, const QString& name,
                                  const QString& scheme);

/// The colour that a new one begins with.
QString newColor();

/// What was saved for a colour of the theme that differs now.
std::optional<SavedValue> savedColor(const themefiles::ModuleState& state, const QString& name);

/// Each returns whether, or the name of the row in which, the theme's table has changed. A failed write is reported and
/// changes nothing.
bool changeColor(Session& session, const QString& name, const QString& color);
bool putSavedColorBack(Session& session, const QString& name, const SavedValue& saved);
/// The lines of these colours have been put back: the table has their values, and their names in the case that the
/// file has again. One that was removed gets a row anew, if there is room.
void followColors(Session& session, const QStringList& names);
/// Adds a colour, or makes the theme's colour of that name a new one. That there is no room for it is reported; so is
/// what the file had under that name.
std::optional<QString> addColor(Session& session, const QString& name);
/// Removes the line that an ini file has for the name, and its row. None if the theme has no colour of that name.
std::optional<QString> removeColor(Session& session, const QString& name);

}  // namespace editing
