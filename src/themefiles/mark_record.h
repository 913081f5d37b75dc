#pragma once

#include <array>

#include <QString>
#include <QStringView>

#include "themefiles/module_state.h"

/// The numeric keys of a section that its mark is placed by, and their fields of the state's CursorRect.
namespace themefiles {

struct MarkKey {
  QStringView key;                              ///< in upper case
  QString CursorRecord::*measure = nullptr;     ///< a field that has the value as it is in the file
  qint16 CursorRecord::*roundedSize = nullptr;  ///< or one that has its number
};

inline constexpr MarkKey MarkX{.key = u"X", .measure = &CursorRecord::X};
inline constexpr MarkKey MarkY{.key = u"Y", .measure = &CursorRecord::Y};
inline constexpr MarkKey MarkW{.key = u"W", .measure = &CursorRecord::W};
inline constexpr MarkKey MarkH{.key = u"H", .measure = &CursorRecord::H};
inline constexpr MarkKey MarkSize{.key = u"SIZE", .roundedSize = &CursorRecord::Size};
inline constexpr std::array MarkKeys{MarkX, MarkY, MarkW, MarkH, MarkSize};

/// The row of a key; null for any other key.
const MarkKey* markKeyOf(QStringView key);

/// Brings the record up to a committed value, as a number. A value that is none stays as it is, for the placing of the
/// mark to report; a size that doesn't fit changes nothing.
void followCommit(CursorRecord& record, const QString& key, const QString& value);

}  // namespace themefiles
