#pragma once

#include "platform/status_line.h"
#include "support/folder.h"

namespace support {

/// A status line that keeps its reports.
class Panel : public platform::StatusLine {
 public:
  QStringList texts;

 protected:
  void showReport(const QString& text) override { texts += text; }
};

}  // namespace support
