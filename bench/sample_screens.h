#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include <QTemporaryDir>

#include "renderer/recolouring.h"
#include "support/stage.h"

namespace bench {

/// A picture of the screen as the render draws it.
struct Picture {
  QString path;
  QString type;
  renderer::ColorNumbers color;
  QRect place;
};

/// One screen of a sample theme, drawn on a surface without a window.
class SampleScreen {
 public:
  SampleScreen(const QString& theme, const QString& screen);

  const QString& theme() const { return theme_; }
  const QString& name() const { return host_.screen; }

  void draw();
  /// Draws once more, with an eye on the time between two yields.
  void drawForGap();
  /// The longest of these times so far, in milliseconds.
  double longestGap() const { return longestGap_; }

  std::size_t objects() const { return account_.Objects.size(); }

  /// The pictures that the last render drew.
  std::vector<Picture> pictures() const;

 private:
  QString valueOf(const QString& section, const char* key) const;
  void add(std::vector<Picture>& drawn, const QString& section, const QRect& place) const;

  QString theme_;
  themefiles::ModuleState state_;
  themefiles::SortedTags tags_;
  platform::Surface surface_;
  support::Host host_;
  support::Panel panel_;
  support::ScriptedDialogs boxes_;
  platform::Graphics graphics_;
  renderer::RenderAccount account_;
  double longestGap_ = 0;
};

/// The screen on which most objects are drawn, of all sample themes; null without any.
std::shared_ptr<SampleScreen> FullestScreen();

/// Decodes, recolours and draws scaled; nothing else.
void DrawPlainly(const Picture& picture, platform::Surface& surface);

/// A copy of the sample game in a folder of its own, where working copies may be made.
class CopiedSample {
 public:
  CopiedSample() {
    constexpr auto Options =
        std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing;
    std::filesystem::copy(SAMPLE_FOLDER, path().toStdString(), Options);
  }
  QString path() const { return folder_.path(); }

 private:
  QTemporaryDir folder_;
};

}  // namespace bench
