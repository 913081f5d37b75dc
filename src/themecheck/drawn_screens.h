#pragma once

#include <map>

#include <QStringList>

#include "drawing/surface.h"
#include "renderer/prepared_pictures.h"
#include "renderer/trial_values.h"
#include "themecheck/checked_theme.h"

/// Draws screens and tells what the renderer leaves out, or draws where nobody sees it. Pictures don't depend on the
/// language, nor words on the skin, so the ones are drawn with each skin and the others with each language.
namespace themecheck {

/// What the drawings of a theme share.
struct DrawingTools {
  /// A screen as it stands in the editor just after it was chosen.
  struct Screen {
    QStringList tags;
    drawing::Pen pen;
  };

  renderer::PreparedPictures pictures;
  renderer::TrialFiles files = {};
  drawing::Surface surface = {};
  std::map<QString, Screen> screens = {};  ///< those that were chosen already
};

/// Background, statics and buttons of a screen with a skin: each button once selected and once not, and with each
/// colour scheme on which it depends.
void checkPicturesOf(const CheckedTheme& theme, const QString& screen, const QString& skin, DrawingTools& tools,
                     Findings& findings);

/// All texts of a screen in a language, also with each button selected that grows. Without a language the keys of the
/// words are drawn.
void checkTextsOf(const CheckedTheme& theme, const QString& screen, const QString& language, DrawingTools& tools,
                  Findings& findings);

}  // namespace themecheck
