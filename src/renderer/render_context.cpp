#include "renderer/render_context.h"

namespace renderer {

void UpdateProgress(RenderContext& context, qint16 step) {
  if (context.trial) return;
  context.host.setProgressValue(context.host.progressValue() + step);
  context.host.setProgressText(QStringLiteral("%1%").arg(context.host.progressValue()));
  context.host.yield();
}

}  // namespace renderer
