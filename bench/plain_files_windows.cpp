#include <algorithm>

#include <QDir>

#include "plain_files.h"
#include "platform/paths.h"
#include "platform/windows_api.h"

// The linker takes __wrap___imp_NAME for the place that holds the address of the function NAME of a library of the
// system, and __real___imp_NAME for the true place.

namespace {

std::vector<QString>* opened = nullptr;  // by their whole paths, while a work is watched

std::wstring wideOf(const QString& native) {
  return QDir::toNativeSeparators(native).toStdWString();
}

HANDLE openPlainly(const std::wstring& path, DWORD access, DWORD how) {
  return ::CreateFileW(path.c_str(), access, FILE_SHARE_READ, nullptr, how, FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

extern "C" {
extern decltype(&::CreateFileW) __real___imp_CreateFileW;
static HANDLE WINAPI watchedCreateFileW(LPCWSTR path, DWORD access, DWORD shared, LPSECURITY_ATTRIBUTES rights,
                                        DWORD how, DWORD flags, HANDLE model) {
  const HANDLE file = __real___imp_CreateFileW(path, access, shared, rights, how, flags, model);
  const bool reads = (access & (GENERIC_READ | FILE_READ_DATA)) != 0;
  if (opened != nullptr && reads && file != INVALID_HANDLE_VALUE) opened->push_back(QString::fromWCharArray(path));
  return file;
}
decltype(&::CreateFileW) __wrap___imp_CreateFileW = watchedCreateFileW;
}

namespace bench {

std::vector<QString> readingsOf(const QStringList& files, const std::function<void()>& work) {
  std::vector<QString> paths;
  opened = &paths;
  work();
  opened = nullptr;
  std::vector<QString> readings;
  for (const QString& path : paths) {
    const auto isIt = [&](const QString& file) {
      const QString native = QDir::toNativeSeparators(platform::nativePath(file));
      return path.endsWith(native, Qt::CaseInsensitive);
    };
    const auto found = std::find_if(files.begin(), files.end(), isIt);
    if (found != files.end()) readings.push_back(*found);
  }
  return readings;
}

QByteArray readPlainly(const QString& native) {
  const HANDLE file = openPlainly(wideOf(native), GENERIC_READ, OPEN_EXISTING);
  LARGE_INTEGER size{};
  ::GetFileSizeEx(file, &size);
  QByteArray bytes(size.QuadPart, Qt::Uninitialized);
  DWORD got = 0;
  ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
  ::CloseHandle(file);
  if (static_cast<qsizetype>(got) != bytes.size()) qFatal("can't read the file");
  return bytes;
}

void writePlainly(const QString& native, const QByteArray& bytes) {
  const std::wstring path = wideOf(native);
  const std::wstring fresh = path + L".new";
  const HANDLE file = openPlainly(fresh, GENERIC_WRITE, CREATE_NEW);
  DWORD put = 0;
  const bool written = ::WriteFile(file, bytes.constData(), static_cast<DWORD>(bytes.size()), &put, nullptr) != 0 &&
                       ::FlushFileBuffers(file) != 0;
  ::CloseHandle(file);
  if (!written || ::MoveFileExW(fresh.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) == 0) {
    qFatal("can't write the file");
  }
}

}  // namespace bench
