#pragma once

#include <optional>

#include <QString>

#include "platform/file_identity.h"
#include "renderer/render_context.h"
#include "themefiles/ini_access.h"

/// How the passes read an object's keys, and enter in the account that it is left out.
namespace renderer {

/// The value of a key of a file as it is now. During a trial frame each file is read only once.
QString readValue(const RenderContext& context, const QString& section, const QString& file, const QString& key,
                  const QString& defaultValue = QString());

/// The section of an object. It is read when the object is drawn, and includes the values on trial.
class ObjectSection {
 public:
  ObjectSection(const RenderContext& context, const QString& name);
  Q_DISABLE_COPY_MOVE(ObjectSection)
  const QString& Name() const { return name_; }
  /// The value of a key, cut to 255 letters; the default without the key.
  QString Value(const QString& key, const QString& defaultValue = QString()) const;
  /// The number of a key; 0 without the key.
  double number(const QString& key) const;
  /// Whether the theme has the section.
  bool isThere() const { return reader_.isThere(); }
  /// Whether values of the object are on trial.
  bool inHand() const { return trial_ != nullptr; }

 private:
  QString name_;
  const TrialValues* trial_;                         ///< this object's; null for none
  std::optional<themefiles::SectionReader> itself_;  ///< read for this object alone, unless during a trial frame
  const themefiles::SectionReader& reader_;
};

/// Enters in the account that the section is left out, the reason, and the key and value that are the cause.
void leaveOut(RenderContext& context, const QString& section, Reason why, const QString& key, const QString& value);

/// The number of a key rounded to 16 bits. One that doesn't fit is entered in the account, and reported as `step` with
/// section, key and value.
std::optional<qint16> themeInt16(RenderContext& context, const ObjectSection& section, const QString& key,
                                 const QString& step);

/// A picture's file, and what was found there when it was looked for; without that it isn't kept.
struct PictureFile {
  QString path;
  std::optional<platform::FileIdentity> identity;
};

/// The file as its path goes on from the skin's folder, by the shortest way: "icons\\star.png".
QString nameOfPicture(const RenderContext& context, const PictureFile& file);

/// X, Y, W and H of an object.
struct Box {
  qint16 X = 0;
  qint16 Y = 0;
  qint16 W = 0;
  qint16 H = 0;
};

/// None if one of the four doesn't fit into 16 bits. The first such number is reported.
std::optional<Box> themeBox(RenderContext& context, const ObjectSection& section, const QString& step);

/// The file of a section's picture: its Tex key names an entry of the skin, which names the file. If the entry or the
/// file is missing, this is entered in the account, and the path is empty.
PictureFile texturePath(RenderContext& context, const ObjectSection& section);

}  // namespace renderer
