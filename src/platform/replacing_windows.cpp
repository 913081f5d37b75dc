#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstring>
#include <thread>
#include <vector>

#include "platform/file_access_windows.h"
#include "platform/links_windows.h"
#include "platform/replacing.h"
#include "platform/windows_calls.h"

namespace platform {

namespace {

/// Added to a file's name, it names the temporary file. The name is always the same, so that killed programs leave at
/// most one such file behind, and the next turn removes it.
const QString TemporaryEnding = QStringLiteral(".unfinished");

bool isHeld(const FileError& error) {
  return error.number == ERROR_SHARING_VIOLATION || error.number == ERROR_LOCK_VIOLATION ||
         error.number == ERROR_USER_MAPPED_FILE || error.number == ERROR_FILE_EXISTS;
}

/// Tries the step again and again for a second while it fails because another program holds the file.
template <typename Step, typename Held>
auto patiently(Step step, Held held) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds Pause{5};
  const auto end = Clock::now() + std::chrono::seconds(1);
  for (;;) {
    auto result = step();
    if (result || !held(result.error()) || Clock::now() > end) return result;
    std::this_thread::sleep_for(Pause);
  }
}

/// Creates a file that no other program can write, rename or remove until it is closed. That is its lock.
FileResult<FileHandle> create(const std::wstring& path) {
  constexpr DWORD Access = GENERIC_READ | GENERIC_WRITE | DELETE;
  // On some servers nobody but the administrator may change rights.
  FileError error;
  for (const DWORD rights : {DWORD(WRITE_DAC | WRITE_OWNER), DWORD(0)}) {
    const HANDLE handle = ::CreateFileW(path.c_str(), Access | rights, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                        FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle != INVALID_HANDLE_VALUE) return FileHandle(reinterpret_cast<qintptr>(handle));
    error = systemError();
    if (error.number != ERROR_ACCESS_DENIED) break;
  }
  return error;
}

/// Has an open file removed when it is closed.
FileResult<> removeAtClose(const FileHandle& file) {
  FILE_DISPOSITION_INFO removing{TRUE};
  return called(::SetFileInformationByHandle(handleOf(file), FileDispositionInfo, &removing, sizeof(removing)));
}

/// Removes a temporary file that a killed program left, or a link at its name. What a program holds can't be opened.
FileResult<> clearAway(const std::wstring& path) {
  const auto left = openPresent(path, GENERIC_WRITE | DELETE, AtLink::Replace);
  if (left.isMissing()) return Done();
  if (!left) return left.error();
  const auto kind = kindOf(*left);
  if (!kind) return kind.error();
  if (!kind->isFile() && !kind->isLink) return noRegularFile();
  return removeAtClose(*left);
}

FileResult<FileHandle> make(const std::wstring& path) {
  auto made = create(path);
  if (made || made.error().number != ERROR_FILE_EXISTS) return made;
  if (const auto cleared = clearAway(path); !cleared) return cleared.error();
  return create(path);
}

/// What keeps a program from its turn.
FileError withoutTurn(const QString& temporary, const FileError& error) {
  if (isHeld(error)) return {QStringLiteral("Another program is writing this file")};
  const auto left = lookAt(temporary, AtLink::Replace);
  if (!left || !left->exists) return error;
  return {
      QStringLiteral("%1 is left from an earlier write and can't be removed: %2").arg(temporary, error.description)};
}

FileResult<> writeAll(const FileHandle& file, QByteArrayView bytes) {
  constexpr qsizetype MostAtOnce = 1 << 30;
  while (!bytes.isEmpty()) {
    DWORD put = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), MostAtOnce));
    if (!::WriteFile(handleOf(file), bytes.data(), size, &put, nullptr)) return systemError();
    bytes = bytes.sliced(static_cast<qsizetype>(put));
  }
  return Done();
}

/// Renames an open file over the target. The newer way goes also where other programs have the target open, if they let
/// it be deleted; not every file system knows it.
FileResult<> renameOver(const FileHandle& file, const std::wstring& target) {
  // As FILE_RENAME_INFO_EX, which has its flags at the place of the truth value, and these numbers:
  constexpr auto FileRenameInfoEx = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
  constexpr DWORD ReplaceIfExists = 1;
  constexpr DWORD PosixSemantics = 2;
  constexpr size_t Head = offsetof(FILE_RENAME_INFO, FileName);
  const size_t length = target.size() * sizeof(wchar_t);
  std::vector<quint64> room((Head + length + sizeof(wchar_t)) / sizeof(quint64) + 1);
  auto* const info = reinterpret_cast<FILE_RENAME_INFO*>(room.data());
  const auto size = static_cast<DWORD>(Head + length + sizeof(wchar_t));
  info->FileNameLength = static_cast<DWORD>(length);
  std::memcpy(reinterpret_cast<char*>(info) + Head, target.c_str(), length);

  const DWORD flags = ReplaceIfExists | PosixSemantics;
  std::memcpy(info, &flags, sizeof(flags));
  const auto renamed = called(::SetFileInformationByHandle(handleOf(file), FileRenameInfoEx, info, size));
  constexpr auto Unknown = std::to_array<int>({ERROR_INVALID_PARAMETER, ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED});
  if (renamed || std::find(Unknown.begin(), Unknown.end(), renamed.error().number) == Unknown.end()) return renamed;
  const DWORD older = TRUE;
  std::memcpy(info, &older, sizeof(older));
  return called(::SetFileInformationByHandle(handleOf(file), FileRenameInfo, info, size));
}

}  // namespace

FileResult<Turn> Turn::take(const QString& native, AtLink atLink, Readers readers) {
  const auto target = atLink == AtLink::Follow ? followLinks(native) : native;
  if (!target) return target.error();
  const QString temporary = *target + TemporaryEnding;
  const auto path = widePath(temporary);
  if (!path) return path.error();

  auto file = patiently([&] { return make(*path); }, isHeld);
  if (!file) return withoutTurn(temporary, file.error());
  Turn turn(*target, temporary, std::move(*file));
  if (readers == Readers::Owner) {
    if (const auto kept = keepToOwner(turn.lock_); !kept) return kept.error();
  }
  auto present = patiently([&] { return OpenFile::open(*target, AtLink::Replace); }, isHeld);
  if (!present && !present.isMissing()) return present.error();
  if (present) turn.present_ = std::move(*present);
  return turn;
}

Turn::~Turn() {
  if (lock_.isOpen() && !temporary_.isEmpty()) (void)removeAtClose(lock_);
}

FileResult<> Turn::replace(QByteArrayView bytes, const OpenFile* like) {
  const auto target = widePath(target_);
  if (!target) return target.error();
  FileResult<> done = Done();
  if (present_) done = patiently([&] { return checkWritable(*target, *present_); }, isHeld);
  if (!done) return done;
  if (like) {
    done = copyAccess(lock_, *like);
  } else if (present_) {
    done = keepAttributes(lock_, *present_);
  }
  if (done) done = writeAll(lock_, bytes);
  if (done) done = called(::FlushFileBuffers(handleOf(lock_)));
  if (!done) return done;
  present_.reset();  // while it is open, the target can't be replaced everywhere
  // The file may be written, as was seen: access is denied while another program has it open.
  done = patiently([&] { return renameOver(lock_, *target); },
                   [](const FileError& error) { return isHeld(error) || error.number == ERROR_ACCESS_DENIED; });
  if (!done) return done;
  temporary_.clear();
  lock_ = FileHandle();
  return done;
}

}  // namespace platform
