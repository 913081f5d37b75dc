#pragma once

#include <functional>
#include <optional>

#include <QString>
#include <QStringList>

namespace platform {

/// Shows the program's reports: in the editor, panel 1 of the main window's status bar.
class StatusLine {
 public:
  virtual ~StatusLine() = default;
  /// Shows a report. The next one replaces it.
  void ShowStatus(const QString& text);
  /// Shows what the running operation has done. Its reports from here on stand behind that.
  void showDone(const QString& text);
  /// Adds a note to the report. Notes stay after every further report until the operation ends.
  void note(const QString& text);
  /// Takes a report or a note that is over out of what is shown.
  void withdraw(const QString& text);
  /// Another operation begins inside the running one: what that has done and reported is shown no more.
  void startAnew();

 protected:
  virtual void showReport(const QString& text) = 0;

 private:
  friend class ReportScope;
  void showAll();
  void endOperation();

  QString done_;       ///< by the running operation
  QString report_;     ///< its last report
  QStringList notes_;  ///< its notes
  QStringList shown_;  ///< the parts of the text that is shown
  int scopes_ = 0;     ///< that are there now
  int told_ = 0;       ///< reports and notes so far
};

/// Brackets an operation: the status line shows its last report and all its notes together. An operation inside another
/// one belongs to that.
class ReportScope {
 public:
  explicit ReportScope(StatusLine& status) : status_(status), before_(status.told_) { ++status_.scopes_; }
  ~ReportScope();
  ReportScope(const ReportScope&) = delete;
  ReportScope& operator=(const ReportScope&) = delete;

  /// Reports success, unless there was a report or a note since the operation began.
  void success(const QString& text);

 private:
  StatusLine& status_;
  int before_;
};

/// The text of an error report, for example "Error while reading Theme [no such file]".
QString reportText(const QString& step, const QString& description);

/// Runs `work`. The description of the Failure, or the lack of memory, that ended it; none if it was completed.
std::optional<QString> failureIn(const std::function<void()>& work);

/// Runs `work` as an operation. A Failure, or a lack of memory, ends it and is reported as reportText(step, ...).
/// Returns whether the work was completed.
bool guarded(StatusLine& status, const QString& step, const std::function<void()>& work);

/// The same, but reports nothing.
bool guardedSilently(const std::function<void()>& work);

}  // namespace platform
