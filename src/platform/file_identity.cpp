#include "platform/file_identity.h"

#include <algorithm>
#include <chrono>

#include "platform/found_path.h"

namespace platform {

std::optional<FileIdentity> identityOf(const QString& path) {
  const auto identity = atFoundPath(path, identityAt);
  if (identity) return *identity;
  if (identity.isMissing()) return std::nullopt;
  throw failureOf(path, identity.error());
}

std::optional<FileIdentity> identityIfSeen(const QString& path) {
  try {
    return identityOf(path);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

bool isSettled(const FileIdentity& file) {
  using std::chrono::nanoseconds;
  constexpr std::chrono::seconds ClockGrain{2};
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return nanoseconds(std::max(file.modified, file.changed)) <= now - ClockGrain;
}

}  // namespace platform
