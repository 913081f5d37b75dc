#pragma once

#include <QImage>

#include "drawing/surface.h"

namespace drawing {

/// The session in which a texture is drawn. Each step returns 0 for success; a session in which a step failed draws
/// nothing. Tests override a step to make it fail.
class Graphics {
 public:
  virtual ~Graphics() = default;
  /// Begins a session.
  virtual int startup();
  /// Creates a drawing object for the surface.
  virtual int createFrom(Surface& surface);
  /// Frees the drawing object.
  virtual int deleteObject();
  /// Ends the session.
  virtual void shutdown();

  /// Whether there is a drawing object.
  bool created() const { return surface_ != nullptr; }
  /// Draws the picture at its own size. Draws nothing without a drawing object.
  void drawImage(const QImage& picture, int x, int y);

 private:
  Surface* surface_ = nullptr;
};

}  // namespace drawing
