#pragma once

#include <cstddef>
#include <deque>
#include <functional>

#include <QString>

namespace themecheck {

/// Work that is done one step after the other, each when it is asked for. A step may add further ones.
class Steps {
 public:
  /// `about` is what the step is about, for people.
  void add(const QString& about, const std::function<void()>& work);
  /// A step for each number below `count`.
  void addEach(const QString& about, size_t count, const std::function<void(size_t number)>& work);

  bool isDone() const { return steps_.empty(); }
  /// What the next step is about. Empty when all are done.
  QString next() const { return isDone() ? QString() : steps_.front().about; }
  /// Does the next step.
  void step();

 private:
  struct Each {
    QString about;
    size_t count = 0;
    std::function<void(size_t)> work;
    size_t next = 0;
  };

  std::deque<Each> steps_;
};

}  // namespace themecheck
