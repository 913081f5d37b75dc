#pragma once

#include <utility>
#include <variant>

#include <QString>

namespace platform {

/// Why a call of the file layer failed.
struct FileError {
  QString description;   ///< the system's own text
  bool missing = false;  ///< there is nothing at the path; after any other error there may be something
  int number = 0;        ///< the system's own, 0 for an error that this layer found
};

/// The result of a call that gives no value.
struct Done {};

/// What a call of the file layer gives: its value, or the error that kept it from one.
template <typename Value = Done>
class [[nodiscard]] FileResult {
 public:
  FileResult(Value value) : content_(std::move(value)) {}
  FileResult(FileError error) : content_(std::move(error)) {}

  explicit operator bool() const { return std::holds_alternative<Value>(content_); }
  Value& operator*() { return std::get<Value>(content_); }
  const Value& operator*() const { return std::get<Value>(content_); }
  Value* operator->() { return &**this; }
  const Value* operator->() const { return &**this; }
  const FileError& error() const { return std::get<FileError>(content_); }
  /// Whether the call failed because there is nothing at the path.
  bool isMissing() const { return !*this && error().missing; }

 private:
  std::variant<Value, FileError> content_;
};

}  // namespace platform
