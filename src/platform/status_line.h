#pragma once

#include <functional>

#include <QString>

namespace platform {

/// Where every report of the program goes: panel 1 of the main window's status bar.
class StatusLine {
 public:
  virtual ~StatusLine() = default;
  /// Shows `text` behind the time of day; the next report overwrites it.
  virtual void ShowStatus(const QString& text) = 0;
};

/// The form of a report: "Error while reading Theme [" + description + "]".
QString ReportText(const QString& step, const QString& description);

/// Runs `work` under a failure guard: a Failure (or the want of memory) ends it and is shown as ReportText(step, ...).
/// Gives whether the work came to its end.
bool Guarded(StatusLine& status, const QString& step, const std::function<void()>& work);

/// The same guard for operations that fail without a word.
bool GuardedSilently(const std::function<void()>& work);

}  // namespace platform
