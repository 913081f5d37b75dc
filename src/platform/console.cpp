#include "platform/console.h"

#include <algorithm>
#include <array>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>

#include "platform/windows_api.h"

#endif

namespace platform {

namespace {

bool steers(QChar letter) {
  constexpr std::array<QChar::Category, 4> Steering{QChar::Other_Control, QChar::Other_Format, QChar::Separator_Line,
                                                    QChar::Separator_Paragraph};
  return std::find(Steering.begin(), Steering.end(), letter.category()) != Steering.end();
}

}  // namespace

#ifdef Q_OS_WIN

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
  ::SetConsoleOutputCP(CP_UTF8);
}

#else

QStringList commandLineWords(int argc, char** argv) {
  QStringList words;
  for (int word = 0; word < argc; ++word) words += QString::fromLocal8Bit(argv[word]);
  return words;
}

void prepareOutput() {}

#endif

QString onOneLine(QString text) {
  std::replace_if(text.begin(), text.end(), steers, QChar(u'?'));
  return text;
}

void print(std::FILE* stream, const QString& text) {
  std::fprintf(stream, "%s\n", text.toUtf8().constData());
}

}  // namespace platform
