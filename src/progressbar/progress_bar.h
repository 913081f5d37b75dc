#pragma once

#include <QWidget>

#include "controls/frame_pacer.h"
#include "progressbar/accessible_progress_bar.h"
#include "progressbar/palettes.h"
#include "progressbar/properties.h"

namespace progressbar {

/// A bar that shows how far a piece of work has come, with a caption. Every write of a member tells so by
/// PropertyChanged, with the key under which the member is stored, and repaints the bar in the next frame of the
/// screen.
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

  // The other members are stored as they come; a value out of its range is a matter of the painting.
  int RoundedValue() const { return state_.RoundedValue; }
  void SetRoundedValue(int value);
  /// A look only: the bar takes no input anyway.
  bool Enabled() const { return state_.Enabled; }
  void SetEnabled(bool value);
  int Theme() const { return state_.Theme; }
  void SetTheme(int value);
  int TextStyle() const { return state_.TextStyle; }
  void SetTextStyle(int value);
  int Orientations() const { return state_.Orientations; }
  void SetOrientations(int value);
  int TextAlignment() const { return state_.TextAlignment; }
  void SetTextAlignment(int value);
  QString Text() const { return state_.Text; }
  void SetText(const QString& value);
  quint32 TextEffectColor() const { return state_.TextEffectColor; }
  void SetTextEffectColor(quint32 value);
  int TextEffect() const { return state_.TextEffect; }
  void SetTextEffect(int value);
  quint32 TextForeColor() const { return state_.TextForeColor; }
  void SetTextForeColor(quint32 value);
  QFont TextFont() const { return state_.TextFont; }
  void SetTextFont(const QFont& value);
  quint32 PBSCustomeColor1() const { return state_.PBSCustomeColor1; }
  void SetPBSCustomeColor1(quint32 value);
  quint32 PBSCustomeColor2() const { return state_.PBSCustomeColor2; }
  void SetPBSCustomeColor2(quint32 value);

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
  void write(T& member, const T& value, QStringView key);

  Properties state_;
  Palette palette_;
  controls::FramePacer pacer_;
};

}  // namespace progressbar
