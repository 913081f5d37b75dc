#include "mainwindows/loupe.h"

#include <cmath>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include "drawing/system_colours.h"
#include "mainwindows/main_window.h"
#include "mainwindows/workspace.h"

namespace mainwindows {
namespace {

constexpr int ViewSide = 208;  // pixels; each magnification shows a whole number of those of the picture
constexpr int LineHeight = 20;
constexpr int LoupeGap = 8;
constexpr int Least = 2;
constexpr int Most = 8;
constexpr quint32 Outside = 0x808080;  // round the picture

}  // namespace

Loupe::Loupe(Form1& form) : QWidget(&form, Qt::Tool), form_(form), told_(new QLabel(this)) {
  setObjectName(QStringLiteral("Loupe"));
  setWindowTitle(QStringLiteral("Loupe"));
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFixedSize(ViewSide, ViewSide + LineHeight);
  told_->setTextFormat(Qt::PlainText);
  told_->setGeometry(LoupeGap / 2, ViewSide, ViewSide - LoupeGap / 2, LineHeight);
  connect(form.Workspace, &Workspace::MouseMove, this, [this](float X, float Y) {
    lookAt({static_cast<int>(std::floor(X)), static_cast<int>(std::floor(Y))});
  });
  connect(form.Workspace, &Workspace::watched, this, &Loupe::lookAt);
  connect(form.Workspace, &Workspace::refreshed, this, [this] { lookAt(pixel_); });
}

void Loupe::toggle() {
  if (isVisible()) {
    hide();
  } else {
    open();
  }
}

void Loupe::enlarge() {
  if (!isVisible()) return open();
  times_ = times_ == Most ? Least : times_ * 2;
  lookAt(pixel_);
}

/// Opens at the pointer or, without one on the preview, at the mark; beside the main window where there is room.
void Loupe::open() {
  const Workspace& preview = *form_.Workspace;
  const QRect room = form_.screen()->availableGeometry();
  const int right = form_.frameGeometry().right() + LoupeGap;
  move(std::min(right, room.right() - frameGeometry().width() - LoupeGap), form_.geometry().top());
  show();
  if (preview.underMouse()) {
    lookAt(preview.mapFromGlobal(QCursor::pos()));
  } else if (preview.markVisible()) {
    lookAt(preview.markRect().topLeft());
  } else {
    lookAt(preview.rect().center());
  }
}

void Loupe::lookAt(const QPoint& pixel) {
  pixel_ = pixel;
  if (!isVisible()) return;
  tell();
  update();
}

void Loupe::tell() {
  QStringList words{QStringLiteral("X %1, Y %2").arg(pixel_.x()).arg(pixel_.y())};
  const QImage& picture = form_.Workspace->surface().image();
  if (picture.rect().contains(pixel_)) {
    const QColor color = picture.pixelColor(pixel_);
    words += QStringLiteral("%1 %2 %3").arg(color.red()).arg(color.green()).arg(color.blue());
  }
  words += QStringLiteral("%1 x").arg(times_);
  const QString told = words.join(QStringLiteral("   "));
  told_->setText(told);
  if (accessibleDescription() != told) setAccessibleDescription(told);
}

void Loupe::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(0, 0, ViewSide, ViewSide, drawing::colorOf(Outside));
  const QImage& picture = form_.Workspace->surface().image();
  const int pixels = ViewSide / times_;
  const QRect wanted(pixel_ - QPoint(pixels, pixels) / 2, QSize(pixels, pixels));
  const auto placeOf = [&](const QRect& of) {
    return QRect((of.topLeft() - wanted.topLeft()) * times_, of.size() * times_);
  };
  const QRect seen = wanted & picture.rect();
  if (!seen.isEmpty()) painter.drawImage(placeOf(seen), picture, seen);
  // Two frames of two colours round the pixel in the middle show on any picture.
  const QRect middle = placeOf({pixel_, QSize(1, 1)});
  painter.setPen(Qt::black);
  painter.drawRect(middle.adjusted(-2, -2, 1, 1));
  painter.setPen(Qt::white);
  painter.drawRect(middle.adjusted(-1, -1, 0, 0));
}

void Loupe::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) enlarge();
}

void Loupe::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      return hide();
    case Qt::Key_Space:
      return enlarge();
    default:
      return QWidget::keyPressEvent(event);
  }
}

}  // namespace mainwindows
