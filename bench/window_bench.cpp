#include <memory>

#include <QPaintEvent>
#include <QPainter>

#include "figures.h"
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
}

}  // namespace bench
