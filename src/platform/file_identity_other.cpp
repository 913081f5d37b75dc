#include <QDateTime>
#include <QFileInfo>

#include "platform/file_identity.h"
#include "platform/paths.h"

namespace platform {

std::optional<FileIdentity> identityOf(const QString& /*path*/) {
  return std::nullopt;
}

std::optional<FileIdentity> roughIdentityOf(const QString& path) {
  const QFileInfo file(nativePath(path));
  if (!file.isFile()) return std::nullopt;
  FileIdentity identity;
  identity.size = file.size();
  identity.modified = file.lastModified().toMSecsSinceEpoch() * 1'000'000;
  return identity;
}

bool isSettled(const FileIdentity& /*file*/) {
  return false;
}

}  // namespace platform
