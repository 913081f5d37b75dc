#pragma once

#include <filesystem>
#include <functional>
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

/// A text of the screen: the words, and the pen that prints them.
struct Text {
  QString words;
  drawing::Pen pen;
};

/// One screen of a theme, the sample's or another, drawn on a surface without a window.
class SampleScreen {
 public:
  SampleScreen(const QString& gameFolder, const QString& theme, const QString& screen);

  const QString& theme() const { return theme_; }
  const QString& name() const { return host_.screen; }

  /// Lists the screen's objects, and reads the first one.
  void choose();
  /// Draws with every picture made anew.
  void draw();
  /// Draws with the pictures kept from the times before.
  void redraw();
  /// The theme's files as a drawing with kept pictures reads them, each as often as it does.
  std::vector<QString> readings();
  /// Chooses and draws once more, with an eye on the time between two yields.
  void runForGap();
  /// The longest of these times so far, in milliseconds.
  double longestGap() const { return longestGap_; }

  std::size_t objects() const { return account_.objects.size(); }
  const QString& themeFile() const { return state_.paths.ThemeFile; }

  /// The pictures that the last render drew.
  std::vector<Picture> pictures() const;
  /// The texts that it printed.
  std::vector<Text> texts() const;

 private:
  renderer::RenderContext context(renderer::PreparedPictures* store);
  QString fileOf(const QString& section) const;
  QString valueOf(const QString& section, const char* key) const;
  void add(std::vector<Picture>& drawn, const QString& section, const QRect& place) const;

  void yield() {
    if (host_.yielded) host_.yielded();
  }

  QString theme_;
  themefiles::ModuleState state_;
  themefiles::SortedTags tags_;
  drawing::Surface surface_;
  support::Host host_;
  support::Panel panel_;
  support::ScriptedDialogs boxes_;
  drawing::Graphics graphics_;
  renderer::RenderAccount account_;
  renderer::PreparedPictures store_;
  double longestGap_ = 0;
};

/// The screen on which most objects are drawn, of all sample themes; null without any.
std::shared_ptr<SampleScreen> fullestScreen();

/// Blends what the last render has prepared and prints its texts; nothing else.
std::function<void(drawing::Surface& surface)> blending(const SampleScreen& screen);

/// Decodes, recolours and draws scaled; nothing else.
void drawPlainly(const Picture& picture, drawing::Surface& surface);

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
