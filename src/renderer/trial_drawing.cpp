#include "renderer/trial_drawing.h"

#include <array>

#include "renderer/render_driver.h"

namespace renderer {
namespace {

/// Knows the names of screen and scheme, and shows nothing.
class QuietHost : public RenderHost {
 public:
  explicit QuietHost(const RenderHost& host) : host_(host) {}
  int ProgressValue() const override { return 0; }
  void SetProgressValue(int /*value*/) override {}
  void SetProgressText(const QString& /*text*/) override {}
  void SetProgressVisible(bool /*visible*/) override {}
  void Refresh() override {}
  void Yield() override {}
  void FillButtonList(const QStringList& /*rows*/) override {}
  void SelectFirstButton() override {}
  void SetButtonListVisible(bool /*visible*/) override {}
  QString ScreenName() const override { return host_.ScreenName(); }
  QString SchemeName() const override { return host_.SchemeName(); }

 private:
  const RenderHost& host_;
};

class QuietStatus : public platform::StatusLine {
 public:
  void ShowStatus(const QString& /*text*/) override {}
};

class QuietDialogs : public platform::Dialogs {
 public:
  platform::BoxAnswer MessageBox(QWidget* /*parent*/, const QString& /*text*/, const QString& /*title*/,
                                 platform::BoxKind /*kind*/) override {
    return platform::BoxAnswer::Ok;
  }
  QString InputBox(QWidget* /*parent*/, const QString& /*prompt*/, const QString& /*title*/) override { return {}; }
  QString OpenFile(QWidget* /*parent*/, const platform::FileRequest& /*request*/) override { return {}; }
  std::optional<QColor> ChooseColor(QWidget* /*parent*/, const QColor& /*present*/) override { return {}; }
};

/// Gives a surface its pen back.
class PenKeeper {
 public:
  explicit PenKeeper(platform::Surface& surface) : surface_(surface), pen_(surface.pen()) {}
  ~PenKeeper() { surface_.setPen(pen_); }
  Q_DISABLE_COPY_MOVE(PenKeeper)

 private:
  platform::Surface& surface_;
  platform::Pen pen_;
};

}  // namespace

RenderAccount DrawTrial(const RenderContext& context, const TrialValues& values) {
  const PenKeeper pen(context.Workspace);
  if (context.Account.startPen) context.Workspace.setPen(*context.Account.startPen);
  themefiles::ModuleState state = context.State;
  QuietHost host(context.Host);
  QuietStatus status;
  QuietDialogs dialogs;
  TrialFrame frame(values);
  RenderAccount account;
  RenderContext trial{
      state, context.List1, context.Workspace, host, status, dialogs, context.Graphics, account, context.pictures,
      &frame};
  DrawPasses(trial);
  return account;
}

void DrawTrialCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags,
                     platform::Surface& workspace, CursorMark& mark, const TrialValues& values) {
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
