#include <algorithm>
#include <fcntl.h>
#include <io.h>

#include "platform/console.h"
#include "platform/file_handle.h"
#include "platform/windows_api.h"

namespace platform {
namespace {

constexpr qsizetype MostAtOnce = 8192;  // letters that every console takes

HANDLE handleOf(std::FILE* stream) {
  return ::GetStdHandle(stream == stderr ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
}

bool leadsNowhere(HANDLE handle) {
  return handle == nullptr || handle == INVALID_HANDLE_VALUE;
}

bool isConsole(HANDLE handle) {
  DWORD mode = 0;
  return !leadsNowhere(handle) && ::GetConsoleMode(handle, &mode) != 0;
}

/// As letters: bytes would be read in the console's own code page.
void writeTo(HANDLE console, const QString& text) {
  for (qsizetype from = 0; from < text.size();) {
    qsizetype count = std::min(MostAtOnce, text.size() - from);
    if (from + count < text.size() && text[from + count - 1].isHighSurrogate()) --count;
    ::WriteConsoleW(console, text.utf16() + from, static_cast<DWORD>(count), nullptr, nullptr);
    from += count;
  }
}

/// The console is left again: Ctrl+C in it would end the program.
void writeToConsoleOfCaller(const QString& text) {
  if (::AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
  {
    const FileHandle console(reinterpret_cast<qintptr>(::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                                     OPEN_EXISTING, 0, nullptr)));
    if (console.isOpen()) writeTo(reinterpret_cast<HANDLE>(console.value()), text);
  }
  ::FreeConsole();
}

}  // namespace

/// Taken from the system: `argv` lacks the letters outside the code page.
QStringList commandLineWords(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const wide = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  QStringList words;
  for (int word = 0; word < count; ++word) words += QString::fromWCharArray(wide[word]);
  ::LocalFree(wide);
  return words;
}

void prepareOutput() {
  for (std::FILE* const stream : {stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
}

bool isTerminal(std::FILE* stream) {
  return isConsole(handleOf(stream));
}

void write(std::FILE* stream, const QString& text) {
  const HANDLE handle = handleOf(stream);
  if (leadsNowhere(handle)) return writeToConsoleOfCaller(text);
  if (isConsole(handle)) return writeTo(handle, text);
  std::fputs(text.toUtf8().constData(), stream);
}

}  // namespace platform
