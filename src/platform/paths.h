#pragma once

#include <QString>

/// The program's paths are written with backslashes and may have doubled separators. Here they become native paths.
namespace platform {

/// The native path, for showing it or for opening a dialog in a folder: plainPath, then findPath if there is nothing at
/// that path. Never throws: after an error it is plainPath.
QString nativePath(const QString& path);

/// The path with "/" as separator and no doubled separators.
QString plainPath(const QString& path);
/// Finds a path regardless of case, on file systems that tell case apart: each component as written if it exists, else
/// the one that differs only in case (the first in byte order). What isn't found stays as written. Throws Failure if a
/// folder on the way can't be looked into, rather than choosing a wrong file.
QString findPath(const QString& plain);

/// The program's path for a native one, with backslashes.
QString programPath(const QString& nativePath);

/// Whether both lead to the same existing folder.
bool sameFolder(const QString& a, const QString& b);

}  // namespace platform
