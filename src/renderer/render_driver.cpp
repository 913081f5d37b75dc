#include "renderer/render_driver.h"

#include "platform/numbers.h"
#include "renderer/object_passes.h"
#include "themefiles/screen_table.h"

namespace renderer {
namespace {

void drawButtonsWithList(RenderContext& context) {
  themefiles::ModuleState& state = context.state;
  state.ButtonCount = 0;
  context.textShift = 0;
  if (state.ButtonListFilled) {
    DrawButtons(context);
    return;
  }
  state.SelectedButton = 1;
  context.host.fillButtonList({});
  DrawButtons(context);
  if (state.ButtonCount == 0) {
    context.host.setButtonListVisible(false);
    return;
  }
  QStringList rows;
  for (int button = 1; button <= state.ButtonCount; ++button) rows += QStringLiteral("Select Button %1").arg(button);
  context.host.fillButtonList(rows);
  context.host.selectFirstButton();
  context.host.setButtonListVisible(true);
  state.ButtonListFilled = true;
}

}  // namespace

void drawPasses(RenderContext& context) {
  DrawBackground(context, themefiles::stemOf(context.state, context.host.screenName()));
  DrawStatics(context);
  DrawTexts(context);
  drawButtonsWithList(context);
}

void DrawScreen(RenderContext& context) {
  context.account = {};
  context.account.startPen = context.Workspace.pen();
  if (context.pictures) context.pictures->letGo();
  context.host.setProgressValue(0);
  context.host.setProgressVisible(true);
  const int tags = context.tags.ListCount();
  context.state.ProgressStep = tags == 0 ? qint16(0) : platform::roundToInt16(100.0 / tags).value_or(0);
  UpdateProgress(context, context.state.ProgressStep);
  context.host.yield();
  drawPasses(context);
  context.host.setProgressVisible(false);
}

}  // namespace renderer
