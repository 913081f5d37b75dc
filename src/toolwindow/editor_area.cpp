#include "toolwindow/editor_area.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include <QGroupBox>
#include <QPushButton>

#include "controls/work_queue.h"
#include "platform/row_order.h"
#include "toolwindow/colour_frame.h"
#include "toolwindow/number_frames.h"
#include "toolwindow/reference_frame.h"
#include "toolwindow/selection_frame.h"

namespace toolwindow {

using themefiles::EditorFrame;

namespace {

template <typename Frame>
ValueFrame* madeFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent) {
  return new Frame(services, placed, parent);
}
template <editing::ReferenceKind Kind>
ValueFrame* madeFrame(const ToolServices& services, PlacedControls& placed, QWidget* parent) {
  return new ReferenceFrame(Kind, services, placed, parent);
}

struct FrameRow {
  EditorFrame frame;
  ValueFrame* (*made)(const ToolServices& services, PlacedControls& placed, QWidget* parent);
};
constexpr auto Frames = std::to_array<FrameRow>({{EditorFrame::Numbers, madeFrame<NumberFrame>},
                                                 {EditorFrame::FloatNumbers, madeFrame<DecimalFrame>},
                                                 {EditorFrame::Selection, madeFrame<SelectionFrame>},
                                                 {EditorFrame::Color, madeFrame<ColorFrame>},
                                                 {EditorFrame::Texture, madeFrame<editing::ReferenceKind::Texture>},
                                                 {EditorFrame::Texts, madeFrame<editing::ReferenceKind::Text>}});
static_assert(platform::inOrder(Frames, &FrameRow::frame, EditorFrame::Texts));

}  // namespace

EditorArea::EditorArea(const ToolServices& services, PlacedControls& placed, QWidget* window)
    : services_(services), Frame1(new QGroupBox(QStringLiteral("Edit Value"), window)) {
  placed.add(*Frame1, &ToolLayout::Frame1, "Frame1");
  // This is also the order of the Tab key: Update comes behind every editor.
  frames_.reserve(Frames.size());
  for (const FrameRow& row : Frames) frames_.push_back(row.made(services, placed, Frame1));
  Command1 = new QPushButton(QStringLiteral("&Update"), window);
  placed.add(*Command1, &ToolLayout::Command1, "Command1");
  hideFrames();
  hide();
  connect(Command1, &QPushButton::clicked, this, &EditorArea::updateWanted);
  for (const ValueFrame* frame : frames_) connect(frame, &ValueFrame::enterPressed, this, &EditorArea::enterPressed);
}

void EditorArea::show(EditorFrame frame) {
  frameOf(frame).show();
  Frame1->show();
  Command1->show();
}

void EditorArea::hideFrames() {
  for (ValueFrame* frame : frames_) frame->hide();
}

void EditorArea::hide() {
  Frame1->hide();
  Command1->hide();
}

bool EditorArea::has(const QWidget* control) const {
  return control != nullptr && (control == Command1 || Frame1->isAncestorOf(control));
}

void EditorArea::pressEnter(QWidget* focus) {
  if (auto* const button = qobject_cast<QPushButton*>(focus)) {
    button->click();
  } else {
    enterPressed();
  }
}

/// Enter in an editor is Update. If the user hasn't changed anything there, it only goes back to the grid.
void EditorArea::enterPressed() {
  const auto touched = [](const ValueFrame* frame) { return frame->touched(); };
  if (std::any_of(frames_.begin(), frames_.end(), touched)) {
    Q_EMIT updateWanted();
  } else {
    Q_EMIT leaveWanted();
  }
}

QString EditorArea::pendingChanges() const {
  for (const ValueFrame* frame : frames_) {
    const QString changes = frame->pendingChanges();
    if (!changes.isEmpty()) return QStringLiteral("not taken over: ") + changes;
  }
  return {};
}

void EditorArea::dropChanges() {
  const QString lost = pendingChanges();
  for (ValueFrame* frame : frames_) frame->forgetChanges();
  if (lost.isEmpty()) return;
  const auto scope = std::make_shared<platform::ReportScope>(services_.session.status());
  services_.session.status().note(lost);
  services_.queue.runOutside([scope] {});
}

editing::Proposal EditorArea::propose(EditorFrame frame) {
  proposing_ = &frameOf(frame);
  return proposing_->proposal();
}

void EditorArea::proposalWritten() {
  if (ValueFrame* const frame = std::exchange(proposing_, nullptr)) frame->forgetChanges();
}

}  // namespace toolwindow
