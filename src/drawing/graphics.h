#pragma once

#include <QImage>

#include "drawing/surface.h"

namespace drawing {

/// The drawing session that a texture opens, draws through and closes again. Results are 0 for success, as the service
/// that it stands for counts them. A session that failed draws nothing. Tests derive from it to make a step fail.
class Graphics {
 public:
  virtual ~Graphics() = default;
  /// Begins a session.
  virtual int startup();
  /// Binds a drawing object to the surface's pixels.
  virtual int createFrom(Surface& surface);
  /// Frees the drawing object.
  virtual int deleteObject();
  /// Ends the session.
  virtual void shutdown();

  /// Whether a drawing object has been made and not been freed.
  bool created() const { return surface_ != nullptr; }
  /// The picture at its own size; nothing without a drawing object or a picture.
  void drawImage(const QImage& picture, int x, int y);
  /// The picture scaled to fill the rectangle.
  void drawImageRect(const QImage& picture, int x, int y, int w, int h);

 private:
  Surface* surface_ = nullptr;
};

}  // namespace drawing
