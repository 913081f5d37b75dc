#include <chrono>
#include <memory>
#include <thread>

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "figures.h"
#include "mainwindows/workspace.h"
#include "open_editor.h"
#include "progressbar/progress_bar.h"

namespace bench {
namespace {

/// Shows a surface, and does nothing else.
class PlainPreview : public QWidget {
 public:
  PlainPreview() {
    setFixedSize(drawing::Surface::Width, drawing::Surface::Height);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }
  drawing::Surface surface;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(0, 0, surface.image());
  }
};

/// Lets the time pass until a frame that is asked for now is due.
void awaitFrame(benchmark::State& state) {
  constexpr std::chrono::milliseconds FrameTime(16);
  state.PauseTiming();
  std::this_thread::sleep_for(FrameTime);
  state.ResumeTiming();
}

/// Drags an object of the preview's middle, and gives it up when the last frame has been measured.
class Drag : public QObject {
 public:
  explicit Drag(OpenEditor& editor) : form_(editor.form) {
    const auto& objects = form_.account().objects;
    from_ = objects[objects.size() / 2].place.center();
    form_.Workspace->installEventFilter(this);
    send(QEvent::MouseButtonPress, from_);
  }
  ~Drag() override { form_.session().settle(); }
  Q_DISABLE_COPY_MOVE(Drag)

  /// From the mouse move to the presented window.
  void frame(benchmark::State& state) {
    constexpr int Places = 100;
    shown_ = false;
    place_ = (place_ + 1) % Places;
    send(QEvent::MouseMove, from_ + QPoint(DragDistance + place_, 0));
    awaitFrame(state);
    while (!shown_) QApplication::processEvents();
  }

 protected:
  bool eventFilter(QObject* /*preview*/, QEvent* event) override {
    shown_ = shown_ || event->type() == QEvent::Paint;
    return false;
  }

 private:
  static constexpr int DragDistance = 4;

  void send(QEvent::Type type, const QPoint& place) {
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, form_.Workspace->mapToGlobal(place), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form_.Workspace, &event);
  }

  mainwindows::Form1& form_;
  QPoint from_;
  int place_ = 0;
  bool shown_ = false;
};

}  // namespace

void registerShownScreen(const std::shared_ptr<SampleScreen>& screen) {
  const auto editor = std::make_shared<OpenEditor>(screen->theme(), screen->name());
  const auto preview = std::make_shared<PlainPreview>();
  preview->show();
  QApplication::processEvents();
  const auto draw = [editor](const QSize& bar) {
    return [editor, bar](benchmark::State& state) {
      editor->form.ProgressBar1->resize(bar);
      for ([[maybe_unused]] auto turn : state) {
        editor->form.forgetPictures();
        editor->form.queue().draw();
        QApplication::processEvents();
      }
    };
  };
  const QSize shown = editor->form.ProgressBar1->size();
  registerBenchmark({"ProgressBar", 1.02, Held::AtMost}, draw(shown), draw(QSize(0, 0)));
  registerBenchmark({"ShownScreen", 1.25, Held::AtMost}, draw(shown),
                    [preview, pictures = screen->pictures()](benchmark::State& state) {
                      for ([[maybe_unused]] auto turn : state) {
                        for (const Picture& picture : pictures) drawPlainly(picture, preview->surface);
                        preview->repaint(preview->surface.takeDirty());
                      }
                    });
  registerBenchmark(
      {"ShownDrag", 1.5, Held::AtMost},
      [editor](benchmark::State& state) {
        editor->form.queue().draw();
        Drag drag(*editor);
        for ([[maybe_unused]] auto turn : state) drag.frame(state);
      },
      [preview, blend = blending(*screen)](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) {
          awaitFrame(state);
          blend(preview->surface);
          preview->repaint(preview->surface.takeDirty());
        }
      });
}

}  // namespace bench
