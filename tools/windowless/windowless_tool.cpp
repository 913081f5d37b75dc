#include "windowless_tool.h"

#include <QGuiApplication>

#include "platform/failure.h"

namespace windowless {

void print(std::FILE* stream, const QString& text) {
  std::fprintf(stream, "%s\n", text.toLocal8Bit().constData());
}

int runTool(const QString& name, int argc, char** argv, const std::function<int(const QStringList& words)>& run) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int programOnly =
      1;  // the toolkit's own options stay away from the command line, the choice of a platform among them
  const QGuiApplication application(programOnly, argv);
  QStringList words;
  for (int word = 0; word < argc; ++word) words += QString::fromLocal8Bit(argv[word]);
  try {
    return run(words);
  } catch (const platform::Failure& failure) {
    print(stderr, name + QStringLiteral(": ") + failure.description());
    return WrongInput;
  }
}

}  // namespace windowless
