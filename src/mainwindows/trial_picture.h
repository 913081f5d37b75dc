#pragma once

#include <optional>

#include <QImage>

#include "drawing/drawn_frame.h"
#include "renderer/trial_values.h"
#include "themefiles/tag_listing.h"

namespace mainwindows {

class Form1;

/// The preview with values on trial, while an object is in the hand.
class TrialPicture {
 public:
  explicit TrialPicture(Form1& form) : form_(form) {}

  /// Draws a frame with the values of some objects; mark and frames follow. Works only while no drawing runs.
  void show(const std::vector<renderer::TrialValues>& objects);
  /// Puts picture and mark back as they were before the first frame.
  void putBack();
  /// To be called when something else paints the preview: there is nothing to put back.
  void forget() { shown_.reset(); }

 private:
  struct Shown {
    QImage before;                   ///< the picture without the values
    themefiles::SortedTags objects;  ///< the list's own rows take longer to be asked
    renderer::TrialFiles files;
    drawing::DrawnFrame frame;  ///< the last one
  };

  Form1& form_;
  std::optional<Shown> shown_;
};

}  // namespace mainwindows
