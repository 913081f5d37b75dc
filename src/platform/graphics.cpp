#include "platform/graphics.h"

namespace platform {

int Graphics::Startup() {
  return 0;
}

int Graphics::CreateFrom(Surface& surface) {
  surface_ = &surface;
  return 0;
}

int Graphics::Delete() {
  surface_ = nullptr;
  return 0;
}

void Graphics::Shutdown() {
  surface_ = nullptr;
}

void Graphics::DrawImage(const QImage& picture, int x, int y) {
  if (surface_) surface_->DrawImage(picture, x, y);
}

void Graphics::DrawImageRect(const QImage& picture, int x, int y, int w, int h) {
  if (surface_) surface_->DrawImageRect(picture, x, y, w, h);
}

}  // namespace platform
