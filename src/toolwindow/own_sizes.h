#pragma once

#include <vector>

#include <QDeadlineTimer>
#include <QSize>

namespace toolwindow {

/// The sizes that a window has given itself of late. The window system reports them once more, and late: after the
/// window has perhaps given itself another one.
class OwnSizes {
 public:
  /// The window gives itself a size, in pixels.
  void add(const QSize& size);
  /// Whether a size that is reported, at a scale, is one of these. At a fractional scale it may be a pixel off.
  bool has(const QSize& size, double scale) const;

 private:
  /// An answer has been on its way so long only if it never comes.
  static constexpr int LongestAnswer = 2000;  // ms

  struct Given {
    QSize size;
    QDeadlineTimer until;
  };

  std::vector<Given> given_;
};

}  // namespace toolwindow
