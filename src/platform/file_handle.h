#pragma once

#include <utility>

#include <QtGlobal>

namespace platform {

/// Owns an open file of the system: a descriptor, or on Windows a handle.
class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(qintptr value) : value_(value) {}
  FileHandle(FileHandle&& other) noexcept : value_(std::exchange(other.value_, None)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~FileHandle() {
    if (isOpen()) close(value_);
  }

  bool isOpen() const { return value_ != None; }
  qintptr value() const { return value_; }

 private:
  static constexpr qintptr None = -1;  ///< also INVALID_HANDLE_VALUE
  static void close(qintptr value);    ///< each platform has its own

  qintptr value_ = None;
};

}  // namespace platform
