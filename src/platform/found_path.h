#pragma once

#include "platform/failure.h"
#include "platform/file_result.h"
#include "platform/paths.h"

/// From the native calls on files to those by the program's paths.
namespace platform {

/// Tries the step on the path as written; if there is nothing, on the path found regardless of case. Throws Failure if
/// that can't be looked for.
template <typename Step>
auto atFoundPath(const QString& path, Step step) {
  const QString plain = plainPath(path);
  auto result = step(plain);
  if (!result.isMissing()) return result;
  const QString found = findPath(plain);
  if (found != plain) result = step(found);
  return result;
}

/// The failure that tells the error, with the file's name.
inline Failure failureOf(const QString& path, const FileError& error) {
  return Failure(plainPath(path).section(u'/', -1) + QStringLiteral(": ") + error.description);
}

}  // namespace platform
