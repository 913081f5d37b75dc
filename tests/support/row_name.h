#pragma once

#include <QTest>

namespace support {

/// While a test walks a table: names the row on which it failed.
class RowName {
 public:
  explicit RowName(QByteArray name) : name_(std::move(name)) {}
  ~RowName() {
    if (QTest::currentTestFailed()) qWarning("in row '%s'", name_.constData());
  }
  Q_DISABLE_COPY_MOVE(RowName)

 private:
  QByteArray name_;
};

}  // namespace support
