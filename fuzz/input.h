#pragma once

#include <cstdio>
#include <cstdlib>

#include <QByteArrayView>

namespace fuzz {

/// Ends the run as a find when the fact doesn't hold.
inline void require(bool fact, const char* what) {
  if (fact) return;
  std::fprintf(stderr, "Broken: %s\n", what);
  std::abort();
}

/// An input of several texts: each but the last ends at a line feed.
class Input {
 public:
  Input(const unsigned char* data, std::size_t size) : rest_(data, qsizetype(size)) {}
  QByteArrayView line() {
    const qsizetype end = rest_.indexOf('\n');
    const QByteArrayView text = rest_.first(end < 0 ? rest_.size() : end);
    rest_ = rest_.sliced(end < 0 ? rest_.size() : end + 1);
    return text;
  }
  QByteArrayView rest() const { return rest_; }

 private:
  QByteArrayView rest_;
};

}  // namespace fuzz
