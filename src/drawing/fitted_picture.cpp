#include "drawing/fitted_picture.h"

#include <functional>
#include <new>
#include <numeric>
#include <utility>

#include <QPainter>

#include "drawing/surface.h"

namespace drawing {

namespace {

constexpr int OpaqueAlpha = 255;

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

QImage withoutUnusedAlpha(QImage picture) {
  for (int row = 0; row < picture.height(); ++row) {
    const auto* const pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
    const QRgb all = std::accumulate(pixels, pixels + picture.width(), ~QRgb(0), std::bit_and<>());
    if (qAlpha(all) != OpaqueAlpha) return picture;
  }
  picture.reinterpretAsFormat(QImage::Format_RGB32);
  return picture;
}

}  // namespace drawing
