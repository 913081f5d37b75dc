#include "renderer/trial_drawing.h"

#include <array>

#include <QColor>

#include "renderer/render_driver.h"

namespace renderer {
namespace {

/// Knows the names of screen and scheme, and shows nothing.
class QuietHost : public RenderHost {
 public:
  explicit QuietHost(const RenderHost& host) : host_(host) {}
  int progressValue() const override { return 0; }
  void setProgressValue(int /*value*/) override {}
  void setProgressText(const QString& /*text*/) override {}
  void setProgressVisible(bool /*visible*/) override {}
  void Refresh() override {}
  void yield() override {}
  void fillButtonList(const QStringList& /*rows*/) override {}
  void selectFirstButton() override {}
  void setButtonListVisible(bool /*visible*/) override {}
  QString screenName() const override { return host_.screenName(); }
  QString schemeName() const override { return host_.schemeName(); }

 private:
  const RenderHost& host_;
};

class QuietStatus : public platform::StatusLine {
 protected:
  void showReport(const QString& /*text*/) override {}
};

class QuietDialogs : public platform::Dialogs {
 public:
  platform::BoxAnswer messageBox(QWidget* /*parent*/, const QString& /*text*/, const QString& /*title*/,
                                 platform::BoxKind /*kind*/) override {
    return platform::BoxAnswer::Ok;
  }
  QString inputBox(QWidget* /*parent*/, const QString& /*prompt*/, const QString& /*title*/) override { return {}; }
  QString openFile(QWidget* /*parent*/, const platform::FileRequest& /*request*/) override { return {}; }
  std::optional<QColor> chooseColor(QWidget* /*parent*/, const QColor& /*present*/) override { return {}; }
};

/// Gives a surface its pen back.
class PenKeeper {
 public:
  explicit PenKeeper(drawing::Surface& surface) : surface_(surface), pen_(surface.pen()) {}
  ~PenKeeper() { surface_.setPen(pen_); }
  Q_DISABLE_COPY_MOVE(PenKeeper)

 private:
  drawing::Surface& surface_;
  drawing::Pen pen_;
};

}  // namespace

RenderAccount drawTrial(const RenderContext& context, const TrialValues& values) {
  const PenKeeper pen(context.Workspace);
  if (context.account.startPen) context.Workspace.setPen(*context.account.startPen);
  themefiles::ModuleState state = context.state;
  QuietHost host(context.host);
  QuietStatus status;
  QuietDialogs dialogs;
  TrialFrame frame(values);
  RenderAccount account;
  RenderContext trial{
      state, context.tags, context.Workspace, host, status, dialogs, context.graphics, account, context.pictures,
      &frame};
  drawPasses(trial);
  return account;
}

void drawTrialCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                     CursorMark& mark, const TrialValues& values) {
  using themefiles::CursorRecord;
  constexpr std::array<std::pair<const char*, QString CursorRecord::*>, 4> Fields{
      {{"X", &CursorRecord::X}, {"Y", &CursorRecord::Y}, {"W", &CursorRecord::W}, {"H", &CursorRecord::H}}};
  const PenKeeper pen(workspace);
  QuietStatus status;
  themefiles::ModuleState tried = state;
  for (const auto& [key, field] : Fields) {
    if (const QString* const value = values.find(QString::fromLatin1(key))) tried.CursorRect.*field = *value;
  }
  DrawCursor(tried, tags, workspace, mark, status);
}

}  // namespace renderer
