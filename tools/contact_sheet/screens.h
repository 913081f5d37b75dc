#pragma once

#include <optional>
#include <vector>

#include <QImage>
#include <QString>

#include "platform/status_line.h"
#include "renderer/prepared_pictures.h"
#include "report.h"
#include "theme.h"

namespace contactsheet {

struct Screen {
  QString name;
  QImage picture;
  std::vector<ReportRow> rows;
};

/// The screen as it stands in the editor just after it was chosen, and with `selected` after that button was picked as
/// well. Every screen is drawn as if it were the first, but for the pictures kept.
Screen DrawScreen(const Theme& theme, const themefiles::ScreenRow& screen, const QString& scheme,
                  std::optional<quint8> selected, renderer::PreparedPictures& pictures, platform::StatusLine& status);

}  // namespace contactsheet
