#pragma once

#include <optional>

#include <QString>

#include "renderer/render_context.h"
#include "themefiles/ini_access.h"

/// How the passes read an object's keys, and how they tell that one is left out.
namespace renderer {

/// A section of a file as it is now; in a trial frame as it was at the frame's first look into that file.
themefiles::SectionReader readSection(const RenderContext& context, const QString& section, const QString& file);

/// The section of an object, read from the theme when the object's turn comes, with what is on trial in it.
class ObjectSection {
 public:
  ObjectSection(const RenderContext& context, const QString& name);
  const QString& Name() const { return name_; }
  /// The value of a key, at most 255 letters; empty, or the default, without one.
  QString Value(const QString& key, const QString& defaultValue = QString()) const;
  /// The number of such a value, 0 without one.
  double number(const QString& key) const;
  /// Whether values of the object are on trial.
  bool inHand() const { return trial_ != nullptr; }

 private:
  QString name_;
  const TrialValues* trial_;  ///< those of this object
  themefiles::SectionReader reader_;
};

/// Notes in the account that the section was left out, why, and the key and value that told so.
void leaveOut(RenderContext& context, const QString& section, Reason why, const QString& key, const QString& value);

/// The number rounded to 16 bits. One that doesn't fit is accounted and reported as `step` + [section, key, value].
std::optional<qint16> themeInt16(RenderContext& context, const ObjectSection& section, const QString& key,
                                 const QString& step);

/// X, Y, W and H of an object.
struct Box {
  qint16 X = 0;
  qint16 Y = 0;
  qint16 W = 0;
  qint16 H = 0;
};

/// None when one of the four doesn't fit 16 bits; the first such is reported.
std::optional<Box> themeBox(RenderContext& context, const ObjectSection& section, const QString& step);

/// The path of the picture behind a section's Tex, by way of the skin's entry; empty, and accounted, when the skin has
/// no entry or no file stands there.
QString texturePath(RenderContext& context, const ObjectSection& section);

}  // namespace renderer
