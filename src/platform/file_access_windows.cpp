#include "platform/file_access_windows.h"

#include <algorithm>
#include <array>

#include <QByteArray>

#include "platform/windows_calls.h"

namespace platform {

namespace {

/// Passes over errors that tell that the system doesn't permit a change, or has no such thing.
FileResult<> tried(const FileResult<>& change) {
  constexpr auto Refusals = std::to_array<DWORD>(
      {ERROR_ACCESS_DENIED, ERROR_PRIVILEGE_NOT_HELD, ERROR_INVALID_OWNER, ERROR_INVALID_PRIMARY_GROUP,
       ERROR_INVALID_SECURITY_DESCR, ERROR_NOT_SUPPORTED, ERROR_INVALID_FUNCTION, ERROR_INVALID_PARAMETER});
  if (change) return change;
  const auto number = static_cast<DWORD>(change.error().number);
  if (std::find(Refusals.begin(), Refusals.end(), number) != Refusals.end()) return Done();
  return change;
}

/// A part of the security descriptor of a file.
FileResult<QByteArray> securityOf(const FileHandle& file, SECURITY_INFORMATION part) {
  DWORD size = 1024;
  for (;;) {
    QByteArray descriptor(static_cast<qsizetype>(size), Qt::Uninitialized);
    if (::GetKernelObjectSecurity(handleOf(file), part, descriptor.data(), size, &size)) {
      descriptor.truncate(::GetSecurityDescriptorLength(descriptor.data()));
      return descriptor;
    }
    if (::GetLastError() != ERROR_INSUFFICIENT_BUFFER) return systemError();
  }
}

FileResult<> copySecurity(const FileHandle& fresh, const FileHandle& model, SECURITY_INFORMATION part) {
  auto descriptor = securityOf(model, part);
  if (!descriptor) return descriptor.error();
  return called(::SetKernelObjectSecurity(handleOf(fresh), part, descriptor->data()));
}

/// Only the times and attributes that a program may set; a time of 0 stays as it is.
FileResult<> copyAttributes(const FileHandle& fresh, const FileHandle& old) {
  constexpr DWORD Kept =
      FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  FILE_BASIC_INFO basics;
  const auto told = called(::GetFileInformationByHandleEx(handleOf(old), FileBasicInfo, &basics, sizeof(basics)));
  if (!told) return told;
  FILE_BASIC_INFO set{};
  set.CreationTime = basics.CreationTime;
  set.FileAttributes = basics.FileAttributes & Kept;
  if (set.FileAttributes == 0) set.FileAttributes = FILE_ATTRIBUTE_NORMAL;
  return called(::SetFileInformationByHandle(handleOf(fresh), FileBasicInfo, &set, sizeof(set)));
}

}  // namespace

FileResult<> checkWritable(const std::wstring& path, const OpenFile& file) {
  FILE_BASIC_INFO basics;
  const auto told =
      called(::GetFileInformationByHandleEx(handleOf(file.handle()), FileBasicInfo, &basics, sizeof(basics)));
  if (!told) return told;
  if ((basics.FileAttributes & FILE_ATTRIBUTE_READONLY) != 0) {
    return FileError{QStringLiteral("The file is write-protected")};
  }
  const auto writing = openPresent(path, FILE_WRITE_DATA, AtLink::Replace);
  if (!writing) return writing.error();
  return Done();
}

FileResult<> keepAttributes(const FileHandle& fresh, const OpenFile& old) {
  constexpr auto Parts = std::to_array<SECURITY_INFORMATION>(
      {OWNER_SECURITY_INFORMATION, GROUP_SECURITY_INFORMATION, DACL_SECURITY_INFORMATION});
  auto kept = tried(copyAttributes(fresh, old.handle()));
  for (const SECURITY_INFORMATION part : Parts) {
    if (kept) kept = tried(copySecurity(fresh, old.handle(), part));
  }
  return kept;
}

FileResult<> copyAccess(const FileHandle& fresh, const OpenFile& model) {
  auto copied = copySecurity(fresh, model.handle(), DACL_SECURITY_INFORMATION);
  if (copied || !tried(copied)) return copied;
  const auto wanted = securityOf(model.handle(), DACL_SECURITY_INFORMATION);
  const auto found = securityOf(fresh, DACL_SECURITY_INFORMATION);
  if (!wanted || !found || *wanted != *found) return copied;
  return Done();
}

FileResult<> keepToOwner(const FileHandle& fresh) {
  auto descriptor = securityOf(fresh, OWNER_SECURITY_INFORMATION);
  if (!descriptor) return tried(descriptor.error());
  PSID owner = nullptr;
  BOOL byDefault = FALSE;
  alignas(ACL) std::array<char, 256> room{};
  auto* const list = reinterpret_cast<ACL*>(room.data());
  SECURITY_DESCRIPTOR alone;
  const bool made = ::GetSecurityDescriptorOwner(descriptor->data(), &owner, &byDefault) &&
                    ::InitializeAcl(list, static_cast<DWORD>(room.size()), ACL_REVISION) &&
                    ::AddAccessAllowedAce(list, ACL_REVISION, FILE_ALL_ACCESS, owner) &&
                    ::InitializeSecurityDescriptor(&alone, SECURITY_DESCRIPTOR_REVISION) &&
                    ::SetSecurityDescriptorDacl(&alone, TRUE, list, FALSE) &&
                    ::SetSecurityDescriptorControl(&alone, SE_DACL_PROTECTED, SE_DACL_PROTECTED);
  if (!made) return tried(systemError());
  return tried(called(::SetKernelObjectSecurity(handleOf(fresh), DACL_SECURITY_INFORMATION, &alone)));
}

}  // namespace platform
