#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QByteArray>
#include <QByteArrayView>

namespace platform {

/// The text of an ini file as one reading gave it, with the bounds of its lines. It never changes. What readers find in
/// it, each by its own rules, refers to its bytes, and lasts as long as the text or a copy of it.
class IniText {
 public:
  IniText() = default;
  explicit IniText(QByteArray bytes) : bytes_(std::move(bytes)) {}

  const QByteArray& bytes() const { return bytes_; }
  /// All lines without their ends (CR LF, LF or CR), looked for once, when they are first asked for.
  const std::vector<QByteArrayView>& lines() const;

 private:
  QByteArray bytes_;
  mutable std::optional<std::vector<QByteArrayView>> lines_;
};

}  // namespace platform
