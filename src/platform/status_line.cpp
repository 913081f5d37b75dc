#include "platform/status_line.h"

#include <new>

#include "platform/failure.h"

namespace platform {

namespace {

const QString Separator = QStringLiteral("; ");

}  // namespace

void StatusLine::ShowStatus(const QString& text) {
  report_ = text;
  showAll();
}

void StatusLine::showDone(const QString& text) {
  done_ = text;
  report_.clear();
  showAll();
}

void StatusLine::note(const QString& text) {
  if (!notes_.contains(text)) notes_ += text;
  showAll();
}

void StatusLine::withdraw(const QString& text) {
  if (report_ == text) report_.clear();
  notes_.removeAll(text);
  if (shown_.removeAll(text) > 0) showReport(shown_.join(Separator));
}

void StatusLine::startAnew() {
  done_.clear();
  report_.clear();
}

void StatusLine::showAll() {
  ++told_;
  shown_ = QStringList{done_, report_} + notes_;
  shown_.removeAll(QString());
  showReport(shown_.join(Separator));
  if (scopes_ == 0) endOperation();
}

void StatusLine::endOperation() {
  startAnew();
  notes_.clear();
}

ReportScope::~ReportScope() {
  if (--status_.scopes_ == 0) status_.endOperation();
}

void ReportScope::success(const QString& text) {
  if (status_.told_ == before_) status_.ShowStatus(text);
}

QString reportText(const QString& step, const QString& description) {
  return step + QStringLiteral(" [") + description + QStringLiteral("]");
}

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

bool guarded(StatusLine& status, const QString& step, const std::function<void()>& work) {
  const ReportScope scope(status);
  const auto description = failureIn(work);
  if (description) status.ShowStatus(reportText(step, *description));
  return !description;
}

bool guardedSilently(const std::function<void()>& work) {
  return !failureIn(work);
}

}  // namespace platform
