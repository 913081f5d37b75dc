#pragma once

#include <exception>
#include <utility>

#include <QString>

namespace platform {

/// The exception that ends an operation. A report shows its description in square brackets.
class Failure : public std::exception {
 public:
  explicit Failure(QString description) : description_(std::move(description)), bytes_(description_.toUtf8()) {}

  const QString& description() const { return description_; }
  const char* what() const noexcept override { return bytes_.constData(); }

 private:
  QString description_;
  QByteArray bytes_;
};

}  // namespace platform
