#include <chrono>
#include <memory>
#include <thread>

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "controls/list_box.h"
#include "figures.h"
#include "mainwindows/workspace.h"
#include "open_editor.h"
#include "progressbar/progress_bar.h"
#include "toolwindow/tool_window.h"

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

/// Drags so many objects, the first one from the preview's middle, and gives them up when the last frame has been
/// measured.
class Drag : public QObject {
 public:
  Drag(OpenEditor& editor, size_t count) : form_(editor.form) {
    const auto& objects = form_.account().objects;
    const size_t middle = objects.size() / 2;
    from_ = objects[middle].place.center();
    form_.Workspace->installEventFilter(this);
    controls::ListBox& list = form_.toolWindow()->objects();
    list.SetListIndex(list.row(list.findItems(objects[middle].section, Qt::MatchExactly).first()));
    for (size_t i = 0; static_cast<size_t>(form_.session().members().size()) + 1 < count; ++i) {
      const renderer::DrawnObject& object = objects.at((middle + i) % objects.size());
      if (object.owner.isEmpty()) form_.session().toggleMember(object.section);
    }
    send(QEvent::MouseButtonPress, from_);
    // Once in a drag the pictures that come to lie over an edge are decoded.
    moveTo(Places);
    awaitPaint();
  }
  ~Drag() override {
    form_.session().settle();
    form_.session().endGroup();
  }
  Q_DISABLE_COPY_MOVE(Drag)

  /// From the mouse move to the presented window.
  void frame(benchmark::State& state) {
    place_ = (place_ + 1) % Places;
    moveTo(place_);
    awaitFrame(state);
    awaitPaint();
  }

 protected:
  bool eventFilter(QObject* /*preview*/, QEvent* event) override {
    shown_ = shown_ || event->type() == QEvent::Paint;
    return false;
  }

 private:
  static constexpr int DragDistance = 4;
  static constexpr int Places = 100;

  void moveTo(int place) {
    shown_ = false;
    send(QEvent::MouseMove, from_ + QPoint(DragDistance + place, 0));
  }
  void awaitPaint() const {
    while (!shown_) QApplication::processEvents();
  }
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

void registerDrag(const char* name, const std::shared_ptr<OpenEditor>& editor, size_t objects,
                  const std::shared_ptr<PlainPreview>& preview, const SampleScreen& screen) {
  registerBenchmark(
      {name, 1.5, Held::AtMost},
      [editor, objects](benchmark::State& state) {
        editor->form.queue().draw();
        Drag drag(*editor, objects);
        for ([[maybe_unused]] auto turn : state) drag.frame(state);
      },
      [preview, blend = blending(screen)](benchmark::State& state) {
        for ([[maybe_unused]] auto turn : state) {
          awaitFrame(state);
          blend(preview->surface);
          preview->repaint(preview->surface.takeDirty());
        }
      });
}

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
  constexpr size_t Several = 10;
  registerDrag("ShownDrag", editor, 1, preview, *screen);
  registerDrag("DragOfTen", editor, Several, preview, *screen);
  const auto whole = std::make_shared<OpenEditor>(screen->theme(), screen->name());
  whole->showWholeTheme();
  registerDrag("DragBeside", whole, Several, preview, *screen);
}

}  // namespace bench
