#include "renderer/render_context.h"

namespace renderer {

void UpdateProgress(RenderContext& context, qint16 step) {
  context.Host.SetProgressValue(context.Host.ProgressValue() + step);
  context.Host.SetProgressText(QStringLiteral("%1%").arg(context.Host.ProgressValue()));
  context.Host.Yield();
}

}  // namespace renderer
