#pragma once

#include <type_traits>

#include <QWidget>

#include "controls/frame_pacer.h"
#include "progressbar/accessible_progress_bar.h"
#include "progressbar/palettes.h"
#include "progressbar/properties.h"

namespace progressbar {

/// A progress bar with a caption. Every write of a property raises PropertyChanged with the property's key, and
/// repaints the bar in the next frame of the screen.
class ProgressBar : public QWidget, public AccessibleBarSource {
  Q_OBJECT

 public:
  explicit ProgressBar(QWidget* parent = nullptr);

  int Value() const { return state_.Value; }
  /// Kept from min to max.
  void SetValue(int value);
  int max() const { return state_.max; }
  /// Kept at 1 or more, and above min. Lowers Value if necessary.
  void SetMax(int value);
  int min() const { return state_.min; }
  /// Kept at 0 or more, and below max. Raises Value if necessary.
  void SetMin(int value);

  /// Sets a property: Value, max and min as above, TextFont for the widget as well, any other without a check.
  void set(int Properties::*property, int value);
  void set(QFont Properties::*property, const QFont& value);
  template <typename T>
  void set(T Properties::*property, const std::type_identity_t<T>& value) {
    write(property, value);
  }

  /// Sets the values of a new bar.
  void InitProperties();
  /// The parent's font.
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
