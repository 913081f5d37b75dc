#include <unistd.h>

#include "platform/console.h"

namespace platform {

QStringList commandLineWords(int argc, char** argv) {
  QStringList words;
  for (int word = 0; word < argc; ++word) words += QString::fromLocal8Bit(argv[word]);
  return words;
}

void prepareOutput() {}

bool isTerminal(std::FILE* stream) {
  return ::isatty(::fileno(stream)) != 0;
}

void write(std::FILE* stream, const QString& text) {
  std::fputs(text.toUtf8().constData(), stream);
}

}  // namespace platform
