#include "renderer/render_driver.h"

#include "platform/numbers.h"
#include "renderer/object_passes.h"
#include "themefiles/screen_table.h"

namespace renderer {
namespace {

void drawButtonsWithList(RenderContext& context) {
  themefiles::ModuleState& state = context.State;
  state.ButtonCount = 0;
  if (state.ButtonListFilled) {
    DrawButtons(context);
    return;
  }
  state.SelectedButton = 1;
  context.Host.FillButtonList({});
  DrawButtons(context);
  if (state.ButtonCount == 0) {
    context.Host.SetButtonListVisible(false);
    return;
  }
  QStringList rows;
  for (int button = 1; button <= state.ButtonCount; ++button) rows += QStringLiteral("Select Button %1").arg(button);
  context.Host.FillButtonList(rows);
  context.Host.SelectFirstButton();
  context.Host.SetButtonListVisible(true);
  state.ButtonListFilled = true;
}

}  // namespace

void DrawPasses(RenderContext& context) {
  DrawBackground(context, themefiles::StemOf(context.State, context.Host.ScreenName()));
  DrawStatics(context);
  DrawTexts(context);
  drawButtonsWithList(context);
}

void DrawScreen(RenderContext& context) {
  context.Account = {};
  context.Account.startPen = context.Workspace.pen();
  if (context.pictures) context.pictures->letGo();
  context.Host.SetProgressValue(0);
  context.Host.SetProgressVisible(true);
  const int tags = context.List1.ListCount();
  context.State.ProgressStep = tags == 0 ? qint16(0) : platform::RoundToInt16(100.0 / tags).value_or(0);
  UpdateProgress(context, context.State.ProgressStep);
  context.Host.Yield();
  DrawPasses(context);
  context.Host.SetProgressVisible(false);
}

}  // namespace renderer
