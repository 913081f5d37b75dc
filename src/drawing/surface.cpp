#include "drawing/surface.h"

#include <algorithm>
#include <utility>

#include <QFontMetricsF>
#include <QPainter>

#include "drawing/fonts.h"

namespace drawing {

namespace {

constexpr int DotsPerMeter = 3780;  // 96 per inch
constexpr float StartPoints = 8.25F;

QFont fontOf(const QString& face, float points) {
  QFont font = faceFont(face);
  font.setPointSizeF(points);
  return font;
}

}  // namespace

Surface::Surface() : ForeColor(Qt::black), image_(Width, Height, QImage::Format_RGB32) {
  image_.setDotsPerMeterX(DotsPerMeter);
  image_.setDotsPerMeterY(DotsPerMeter);
  image_.fill(Qt::black);
  SetFontName(QStringLiteral("MS Sans Serif"));
  SetFontSize(StartPoints);
}

void Surface::putBack(const QImage& picture) {
  image_ = picture;
  mark(image_.rect());
}

void Surface::wipe(const QColor& color) {
  image_.fill(color);
  mark(image_.rect());
}

void Surface::drawImageRect(const QImage& picture, int x, int y, int w, int h) {
  const QRectF target(x, y, w, h);
  const QRectF shown = target & QRectF(image_.rect());
  if (picture.isNull() || w <= 0 || h <= 0 || shown.isEmpty()) return;
  const bool asItIs = picture.width() == w && picture.height() == h;
  const bool isCopied = asItIs && picture.format() == QImage::Format_RGB32;
  QImage source = isCopied ? picture : picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  source.setDevicePixelRatio(1);
  QPainter painter(&image_);
  if (asItIs) {
    painter.drawImage(x, y, source);
  } else {
    painter.setClipRect(image_.rect());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, source);
  }
  mark(shown.toRect());
}

void Surface::drawImage(const QImage& picture, int x, int y) {
  drawImageRect(picture, x, y, picture.width(), picture.height());
}

void Surface::SetFontName(const QString& face) {
  if (face != fontName_) face_ = nullptr;
  fontName_ = face;
}

void Surface::SetFontSize(float points) {
  if (!(points > 0)) return;
  const float size = std::min(points, static_cast<float>(LargestPoints));
  if (size != fontSize_) face_ = nullptr;
  fontSize_ = size;
}

void Surface::setPen(const Pen& pen) {
  CurrentX = pen.x;
  CurrentY = pen.y;
  ForeColor = pen.color;
  SetFontName(pen.face);
  SetFontSize(pen.points);
}

Surface::Face& Surface::face() const {
  constexpr std::size_t MostFaces = 64;
  if (face_ != nullptr) return *face_;
  if (faces_.size() >= MostFaces) faces_.clear();
  const auto [place, isNew] = faces_.try_emplace({fontName_, fontSize_});
  face_ = &place->second;
  if (isNew) {
    face_->font = fontOf(fontName_, fontSize_);
    const QFontMetricsF metrics(face_->font, &image_);
    face_->ascent = metrics.ascent();
    face_->height = metrics.height();
  }
  return *face_;
}

Surface::Layout Surface::layoutOf(const QString& text) const {
  constexpr qsizetype MostTexts = 256;
  constexpr qsizetype LongestText = 200;
  QHash<QString, Layout>& texts = face().texts;
  const auto known = texts.constFind(text);
  if (known != texts.constEnd()) return *known;
  const QFontMetricsF metrics(face().font, &image_);
  const Layout layout{metrics.horizontalAdvance(text), metrics.boundingRect(text)};
  if (texts.size() >= MostTexts) texts.clear();
  if (text.size() <= LongestText) texts.insert(text, layout);
  return layout;
}

double Surface::TextWidth(const QString& text) const {
  return layoutOf(text).width;
}

double Surface::TextHeight(const QString&) const {
  return face().height;
}

void Surface::Print(const QString& text) {
  const QPointF baseline(CurrentX, static_cast<double>(CurrentY) + face().ascent);
  // Antialiasing may reach one pixel further on each side.
  const QRectF ink = layoutOf(text).ink.translated(baseline).adjusted(-1, -1, 1, 1) & QRectF(image_.rect());
  if (ink.isEmpty()) return;
  QPainter painter(&image_);
  painter.setFont(face().font);
  painter.setPen(ForeColor);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.drawText(baseline, text);
  mark(ink.toAlignedRect());
}

QRect Surface::takeDirty() {
  return std::exchange(dirty_, QRect());
}

void Surface::mark(const QRect& rectangle) {
  dirty_ |= rectangle & image_.rect();
}

}  // namespace drawing
