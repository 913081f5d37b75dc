#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "renderer/highlight_cursor.h"
#include "renderer/render_host.h"

// What stands in for the editor's windows where there are none.

namespace renderer {

/// Tells of message boxes as of any other report; asks nothing.
class NoDialogs : public platform::Dialogs {
 public:
  explicit NoDialogs(platform::StatusLine& status) : status_(status) {}
  platform::BoxAnswer MessageBox(QWidget* parent, const QString& text, const QString& title,
                                 platform::BoxKind kind) override;
  QString InputBox(QWidget* parent, const QString& prompt, const QString& title) override;
  QString OpenFile(QWidget* parent, const platform::FileRequest& request) override;
  std::optional<QColor> ChooseColor(QWidget* parent, const QColor& present) override;

 private:
  platform::StatusLine& status_;
};

/// A mark that is never seen.
class NoMark : public CursorMark {
 public:
  void SetLeft(double /*left*/) override {}
  void SetTop(double /*top*/) override {}
  void SetWidth(double /*width*/) override {}
  void SetHeight(double /*height*/) override {}
  void SetVisible(bool /*visible*/) override {}
  void SetBlinking(bool /*blinking*/) override {}
};

/// Answers for the chosen screen and scheme; shows no progress and no button list.
class PlainHost : public RenderHost {
 public:
  PlainHost(QString screen, QString scheme);
  int ProgressValue() const override { return progress_; }
  void SetProgressValue(int value) override;
  void SetProgressText(const QString& /*text*/) override {}
  void SetProgressVisible(bool /*visible*/) override {}
  void Refresh() override {}
  void Yield() override {}
  void FillButtonList(const QStringList& /*rows*/) override {}
  void SelectFirstButton() override {}
  void SetButtonListVisible(bool /*visible*/) override {}
  QString ScreenName() const override { return screen_; }
  QString SchemeName() const override { return scheme_; }

 private:
  QString screen_;
  QString scheme_;
  int progress_ = 0;
};

}  // namespace renderer
