#include "platform/system_folders.h"

namespace platform {

QStringList systemFolders() {
  return {QStringLiteral("/usr"), QStringLiteral("/bin"), QStringLiteral("/sbin"), QStringLiteral("/opt"),
          QStringLiteral("/Applications")};
}

}  // namespace platform
