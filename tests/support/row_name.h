#pragma once

#include <QTest>

namespace support {

/// While a test walks a table: names the row on which it failed.
struct RowName {
  explicit RowName(QByteArray row) : name(std::move(row)) {}
  ~RowName() {
    if (QTest::currentTestFailed()) qWarning("in row '%s'", name.constData());
  }
  Q_DISABLE_COPY_MOVE(RowName)
  QByteArray name;
};

}  // namespace support
