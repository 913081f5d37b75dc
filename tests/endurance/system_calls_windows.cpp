#include <algorithm>

#include "endurance/fault_points.h"
#include "platform/windows_api.h"

using namespace system_calls;

// The linker takes __wrap___imp_NAME for the place that holds the address of the function NAME of a library of the
// system, and __real___imp_NAME for the true place.

namespace {

constexpr DWORD DeviceError = ERROR_IO_DEVICE;

/// Whether the call fails, with the number of the error.
bool failsHere(Kind kind) {
  const DWORD before = ::GetLastError();
  const Outcome outcome = outcomeOf(kind);
  const bool fails = outcome == Outcome::NoRoom || outcome == Outcome::Fails || outcome == Outcome::Dies;
  ::SetLastError(outcome == Outcome::NoRoom ? ERROR_DISK_FULL : fails ? DeviceError : before);
  return fails;
}

}  // namespace

void system_calls::endOfChild() {}

extern "C" {

// NOLINTBEGIN(bugprone-macro-parentheses)
// A call that fails gives `failure`.
#define WRAP(result, name, kind, failure, parameters, arguments)      \
  extern decltype(&::name) __real___imp_##name;                       \
  static result WINAPI faulty##name parameters {                      \
    return failsHere(kind) ? failure : __real___imp_##name arguments; \
  }                                                                   \
  decltype(&::name) __wrap___imp_##name = faulty##name;
// NOLINTEND(bugprone-macro-parentheses)

static Kind kindOfOpening(DWORD access, DWORD how) {
  if (how == CREATE_NEW) return Kind::Make;
  return access == FILE_READ_ATTRIBUTES ? Kind::Look : Kind::Open;
}

static Kind kindOfSetting(FILE_INFO_BY_HANDLE_CLASS what) {
  if (what == FileBasicInfo) return Kind::Own;
  return what == FileDispositionInfo ? Kind::Remove : Kind::Rename;
}

WRAP(HANDLE, CreateFileW, kindOfOpening(access, how), INVALID_HANDLE_VALUE,
     (LPCWSTR path, DWORD access, DWORD shared, LPSECURITY_ATTRIBUTES rights, DWORD how, DWORD flags, HANDLE model),
     (path, access, shared, rights, how, flags, model))
WRAP(BOOL, GetFileInformationByHandleEx, Kind::Look, FALSE,
     (HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, LPVOID info, DWORD size), (file, what, info, size))
WRAP(HANDLE, FindFirstFileExW, Kind::List, INVALID_HANDLE_VALUE,
     (LPCWSTR path, FINDEX_INFO_LEVELS level, LPVOID entry, FINDEX_SEARCH_OPS how, LPVOID filter, DWORD flags),
     (path, level, entry, how, filter, flags))
WRAP(BOOL, FindNextFileW, Kind::List, FALSE, (HANDLE search, LPWIN32_FIND_DATAW entry), (search, entry))
WRAP(BOOL, FlushFileBuffers, Kind::Flush, FALSE, (HANDLE file), (file))
WRAP(BOOL, SetFileInformationByHandle, kindOfSetting(what), FALSE,
     (HANDLE file, FILE_INFO_BY_HANDLE_CLASS what, LPVOID info, DWORD size), (file, what, info, size))
WRAP(BOOL, GetKernelObjectSecurity, Kind::Own, FALSE,
     (HANDLE file, SECURITY_INFORMATION part, PSECURITY_DESCRIPTOR rights, DWORD size, LPDWORD needed),
     (file, part, rights, size, needed))
WRAP(BOOL, SetKernelObjectSecurity, Kind::Own, FALSE,
     (HANDLE file, SECURITY_INFORMATION part, PSECURITY_DESCRIPTOR rights), (file, part, rights))
// What fails to close is closed all the same; so does the system with the handles of a killed program.
WRAP(BOOL, CloseHandle, Kind::Close, (__real___imp_CloseHandle(handle), FALSE), (HANDLE handle), (handle))

extern decltype(&::ReadFile) __real___imp_ReadFile;
static BOOL WINAPI faultyReadFile(HANDLE file, LPVOID bytes, DWORD size, LPDWORD got, LPOVERLAPPED place) {
  const Outcome outcome = outcomeOf(Kind::Read);
  ::SetLastError(DeviceError);
  if (outcome == Outcome::Fails || outcome == Outcome::Dies) return FALSE;
  const DWORD asked = outcome == Outcome::Halved ? std::max<DWORD>(size / 2, 1) : size;
  return __real___imp_ReadFile(file, bytes, asked, got, place);
}
decltype(&::ReadFile) __wrap___imp_ReadFile = faultyReadFile;

extern decltype(&::WriteFile) __real___imp_WriteFile;
static BOOL WINAPI faultyWriteFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD put, LPOVERLAPPED place) {
  const DWORD half = std::max<DWORD>(size / 2, 1);
  const Outcome outcome = outcomeOf(Kind::Write);
  if (outcome == Outcome::Dies) __real___imp_WriteFile(file, bytes, half, put, place);
  ::SetLastError(outcome == Outcome::NoRoom ? ERROR_DISK_FULL : DeviceError);
  if (outcome == Outcome::Fails || outcome == Outcome::Dies || outcome == Outcome::NoRoom) return FALSE;
  return __real___imp_WriteFile(file, bytes, outcome == Outcome::Halved ? half : size, put, place);
}
decltype(&::WriteFile) __wrap___imp_WriteFile = faultyWriteFile;

}  // extern "C"
