#pragma once

#include <vector>

#include <QRegularExpression>
#include <QString>

#include "themecheck/findings.h"

namespace themechecktool {

/// Findings that are left out: each line of a file is a pattern, in which "*" stands for any letters and "?" for one.
/// Empty lines and those that begin with "#" are none.
class Ignored {
 public:
  Ignored() = default;
  /// Throws platform::Failure for a file that can't be read.
  explicit Ignored(const QString& path);

  /// Takes out the findings that match a pattern with their level, section, key and text, in any case:
  /// "note: MainButtonEditor: Visible: the button is hidden". One that stands for several sections stays for those that
  /// match none. Returns how many are gone.
  int takeOut(std::vector<themecheck::Finding>& findings) const;

 private:
  bool fits(const QString& text) const;

  std::vector<QRegularExpression> patterns_;
};

}  // namespace themechecktool
