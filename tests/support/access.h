#pragma once

#include <QString>

#ifdef Q_OS_WIN
#include <QDir>

#include "platform/windows_api.h"
#else
#include <sys/stat.h>
#endif

// Who may do what with a file, in the system's own notation.

namespace support {

#ifdef Q_OS_WIN

inline std::wstring widePath(const QString& native) {
  return QDir::toNativeSeparators(native).toStdWString();
}

inline QString accessTo(const QString& native) {
  QByteArray descriptor(4096, Qt::Uninitialized);
  DWORD size = 0;
  wchar_t* text = nullptr;
  ::GetFileSecurityW(widePath(native).c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), DWORD(descriptor.size()),
                     &size);
  ::ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION,
                                                         &text, nullptr);
  const QString list = QString::fromWCharArray(text);
  ::LocalFree(text);
  return list;
}

/// Leaves the file to its owner alone.
inline void leaveToOwner(const QString& native) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  ::ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;BA)", SDDL_REVISION_1, &descriptor, nullptr);
  ::SetFileSecurityW(widePath(native).c_str(), DACL_SECURITY_INFORMATION, descriptor);
  ::LocalFree(descriptor);
}

#else

inline QString accessTo(const QString& native) {
  struct stat status;
  if (::stat(native.toUtf8(), &status) != 0) return {};
  return QString::number(status.st_mode & 07777U, 8);
}

inline void leaveToOwner(const QString& native) {
  if (::chmod(native.toUtf8(), 0600) != 0) qFatal("can't change rights");
}

#endif

}  // namespace support
