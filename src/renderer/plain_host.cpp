#include "renderer/plain_host.h"

#include <algorithm>
#include <utility>

#include <QColor>

namespace renderer {

platform::BoxAnswer NoDialogs::messageBox(QWidget* /*parent*/, const QString& text, const QString& /*title*/,
                                          platform::BoxKind kind) {
  status_.ShowStatus(text);
  return kind == platform::BoxKind::Error ? platform::BoxAnswer::Ok : platform::BoxAnswer::No;
}

QString NoDialogs::inputBox(QWidget* /*parent*/, const QString& /*prompt*/, const QString& /*title*/) {
  return {};
}

QString NoDialogs::openFile(QWidget* /*parent*/, const platform::FileRequest& /*request*/) {
  return {};
}

std::optional<QColor> NoDialogs::chooseColor(QWidget* /*parent*/, const QColor& /*present*/) {
  return std::nullopt;
}

PlainHost::PlainHost(QString screen, QString scheme) : screen_(std::move(screen)), scheme_(std::move(scheme)) {}

void PlainHost::setProgressValue(int value) {
  progress_ = std::clamp(value, 0, 100);
}

}  // namespace renderer
