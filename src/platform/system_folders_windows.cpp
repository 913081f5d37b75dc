#include <array>

#include "platform/paths.h"
#include "platform/system_folders.h"
#include "platform/windows_api.h"
// Behind the other declarations of the system.
#include <shlobj.h>

namespace platform {

QStringList systemFolders() {
  QStringList folders;
  for (const int kind : {CSIDL_PROGRAM_FILES, CSIDL_PROGRAM_FILESX86, CSIDL_WINDOWS}) {
    std::array<wchar_t, MAX_PATH> path{};
    if (::SHGetFolderPathW(nullptr, kind, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK) continue;
    folders += plainPath(QString::fromWCharArray(path.data()));
  }
  return folders;
}

}  // namespace platform
