#pragma once

#include <QString>

/// What the reports of an edit begin with, and causes that they share.
namespace editing {

/// A value that an editor can't load.
inline constexpr QStringView ReadStep = u"Error while reading Value";
/// A search hit that is gone.
inline constexpr QStringView FindStep = u"Error while finding";
/// A failed write.
inline constexpr QStringView WriteStep = u"Error while writing tempfile";

/// An edit that doesn't make Save available.
inline constexpr QStringView KeptInCopy = u"Kept in the working copy; the next Update makes Save available";

/// A longer value opens no editor and isn't written.
inline constexpr qsizetype LongestValue = 32'000;
inline QString tooLongText(const QString& key) {
  return QStringLiteral("%1 is too long to be edited here").arg(key);
}

}  // namespace editing
