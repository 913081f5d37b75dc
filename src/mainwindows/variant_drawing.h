#pragma once

#include <optional>

#include <QImage>

#include "renderer/chosen_screen.h"
#include "renderer/plain_host.h"
#include "renderer/trial_values.h"
#include "themefiles/module_state.h"

namespace mainwindows {

/// A screen as the preview would draw it with another skin or language, drawn in steps without a window. It writes and
/// reports nothing.
class VariantDrawing {
 public:
  /// `state` is that of the program, with the paths of the skin and the language in question, and the selected button.
  VariantDrawing(themefiles::ModuleState state, QString screen, QString scheme, renderer::PreparedPictures& pictures);
  Q_DISABLE_COPY_MOVE(VariantDrawing)

  /// Does the next step; false when the picture is done.
  bool step();
  const QImage& picture() const { return chosen_->workspace.image(); }

 private:
  void choose();
  void draw(const themefiles::TagList& tags, void (*pass)(renderer::RenderContext&));

  themefiles::ModuleState state_;
  QString screen_, scheme_;
  renderer::PreparedPictures& pictures_;
  renderer::NoStatus status_;
  renderer::TrialFiles files_;
  renderer::TrialFrame frame_{files_};
  std::optional<renderer::ChosenScreen> chosen_;
  bool hasBackground_ = false;
  size_t pass_ = 0;  ///< what comes next
  int row_ = 0;
  int textShift_ = 0;  ///< of the buttons so far
};

}  // namespace mainwindows
