#include "platform/status_line.h"

#include <new>
#include <optional>

#include "platform/failure.h"

namespace platform {

namespace {

/// The description of the failure that ended the work; none when it came to its end.
std::optional<QString> failureOf(const std::function<void()>& work) {
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

QString ReportText(const QString& step, const QString& description) {
  return step + QStringLiteral(" [") + description + QStringLiteral("]");
}

bool Guarded(StatusLine& status, const QString& step, const std::function<void()>& work) {
  const auto description = failureOf(work);
  if (description) status.ShowStatus(ReportText(step, *description));
  return !description;
}

bool GuardedSilently(const std::function<void()>& work) {
  return !failureOf(work);
}

}  // namespace platform
