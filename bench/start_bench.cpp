#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include "controls/look.h"
#include "controls/native_dialogs.h"
#include "drawing/graphics.h"
#include "mainwindows/editor.h"
#include "mainwindows/workspace.h"
#include "platform/paths.h"
#include "themefiles/module_state.h"

namespace {

constexpr int Runs = 30;
constexpr double Reach = 1.5;

/// Ends the program behind the first paint event of a window.
class FirstPaint : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QApplication::quit);
    return QObject::eventFilter(watched, event);
  }
};

int showEmptyWindow() {
  FirstPaint first;
  QWidget window;
  window.setFixedSize(800, 650);
  window.installEventFilter(&first);
  window.show();
  return QApplication::exec();
}

int showEditor(QApplication& application, const QString& settings) {
  FirstPaint first;
  controls::applyLook(application);
  themefiles::ModuleState state;
  controls::NativeDialogs dialogs;
  drawing::Graphics graphics;
  mainwindows::Editor editor({state, dialogs, graphics, {platform::programPath(settings)}});
  editor.form.Workspace->installEventFilter(&first);
  editor.form.show();
  return QApplication::exec();
}

/// Milliseconds from the start of a process to its end behind the first paint.
double timeOf(const QString& program, const QStringList& window) {
  const auto start = std::chrono::steady_clock::now();
  QProcess::execute(program, window);
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + Runs / 2, times.end());
  return times[Runs / 2];
}

}  // namespace

/// From start to first painted window: the editor beside an empty window of the same size, taking turns. Gives 1 when
/// the editor misses its reach.
int main(int argc, char** argv) {
  const QString which = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
  if (which == u"empty" || (which == u"editor" && argc > 2)) {
    QApplication application(argc, argv);
    return which == u"editor" ? showEditor(application, QString::fromLocal8Bit(argv[2])) : showEmptyWindow();
  }
  const QCoreApplication application(argc, argv);
  const QString self = QCoreApplication::applicationFilePath();
  const QTemporaryDir settings;
  const QStringList startEditor{QStringLiteral("editor"), settings.path()};
  QProcess::execute(self, startEditor);  // makes config.ini, as only the very first start does
  std::vector<double> editor;
  std::vector<double> empty;
  for (int run = 0; run < Runs; ++run) {
    editor.push_back(timeOf(self, startEditor));
    empty.push_back(timeOf(self, {QStringLiteral("empty")}));
  }
  const double ratio = median(editor) / median(empty);
  std::printf("start: editor %.1f ms, empty window %.1f ms, ratio %.2f (reach: at most %.2f)\n", median(editor),
              median(empty), ratio, Reach);
  return ratio <= Reach ? 0 : 1;
}
