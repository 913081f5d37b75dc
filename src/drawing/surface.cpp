#include "drawing/surface.h"

#include <algorithm>
#include <utility>

#include <QFontMetricsF>
#include <QPainter>
#include <QScopeGuard>

#include "drawing/fonts.h"

namespace drawing {

namespace {

constexpr int DotsPerMeter = 3780;  // 96 per inch
constexpr float StartPoints = 8.25F;
constexpr qsizetype MostNotedBytes = qsizetype(128) * 1024 * 1024;

QFont fontOf(const QString& face, float points) {
  QFont font = faceFont(face);
  font.setPointSizeF(points);
  return font;
}

void drawStep(QPainter& painter, const DrawnStep& step, const QImage& picture) {
  if (step.picture != 0) return painter.drawImage(step.corner, picture);
  if (!step.font) return painter.fillRect(step.place, step.color);
  painter.setFont(*step.font);
  painter.setPen(step.color);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.drawText(step.corner, step.words);
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
  add({image_.rect(), color, {}, {}, {}, 0});
}

void Surface::drawImageRect(const QImage& picture, int x, int y, int w, int h) {
  const QRectF target(x, y, w, h);
  const QRectF shown = target & QRectF(image_.rect());
  if (picture.isNull() || w <= 0 || h <= 0 || shown.isEmpty()) return;
  const bool asItIs = picture.width() == w && picture.height() == h;
  const bool isCopied = asItIs && picture.format() == QImage::Format_RGB32;
  QImage source = isCopied ? picture : picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  source.setDevicePixelRatio(1);
  if (asItIs) return add({shown.toRect(), {}, target.topLeft(), {}, {}, source.cacheKey()}, source);
  endNoting();
  QPainter painter(&image_);
  painter.setClipRect(image_.rect());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(target, source);
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
  add({ink.toAlignedRect(), ForeColor, baseline, text, face().font, 0});
}

void Surface::drawFrame(DrawnFrame& last, const std::function<void()>& draw) {
  noted_ = Noted();
  const auto end = qScopeGuard([this] { noted_.reset(); });
  draw();
  if (noted_) drawNoted(changedSince(last));
  last = noted_ ? DrawnFrame{std::move(noted_->steps), image_.cacheKey()} : DrawnFrame();
}

/// Does a step, now or at the end of the frame.
void Surface::add(DrawnStep step, const QImage& picture) {
  if (noted_) {
    noted_->bytes += picture.sizeInBytes();
    noted_->steps.push_back(std::move(step));
    noted_->pictures.push_back(picture);
    if (noted_->bytes > MostNotedBytes) endNoting();
    return;
  }
  QPainter painter(&image_);
  drawStep(painter, step, picture);
  mark(step.place);
}

/// A pixel is the same if all steps that touch it are.
QRegion Surface::changedSince(const DrawnFrame& last) const {
  const std::vector<DrawnStep>& steps = noted_->steps;
  if (last.picture != image_.cacheKey() || last.steps.size() != steps.size()) return image_.rect();
  QRegion changed;
  for (size_t i = 0; i < steps.size(); ++i) {
    if (steps[i] != last.steps[i]) changed += QRegion(steps[i].place) + last.steps[i].place;
  }
  return changed & image_.rect();
}

void Surface::drawNoted(const QRegion& where) {
  if (where.isEmpty()) return;
  QPainter painter(&image_);
  painter.setClipRegion(where);
  for (size_t i = 0; i < noted_->steps.size(); ++i) {
    if (where.intersects(noted_->steps[i].place)) drawStep(painter, noted_->steps[i], noted_->pictures[i]);
  }
  mark(where.boundingRect());
}

void Surface::endNoting() {
  if (noted_) drawNoted(image_.rect());
  noted_.reset();
}

QRect Surface::takeDirty() {
  return std::exchange(dirty_, QRect());
}

void Surface::mark(const QRect& rectangle) {
  dirty_ |= rectangle & image_.rect();
}

}  // namespace drawing
