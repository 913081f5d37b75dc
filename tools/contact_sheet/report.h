#pragma once

#include <vector>

#include <QByteArray>
#include <QString>

#include "renderer/render_account.h"
#include "themefiles/tag_listing.h"

namespace contactsheet {

/// What became of one section of a screen.
struct ReportRow {
  QString section;
  bool drawn = false;
  QString reason;  ///< why it, or a part of it, was left out; of a background, why it is a plain colour
};

/// One row a section: the background, which every screen asks for, the rows of the tag list in the order of painting,
/// and what was drawn without being listed.
std::vector<ReportRow> rowsOf(const themefiles::TagList& tags, const renderer::RenderAccount& account);

/// The rows of every screen, in the order of the screens, as a table with a header line, UTF-8.
QByteArray reportText(const std::vector<std::vector<ReportRow>>& screens);

}  // namespace contactsheet
