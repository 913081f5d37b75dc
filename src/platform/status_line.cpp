#include "platform/status_line.h"

#include <new>
#include <optional>

#include "platform/failure.h"

namespace platform {

namespace {

/// The description of the failure that ended the work, or none if it was completed.
std::optional<QString> failureIn(const std::function<void()>& work) {
  try {
    work();
    return std::nullopt;
  } catch (const Failure& failure) {
    return failure.description();
  } catch (const std::bad_alloc&) {
    return QStringLiteral("Out of memory");
  }
}

}  // namespace

void StatusLine::ShowStatus(const QString& text) {
  report_ = text;
  showAll();
}

void StatusLine::note(const QString& text) {
  notes_ += text;
  showAll();
}

void StatusLine::showAll() {
  ++told_;
  const QStringList report = report_.isEmpty() ? QStringList() : QStringList(report_);
  showReport((report + notes_).join(QStringLiteral("; ")));
  if (tellings_ > 0) return;
  report_.clear();
  notes_.clear();
}

Telling::~Telling() {
  if (--status_.tellings_ > 0) return;
  status_.report_.clear();
  status_.notes_.clear();
}

void Telling::success(const QString& text) {
  if (status_.told_ == before_) status_.ShowStatus(text);
}

QString reportText(const QString& step, const QString& description) {
  return step + QStringLiteral(" [") + description + QStringLiteral("]");
}

bool guarded(StatusLine& status, const QString& step, const std::function<void()>& work) {
  const Telling telling(status);
  const auto description = failureIn(work);
  if (description) status.ShowStatus(reportText(step, *description));
  return !description;
}

bool guardedSilently(const std::function<void()>& work) {
  return !failureIn(work);
}

}  // namespace platform
