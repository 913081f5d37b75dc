#pragma once

#include <type_traits>

#include <QWidget>

#include "controls/frame_pacer.h"
#include "progressbar/accessible_progress_bar.h"
#include "progressbar/palettes.h"
#include "progressbar/properties.h"

namespace progressbar {

/// A bar that shows how far a piece of work has come, with a caption. Every write of a property raises PropertyChanged
/// with the property's key, and repaints the bar in the next frame of the screen.
class ProgressBar : public QWidget, public AccessibleBarSource {
  Q_OBJECT

 public:
  explicit ProgressBar(QWidget* parent = nullptr);

  int Value() const { return state_.Value; }
  /// Kept between min and max.
  void SetValue(int value);
  int max() const { return state_.max; }
  /// At least 1 and above min; pulls Value down with it.
  void SetMax(int value);
  int min() const { return state_.min; }
  /// At least 0 and below max; pulls Value up with it.
  void SetMin(int value);

  /// Writes a property: Value, max and min as above, TextFont also as the widget's font, any other as it comes. A value
  /// out of its range is a matter of the painting.
  void set(int Properties::*property, int value);
  void set(QFont Properties::*property, const QFont& value);
  template <typename T>
  void set(T Properties::*property, const std::type_identity_t<T>& value) {
    write(property, value);
  }

  /// The values of a bar newly placed on a form. A new object has them.
  void InitProperties();
  /// The font that the place of the bar gives it: the parent's.
  QFont ambientFont() const;

  void About() {}

  const Properties& state() const override { return state_; }

 Q_SIGNALS:
  void PropertyChanged(const QString& key);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  template <typename T>
  void write(T Properties::*property, const T& value) {
    state_.*property = value;
    written(property);
  }
  void written(const Property& property);

  Properties state_;
  Palette palette_;
  controls::FramePacer pacer_;
};

}  // namespace progressbar
