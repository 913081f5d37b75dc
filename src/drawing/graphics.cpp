#include "drawing/graphics.h"

namespace drawing {

int Graphics::startup() {
  return 0;
}

int Graphics::createFrom(Surface& surface) {
  surface_ = &surface;
  return 0;
}

int Graphics::deleteObject() {
  surface_ = nullptr;
  return 0;
}

void Graphics::shutdown() {
  surface_ = nullptr;
}

void Graphics::drawImage(const QImage& picture, int x, int y) {
  if (surface_) surface_->drawImage(picture, x, y);
}

}  // namespace drawing
