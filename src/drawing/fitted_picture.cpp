#include "drawing/fitted_picture.h"

#include <new>
#include <utility>

#include <QPainter>

#include "drawing/surface.h"

namespace drawing {

namespace {

QImage made(QImage picture) {
  if (picture.isNull()) throw std::bad_alloc();
  return picture;
}

}  // namespace

QRect partOnSurface(const QRect& target) {
  if (target.isEmpty()) return {};
  QRect part = target & QRect(0, 0, Surface::Width, Surface::Height);
  if (part.isEmpty()) return {};
  part.translate(-target.topLeft());
  if (target.height() > Surface::Height) return part;
  return {part.left(), 0, part.width(), target.height()};
}

QImage fittedPicture(QImage picture, const QSize& size, const QRect& part) {
  if (picture.isNull() || part.isEmpty()) return {};
  const QImage source = made(std::move(picture).convertToFormat(QImage::Format_ARGB32_Premultiplied));
  if (source.size() == size) return part == source.rect() ? source : made(source.copy(part));
  QImage fitted = made(QImage(part.size(), QImage::Format_ARGB32_Premultiplied));
  QPainter painter(&fitted);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.setClipRect(fitted.rect());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF(-part.topLeft(), size), source);
  return fitted;
}

}  // namespace drawing
