#include "renderer/trial_drawing.h"

#include <array>

#include "renderer/plain_host.h"
#include "renderer/render_driver.h"

namespace renderer {
namespace {

class QuietStatus : public platform::StatusLine {
 protected:
  void showReport(const QString& /*text*/) override {}
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

RenderAccount drawTrial(const RenderContext& context, const TrialValues& values, TrialFiles& files) {
  const PenKeeper pen(context.Workspace);
  if (context.account.startPen) context.Workspace.setPen(*context.account.startPen);
  themefiles::ModuleState state = context.state;
  PlainHost host(context.host.screenName(), context.host.schemeName());
  QuietStatus status;
  NoDialogs dialogs(status);
  TrialFrame frame(values, files);
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
