#include "renderer/trial_drawing.h"

#include "renderer/plain_host.h"
#include "renderer/render_driver.h"
#include "themefiles/mark_record.h"

namespace renderer {
namespace {

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

RenderAccount drawTrial(const RenderContext& context, const std::vector<TrialValues>& objects, TrialFiles& files) {
  const PenKeeper pen(context.Workspace);
  if (context.account.startPen) context.Workspace.setPen(*context.account.startPen);
  themefiles::ModuleState state = context.state;
  PlainHost host(context.host.screenName(), context.host.schemeName());
  NoStatus status;
  NoDialogs dialogs(status);
  TrialFrame frame(objects, files);
  RenderAccount account;
  RenderContext trial{.state = state,
                      .tags = context.tags,
                      .Workspace = context.Workspace,
                      .host = host,
                      .status = status,
                      .dialogs = dialogs,
                      .graphics = context.graphics,
                      .account = account,
                      .pictures = context.pictures,
                      .trial = &frame};
  drawPasses(trial);
  return account;
}

void drawTrialCursor(const themefiles::ModuleState& state, const themefiles::TagList& tags, drawing::Surface& workspace,
                     CursorMark& mark, const std::vector<TrialValues>& objects) {
  const PenKeeper pen(workspace);
  NoStatus status;
  themefiles::ModuleState tried = state;
  const TrialValues* const values = tags.ListIndex() < 0 ? nullptr : valuesOf(tags.List(tags.ListIndex()), objects);
  for (const themefiles::MarkKey& row : themefiles::MarkKeys) {
    const QString* const value = values ? values->find(row.key.toString()) : nullptr;
    if (value != nullptr) themefiles::followCommit(tried.CursorRect, row.key.toString(), *value);
  }
  DrawCursor(tried, tags, workspace, mark, status, objects);
}

}  // namespace renderer
