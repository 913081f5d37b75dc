#pragma once

#include <QImage>
#include <QRect>

namespace drawing {

/// The part of a picture drawn at `target`, in pixels from its top left, whose fitted pixels serve the surface: what it
/// shows, and beyond that all rows that fit it. A row is worked out from the place where it begins and to the place
/// where it ends, so that another cut at its sides gives other pixels. Empty when nothing shows.
QRect partOnSurface(const QRect& target);

/// That part of the picture stretched to `size`, ready to be blended at its own size: the pixels that drawing it
/// stretched would blend. A picture of that size is only cut. Throws std::bad_alloc.
QImage fittedPicture(QImage picture, const QSize& size, const QRect& part);

}  // namespace drawing
