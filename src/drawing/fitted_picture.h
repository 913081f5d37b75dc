#pragma once

#include <QImage>
#include <QRect>

namespace drawing {

/// The part of a picture drawn at `target` that has to be scaled for the surface, relative to the target's top left. It
/// is what the surface shows, with all rows of a target that is no higher than the surface. Empty if nothing shows. The
/// sides have to match what the surface shows, since the pixels of a scaled row depend on where it is cut.
QRect partOnSurface(const QRect& target);

/// Scales the picture to `size` and returns that part of it, ready to be blended without scaling. The result is the
/// same as drawing the picture scaled. A picture that has this size already is only cut. Throws std::bad_alloc.
QImage fittedPicture(QImage picture, const QSize& size, const QRect& part);

/// The picture without an alpha channel if all of it is opaque: drawing it copies its pixels, which is faster.
QImage withoutUnusedAlpha(QImage picture);

}  // namespace drawing
