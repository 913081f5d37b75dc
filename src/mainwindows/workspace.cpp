#include "mainwindows/workspace.h"

#include <algorithm>
#include <cmath>

#include <QAccessibleWidget>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "drawing/system_colours.h"

namespace mainwindows {
namespace {

constexpr int BlinkInterval = 100;        // ms
constexpr quint32 MarkBorder = 0xFFFFFF;  // until the first blink
constexpr quint32 MarkDark = 0x0000C0;    // fill colour
constexpr quint32 MarkLight = 0x8080FF;   // back colour
constexpr quint32 GuideColor = 0xFFFF00;
constexpr quint32 LabelColor = 0xE1FFFF;
constexpr QSize LabelMargin(10, 4);
constexpr QPoint LabelOffset(12, 20);
constexpr double FarAway = 1 << 20;  // pixels: beyond any screen, and safe to reckon with

/// A half goes to the even neighbour, as everywhere in a theme.
int pixel(double length) {
  return static_cast<int>(std::nearbyint(std::clamp(length, -FarAway, FarAway)));
}

QRect placeOf(const editing::GuideLine& line) {
  if (line.upright) return {QPoint(line.at, line.from), QPoint(line.at, line.to)};
  return {QPoint(line.from, line.at), QPoint(line.to, line.at)};
}

class AccessiblePreview : public QAccessibleWidget {
 public:
  explicit AccessiblePreview(QWidget& preview) : QAccessibleWidget(&preview, QAccessible::Graphic) {}
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
  auto* const preview = qobject_cast<Workspace*>(object);
  return preview == nullptr ? nullptr : new AccessiblePreview(*preview);
}

}  // namespace

Workspace::Workspace(QWidget* parent)
    : QWidget(parent), pacer_([this] { Refresh(); }), borderColor_(drawing::colorOf(MarkBorder)) {
  setFixedSize(drawing::Surface::Width, drawing::Surface::Height);
  QAccessible::installFactory(makeInterface);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  handLabel_.setTextFormat(Qt::PlainText);
  timer1_.setObjectName(QStringLiteral("Timer1"));
  timer1_.setInterval(BlinkInterval);
  connect(&timer1_, &QTimer::timeout, this, &Workspace::Timer1_Timer);
}

void Workspace::Refresh() {
  const QRect dirty = surface_.takeDirty();
  if (dirty.isEmpty()) return;
  update(dirty.adjusted(-1, -1, 1, 1));  // scaled smoothly, a pixel reaches into its neighbours
  Q_EMIT refreshed();
}

void Workspace::SetLeft(double left) {
  updateMark();
  mark_.moveLeft(left);
  updateMark();
}

void Workspace::SetTop(double top) {
  updateMark();
  mark_.moveTop(top);
  updateMark();
}

void Workspace::SetWidth(double width) {
  updateMark();
  mark_.setWidth(width);
  updateMark();
}

void Workspace::SetHeight(double height) {
  updateMark();
  mark_.setHeight(height);
  updateMark();
}

void Workspace::SetVisible(bool visible) {
  markVisible_ = visible;
  updateMark();
}

void Workspace::setBlinking(bool blinking) {
  if (!blinking) {
    timer1_.stop();
  } else if (!timer1_.isActive()) {
    timer1_.start();
  }
}

void Workspace::Timer1_Timer() {
  borderColor_ = drawing::colorOf(blinkPhase_ ? MarkLight : MarkDark);
  blinkPhase_ = !blinkPhase_;
  updateMark();
}

QRect Workspace::markRect() const {
  const int left = pixel(mark_.left());
  const int top = pixel(mark_.top());
  return {left, top, std::max(pixel(mark_.width()), 1), std::max(pixel(mark_.height()), 1)};
}

/// Where the label of a place stands: below it on its right, above it where there is no room below, and inside the
/// preview.
QRect Workspace::labelRect(const QPoint& place) const {
  QRect label({}, handLabel_.size().toSize() + LabelMargin);
  label.moveTopLeft(place + LabelOffset);
  if (label.bottom() > rect().bottom()) label.moveBottom(place.y() - LabelOffset.y() / 4);
  label.moveLeft(std::clamp(label.left(), 0, std::max(0, width() - label.width())));
  label.moveTop(std::clamp(label.top(), 0, std::max(0, height() - label.height())));
  return label;
}

void Workspace::setHandLabel(const QString& text, const QPoint& place) {
  update(label_);
  if (handLabel_.text() != text) {
    handLabel_.setText(text);
    handLabel_.prepare({}, font());
  }
  label_ = text.isEmpty() ? QRect() : labelRect(place);
  update(label_);
  if (accessibleDescription() != text) setAccessibleDescription(text);
}

void Workspace::setGroupFrames(const std::vector<QRect>& frames) {
  if (frames == groupFrames_) return;
  for (const auto& shown : {groupFrames_, frames}) {
    // Between two pixels of the screen a line reaches over the place's edge.
    for (const QRect& frame : shown) update(frame.adjusted(-1, -1, 1, 1));
  }
  groupFrames_ = frames;
}

void Workspace::setGuideLines(const std::vector<editing::GuideLine>& lines) {
  if (lines == guideLines_) return;
  for (const auto& shown : {guideLines_, lines}) {
    for (const editing::GuideLine& line : shown) update(placeOf(line).adjusted(-1, -1, 1, 1));
  }
  guideLines_ = lines;
}

void Workspace::updateMark() {
  update(markRect().adjusted(-1, -1, 1, 1));
}

void Workspace::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double scale = devicePixelRatioF();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, scale != std::floor(scale));
  painter.setClipRegion(event->region());
  painter.drawImage(QRect(0, 0, drawing::Surface::Width, drawing::Surface::Height), surface_.image());
  paintGroup(painter);
  if (markVisible_) paintMark(painter);
  paintLines(painter);
  if (!label_.isEmpty()) paintLabel(painter);
  if (hasFocus()) paintFocus(painter);
}

void Workspace::paintMark(QPainter& painter) const {
  const QRect outer = markRect();
  const QRect edges[] = {{outer.left(), outer.top(), outer.width(), 1},
                         {outer.left(), outer.bottom(), outer.width(), 1},
                         {outer.left(), outer.top(), 1, outer.height()},
                         {outer.right(), outer.top(), 1, outer.height()}};
  for (const QRect& edge : edges) painter.fillRect(edge, borderColor_);
}

/// Dashes of two colours show on any picture.
void Workspace::paintGroup(QPainter& painter) const {
  for (const QPen& pen : {QPen(Qt::white), QPen(Qt::black, 1, Qt::DashLine)}) {
    painter.setPen(pen);
    for (const QRect& frame : groupFrames_) painter.drawRect(frame.adjusted(0, 0, -1, -1));
  }
}

/// At any scale a line is one pixel of the screen wide.
void Workspace::paintLines(QPainter& painter) const {
  QPen pen(drawing::colorOf(GuideColor), 1);
  pen.setCosmetic(true);
  painter.setPen(pen);
  for (const editing::GuideLine& line : guideLines_) {
    const QRect place = placeOf(line);
    painter.drawLine(place.topLeft(), place.bottomRight());
  }
}

void Workspace::paintLabel(QPainter& painter) const {
  painter.fillRect(label_, Qt::black);
  painter.fillRect(label_.adjusted(1, 1, -1, -1), drawing::colorOf(LabelColor));
  painter.setPen(Qt::black);
  painter.drawStaticText(label_.topLeft() + QPoint(LabelMargin.width(), LabelMargin.height()) / 2, handLabel_);
}

/// Dots of two colours show on any picture.
void Workspace::paintFocus(QPainter& painter) const {
  const QRect edge = rect().adjusted(0, 0, -1, -1);
  for (const QPen& pen : {QPen(Qt::white), QPen(Qt::black, 1, Qt::DotLine)}) {
    painter.setPen(pen);
    painter.drawRect(edge);
  }
}

void Workspace::mouseMoveEvent(QMouseEvent* event) {
  Q_EMIT MouseMove(static_cast<float>(event->position().x()), static_cast<float>(event->position().y()));
  event->ignore();
}

void Workspace::contextMenuEvent(QContextMenuEvent* event) {
  Q_EMIT menuAsked(event->globalPos());
}

void Workspace::keyPressEvent(QKeyEvent* event) {
  // The toolkit knows only the Menu key.
  if (event->key() != Qt::Key_F10 || event->modifiers() != Qt::ShiftModifier) return QWidget::keyPressEvent(event);
  const QPoint place = visibleRegion().boundingRect().center();
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, place, mapToGlobal(place));
  QCoreApplication::sendEvent(this, &asked);
}

}  // namespace mainwindows
