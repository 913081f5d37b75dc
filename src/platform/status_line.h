#pragma once

#include <functional>

#include <QString>
#include <QStringList>

namespace platform {

/// Where every report of the program goes: panel 1 of the main window's status bar.
class StatusLine {
 public:
  virtual ~StatusLine() = default;
  /// Shows `text` behind the time of day; the next report overwrites it.
  void ShowStatus(const QString& text);
  /// Tells what the user has to know besides. While the operation lasts, its notes stand behind each of its reports.
  void note(const QString& text);
  /// How many reports and notes there were so far.
  int told() const { return told_; }

 protected:
  virtual void showReport(const QString& text) = 0;

 private:
  friend class Telling;
  void showAll();

  QString report_;     ///< the last one of the running operation
  QStringList notes_;  ///< those of the running operation
  int tellings_ = 0;
  int told_ = 0;
};

/// An operation, as far as its reports go: of what it tells, the status line shows the last report and all notes. An
/// operation inside another one tells with that.
class Telling {
 public:
  explicit Telling(StatusLine& status) : status_(status), before_(status.told_) { ++status_.tellings_; }
  ~Telling();
  Telling(const Telling&) = delete;
  Telling& operator=(const Telling&) = delete;

  /// Says that the operation has succeeded, unless something was told since it began.
  void success(const QString& text);

 private:
  StatusLine& status_;
  int before_;
};

/// The form of a report: "Error while reading Theme [" + description + "]".
QString reportText(const QString& step, const QString& description);

/// Runs `work` as an operation under a failure guard: a Failure (or the want of memory) ends it and is shown as
/// reportText(step, ...). Gives whether the work came to its end.
bool guarded(StatusLine& status, const QString& step, const std::function<void()>& work);

/// The same guard for operations that fail without a word.
bool guardedSilently(const std::function<void()>& work);

}  // namespace platform
