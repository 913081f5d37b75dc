#pragma once

#include <map>
#include <optional>
#include <vector>

#include <QRect>
#include <QSet>
#include <QString>

#include "drawing/surface.h"
#include "platform/file_identity.h"

namespace renderer {

/// Why an object isn't drawn, or not seen.
enum class Reason {
  NoTexture,         ///< the texture has no entry in the skin
  EmptyTexture,      ///< its entry names no file
  NoFile,            ///< the entry names no file
  Unseen,            ///< whether that file is there can't be seen
  Unread,            ///< the file can't be read
  NoPicture,         ///< the file can't be decoded
  UnknownColor,      ///< the colour is in no table
  BadColor,          ///< the colour isn't three numbers from 0 to 255
  ColorRange,        ///< a channel leaves 0 to 255 under the intensity
  NumberTooLarge,    ///< a number doesn't fit 16 bits
  NoArea,            ///< width or height is 0 or negative
  Hidden,            ///< Visible is 0
  NoSize,            ///< a text whose size is 0 or below
  NoPlace,           ///< the text of a button that has no X
  HiddenWithButton,  ///< the text of a hidden button
  WithButton,        ///< the text of a button that is left out for another reason
};

/// One object that the render left out: the section, and the key and value that decided it.
struct LeftOut {
  QString section;
  Reason why;
  QString key;
  QString value;
};

/// One object that the render drew, and where on the surface.
struct DrawnObject {
  QString section;
  QRect place;
  QString owner;      ///< of a child text: its button
  QString heightKey;  ///< the key that held its height: H or SelectH; empty for a text
};

/// The renderer's own account of its last render, in the order of drawing.
struct RenderAccount {
  std::vector<DrawnObject> objects;
  std::vector<LeftOut> missing;
  QString background;  ///< the section of the screen's background; without a picture it is a plain colour
  /// The picture files that it looked for, by the program's path, as the first look found each: none where no file was.
  std::map<QString, std::optional<platform::FileIdentity>> pictures;
  std::optional<drawing::Pen> startPen;  ///< as the render found it; none before the first one
};

/// The sections that were drawn, the background's among them, in upper case.
QSet<QString> drawnSections(const RenderAccount& account);

/// The reason in words: "Size: '0' is no size of a text".
QString reasonText(const LeftOut& entry);

/// The same without the name of the key at its head.
QString reasonWithoutKey(const LeftOut& entry);

}  // namespace renderer
