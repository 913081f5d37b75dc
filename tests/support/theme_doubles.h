#pragma once

#include <algorithm>

#include <QStringList>

#include "platform/code_page.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "support/folder.h"
#include "themefiles/tag_listing.h"

// What the rooms without windows work with in tests.

namespace support {

/// Keeps the reports.
class Panel : public platform::StatusLine {
 public:
  void ShowStatus(const QString& text) override { texts += text; }
  QStringList texts;
};

/// Keeps the texts of message boxes and cancels everything else.
class Boxes : public platform::Dialogs {
 public:
  platform::BoxAnswer MessageBox(QWidget*, const QString& text, const QString& title, platform::BoxKind) override {
    texts += title + text;
    return platform::BoxAnswer::Ok;
  }
  QString InputBox(QWidget*, const QString&, const QString&) override { return {}; }
  QString OpenFile(QWidget*, const platform::FileRequest&) override { return {}; }
  std::optional<QColor> ChooseColor(QWidget*, const QColor&) override { return {}; }
  QStringList texts;
};

/// A sorted list with no window.
class Tags : public themefiles::TagList {
 public:
  void Clear() override {
    rows.clear();
    index = -1;
  }
  void AddItem(const QString& tag) override {
    rows.insert(std::upper_bound(rows.begin(), rows.end(), tag, platform::NameLess), tag);
  }
  int ListCount() const override { return static_cast<int>(rows.size()); }
  QString List(int row) const override { return rows[row]; }
  int ListIndex() const override { return index; }
  void SetListIndex(int row) override { index = row; }
  QStringList rows;
  int index = -1;
};

}  // namespace support
