#pragma once

#include <QString>

/// Paths of the program are written with the backslash and may hold doubled separators. They meet the file system here.
namespace platform {

/// The path as the file system takes it: "/" as separator, doubled separators one. Where the file system tells case
/// apart, a component that isn't there as written is looked up without regard to case (of several, the first in byte
/// order); what can't be found stays as written, also when the file system fails to answer: to show a path, or to go to
/// a folder. Who reads or writes a file takes the two steps.
QString nativePath(const QString& path);

/// The two steps of nativePath, for who touches the file at once and needs the second only when it isn't there: the
/// path with its separators mapped, and the look-up without regard to case. The second throws Failure when what stands
/// on the way can't be seen: another file than the one meant would be taken, or none.
QString plainPath(const QString& path);
QString findPath(const QString& plain);

/// The program's form of a native path: "\" as separator.
QString programPath(const QString& nativePath);

/// True when both name the same existing folder.
bool sameFolder(const QString& a, const QString& b);

}  // namespace platform
