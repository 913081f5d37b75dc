#include <memory>

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include "figures.h"
#include "mainwindows/main_events.h"
#include "mainwindows/main_window.h"
#include "mainwindows/open_theme_dialog.h"
#include "platform/paths.h"
#include "sample_screens.h"

namespace bench {
namespace {

/// The program's main window with a theme of the sample open in it.
struct OpenEditor {
  explicit OpenEditor(const SampleScreen& screen)
      : form({state, boxes, graphics, {platform::programPath(settings.path())}}) {
    form.config.setGameFolder(platform::programPath(game.path()) + u'\\');
    mainwindows::connectEvents(form);
    form.show();
    QTimer::singleShot(0, &form, [&screen] {
      auto& dialog = dynamic_cast<mainwindows::Form3&>(*QApplication::activeModalWidget());
      dialog.List1->SetListIndex(dialog.List1->row(dialog.List1->findItems(screen.theme(), Qt::MatchExactly).first()));
      dialog.Command1->click();
    });
    Q_EMIT form.ToolBar->Click(1);
    form.toolWindow->Combo1->SetText(screen.name());
    QApplication::processEvents();
  }

  CopiedSample game;
  QTemporaryDir settings;
  themefiles::ModuleState state;
  support::ScriptedDialogs boxes;
  drawing::Graphics graphics;
  mainwindows::Form1 form;
};

/// Shows a surface, and does nothing else.
class PlainPreview : public QWidget {
 public:
  PlainPreview() {
    setFixedSize(drawing::Surface::Width, drawing::Surface::Height);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }
  drawing::Surface Surface;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(0, 0, Surface.image());
  }
};

}  // namespace

void registerShownScreen(const std::shared_ptr<SampleScreen>& screen) {
  const auto editor = std::make_shared<OpenEditor>(*screen);
  const auto preview = std::make_shared<PlainPreview>();
  preview->show();
  QApplication::processEvents();
  const auto draw = [editor](const QSize& bar) {
    return [editor, bar](benchmark::State& state) {
      editor->form.ProgressBar1->resize(bar);
      for ([[maybe_unused]] auto turn : state) {
        editor->form.Pictures.clear();
        editor->form.queue.draw();
        QApplication::processEvents();
      }
    };
  };
  const QSize shown = editor->form.ProgressBar1->size();
  registerBenchmark({"ProgressBar", 1.02, Held::AtMost}, draw(shown), draw(QSize(0, 0)));
  registerBenchmark({"ShownScreen", 1.25, Held::AtMost}, draw(shown),
                    [preview, pictures = screen->pictures()](benchmark::State& state) {
                      for ([[maybe_unused]] auto turn : state) {
                        for (const Picture& picture : pictures) drawPlainly(picture, preview->Surface);
                        preview->repaint(preview->Surface.takeDirty());
                      }
                    });
}

}  // namespace bench
