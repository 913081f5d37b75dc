#include "toolbar/tip_window.h"

#include <algorithm>

#include <QApplication>
#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QStyle>

#include "drawing/fonts.h"
#include "toolbar/colours.h"

namespace toolbar {

namespace {

constexpr int TextPixels = 11;
constexpr int Margin = 5;
constexpr int Gap = 4;
constexpr int SymbolSide = 16;
constexpr int Roundness = 7;
constexpr int StemLength = 12;
constexpr int StemWidth = 10;
constexpr int StemPlace = 18;
constexpr int BelowPointer = 20;
constexpr int WidestText = 400;

QFont titleFont() {
  QFont font = drawing::controlFont(QStringLiteral("MS Sans Serif"), TextPixels);
  font.setBold(true);
  return font;
}

QIcon iconOf(int number) {
  constexpr QStyle::StandardPixmap Icons[] = {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
                                              QStyle::SP_MessageBoxCritical};
  if (number < 1 || number > std::ssize(Icons)) return {};
  return QApplication::style()->standardIcon(Icons[number - 1]);
}

}  // namespace

TipWindow::TipWindow(const ToolTip& tip, QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput), tip_(tip) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  setFont(drawing::controlFont(QStringLiteral("MS Sans Serif"), TextPixels));
  setAccessibleName(tip.Text);
  // Not every window system cuts a window's picture by its mask.
  setAttribute(Qt::WA_TranslucentBackground, tip_.isBalloon);
  const int stem = tip_.isBalloon ? StemLength : 0;
  resize(contents() + QSize(2 * Margin, 2 * Margin + stem));
}

QSize TipWindow::contents() const {
  QSize size =
      fontMetrics().boundingRect(QRect(0, 0, WidestText, 0), Qt::TextWordWrap | Qt::TextExpandTabs, tip_.Text).size();
  if (!tip_.title.isEmpty()) {
    const int icon = tip_.Icon == 0 ? 0 : SymbolSide + Gap;
    size.setWidth(std::max(size.width(), icon + QFontMetrics(titleFont()).horizontalAdvance(tip_.title)));
    size.rheight() += SymbolSide + Gap;
  }
  return size + QSize(1, 1);
}

QRect TipWindow::body() const {
  if (!tip_.isBalloon) return rect();
  return isAbove_ ? rect().adjusted(0, 0, 0, -StemLength) : rect().adjusted(0, StemLength, 0, 0);
}

QPainterPath TipWindow::outline() const {
  const QRectF frame = QRectF(body()).adjusted(0.5, 0.5, -0.5, -0.5);
  QPainterPath path;
  if (!tip_.isBalloon) {
    path.addRect(frame);
    return path;
  }
  path.addRoundedRect(frame, Roundness, Roundness);
  const double base = isAbove_ ? frame.bottom() : frame.top();
  const double end = isAbove_ ? height() - 0.5 : 0.5;
  QPainterPath stem;
  stem.addPolygon(QPolygonF({QPointF(stem_, base), QPointF(stem_, end), QPointF(stem_ + StemWidth, base)}));
  stem.closeSubpath();
  return path.united(stem);
}

void TipWindow::showAt(const QPoint& pointer) {
  const QRect screen = parentWidget()->screen()->availableGeometry();
  const int distance = tip_.isBalloon ? 2 : BelowPointer;
  isAbove_ = pointer.y() + distance + height() > screen.bottom();
  const int y = isAbove_ ? pointer.y() - 2 - height() : pointer.y() + distance;
  const int wanted = tip_.isBalloon ? pointer.x() - StemPlace : pointer.x();
  const int x = std::max(screen.left(), std::min(wanted, screen.right() - width()));
  stem_ = std::clamp(pointer.x() - x, Roundness, std::max(Roundness, width() - StemWidth - Roundness));
  move(x, y);
  if (tip_.isBalloon) {
    QBitmap shape(size());
    shape.clear();
    QPainter painter(&shape);
    painter.fillPath(outline(), Qt::color1);
    painter.strokePath(outline(), QPen(Qt::color1));
    painter.end();
    setMask(shape);
  }
  show();
}

void TipWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(QColor(TranslateColor(tip_.ForeColor)));
  painter.fillPath(outline(), QColor(TranslateColor(tip_.BackColor)));
  painter.drawPath(outline());
  QRect area = body().adjusted(Margin, Margin, -Margin, -Margin);
  if (!tip_.title.isEmpty()) {
    QRect title = area;
    title.setHeight(SymbolSide);
    if (tip_.Icon != 0) {
      iconOf(tip_.Icon).paint(&painter, QRect(title.topLeft(), QSize(SymbolSide, SymbolSide)));
      title.setLeft(title.left() + SymbolSide + Gap);
    }
    painter.setFont(titleFont());
    painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, tip_.title);
    painter.setFont(font());
    area.setTop(area.top() + SymbolSide + Gap);
  }
  painter.drawText(area, Qt::TextWordWrap | Qt::TextExpandTabs, tip_.Text);
}

}  // namespace toolbar
