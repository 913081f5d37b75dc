#include "screens.h"

#include "renderer/chosen_screen.h"
#include "renderer/render_driver.h"

namespace contactsheet {

Screen DrawScreen(const Theme& theme, const themefiles::ScreenRow& screen, const QString& scheme,
                  std::optional<quint8> selected, renderer::PreparedPictures& pictures, platform::StatusLine& status) {
  renderer::ChosenScreen chosen(theme.state(), screen.Name, scheme, status);
  chosen.pictures = &pictures;
  renderer::RenderContext context = chosen.context();
  renderer::DrawScreen(context);
  if (selected) {
    chosen.state.SelectedButton = *selected;
    renderer::DrawScreen(context);
  }
  return {screen.Name, chosen.workspace.image(), rowsOf(chosen.tags, chosen.account)};
}

}  // namespace contactsheet
