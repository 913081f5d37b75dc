#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "renderer/highlight_cursor.h"
#include "renderer/render_host.h"

// Replacements for the editor's windows, for drawing without windows.

namespace renderer {

/// Shows no report.
class NoStatus : public platform::StatusLine {
 protected:
  void showReport(const QString& /*text*/) override {}
};

/// Reports message boxes to the status line, and answers no question.
class NoDialogs : public platform::Dialogs {
 public:
  explicit NoDialogs(platform::StatusLine& status) : status_(status) {}
  platform::BoxAnswer messageBox(QWidget* parent, const QString& text, const QString& title,
                                 platform::BoxKind kind) override;
  QString inputBox(QWidget* parent, const QString& prompt, const QString& title) override;
  QString openFile(QWidget* parent, const platform::FileRequest& request) override;
  std::optional<QColor> chooseColor(QWidget* parent, const QColor& present) override;

 private:
  platform::StatusLine& status_;
};

/// A mark that is never shown.
class NoMark : public CursorMark {
 public:
  void SetLeft(double /*left*/) override {}
  void SetTop(double /*top*/) override {}
  void SetWidth(double /*width*/) override {}
  void SetHeight(double /*height*/) override {}
  void SetVisible(bool /*visible*/) override {}
  void setBlinking(bool /*blinking*/) override {}
};

/// Knows the screen and the scheme. Shows no progress and no button list.
class PlainHost : public RenderHost {
 public:
  PlainHost(QString screen, QString scheme);
  int progressValue() const override { return progress_; }
  void setProgressValue(int value) override;
  void setProgressText(const QString& /*text*/) override {}
  void setProgressVisible(bool /*visible*/) override {}
  void Refresh() override {}
  void yield() override {}
  void fillButtonList(const QStringList& /*rows*/) override {}
  void selectFirstButton() override {}
  void setButtonListVisible(bool /*visible*/) override {}
  QString screenName() const override { return screen_; }
  QString schemeName() const override { return scheme_; }
  void setScheme(const QString& scheme) { scheme_ = scheme; }

 private:
  QString screen_;
  QString scheme_;
  int progress_ = 0;
};

}  // namespace renderer
