#include "mainwindows/preview_naming.h"

#include <chrono>

#include <QApplication>

#include "mainwindows/main_window.h"
#include "mainwindows/preview_picking.h"
#include "mainwindows/workspace.h"

namespace mainwindows {
namespace {

using namespace std::chrono_literals;

constexpr auto PointerRestTime = 500ms;

}  // namespace

PreviewNaming::PreviewNaming(Form1& form, const PreviewPicking& picking) : form_(form), picking_(picking) {
  rest_.setSingleShot(true);
  rest_.setInterval(PointerRestTime);
  rest_.callOnTimeout([this] { name(); });
}

void PreviewNaming::pointerAt(const QPoint& place) {
  stop();
  place_ = place;
  rest_.start();
}

void PreviewNaming::stop() {
  rest_.stop();
  if (shown_) form_.Workspace->setHandLabel({});
  shown_ = false;
}

void PreviewNaming::name() {
  const bool covered = QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr;
  if (!form_.session().isOpen() || covered) return;
  if (form_.queue().busy()) return rest_.start();  // what will lie there isn't known yet
  const auto [row, below] = picking_.nextAt(place_, form_.account(), form_.session().objects());
  if (row < 0) return;
  const QString object = form_.session().objects().List(row);
  const QString more = below == 0 ? QString() : QStringLiteral(", %1 more below").arg(below);
  form_.Workspace->setHandLabel(object + more, place_);
  shown_ = true;
}

}  // namespace mainwindows
