#pragma once

#include <optional>
#include <vector>

#include <QCache>
#include <QImage>
#include <QRect>

#include "platform/file_identity.h"
#include "renderer/recolouring.h"
#include "renderer/render_account.h"

namespace renderer {

/// How a picture is recoloured. Only the numbers that the type needs are set.
struct Recoloring {
  enum class Type { None, Colorized, FontBlack };
  Type type = Type::None;
  ColorNumbers color = {};
  float intensity = NoIntensity;
  friend bool operator==(const Recoloring&, const Recoloring&) = default;
};

/// A picture to draw: recoloured and scaled to `place`, or with `ownSize` at its own size at the top left of `place`.
struct PictureRequest {
  QString path;
  Recoloring recoloring = {};
  QRect place;
  bool ownSize = false;
  std::optional<platform::FileIdentity> identity = {};  ///< of the file, if it was looked at already
};

/// A picture ready to be blended on the surface at `corner`, or the reason why there is none.
struct PreparedPicture {
  std::optional<Reason> missing;  ///< Unread, NoPicture or ColorRange
  QSize ownSize;
  QPoint corner;
  QImage picture;  ///< null if nothing of it shows
};

/// A cache of prepared pictures, and of reasons why there is none. When it is full, those that were not used for
/// longest go first. An entry is valid while the file's identity is the same. What was read from a file just after a
/// change isn't kept (see platform::isSettled).
class PreparedPictures {
 public:
  static constexpr qsizetype MostBytes = qsizetype(128) * 1024 * 1024;

  explicit PreparedPictures(qsizetype mostBytes = MostBytes) : mostBytes_(mostBytes), kept_(mostBytes) {}

  /// Returns the picture from the cache, or prepares it. For the objects in hand, of which another part or size may
  /// show in each frame, the unscaled pictures are kept instead of the scaled ones. Throws std::bad_alloc.
  PreparedPicture get(const PictureRequest& request, bool inHand);
  /// Has to be called when no object is in hand any more.
  void letGo();
  /// Empties the cache.
  void clear();
  /// The number of bytes in use.
  qsizetype bytes() const { return kept_.totalCost() + unscaledBytes(); }

 private:
  struct Source {
    std::optional<Reason> missing;
    QImage picture;
  };
  /// The size is invalid for a picture at its own size; then `part` has only its top left corner.
  struct Key {
    platform::FileIdentity file;
    Recoloring recoloring;
    QSize size;
    QRect part;
    friend bool operator==(const Key&, const Key&) = default;
    friend size_t qHash(const Key& key, size_t seed = 0) {
      return qHashMulti(seed, key.file.number, key.file.changed, key.size.width(), key.size.height(),
                        key.recoloring.color.R, key.recoloring.color.G, key.recoloring.color.B);
    }
  };
  struct Unscaled {
    platform::FileIdentity file;
    Recoloring recoloring;
    Source source;
  };

  friend PreparedPicture prepare(PreparedPictures* store, const PictureRequest& request, bool inHand);
  static Source sourceOf(const PictureRequest& request);
  static QRect partOf(const PictureRequest& request);
  static PreparedPicture fitted(Source source, const PictureRequest& request);
  qsizetype unscaledBytes() const;
  const Unscaled* unscaledOf(const platform::FileIdentity& file, const Recoloring& recoloring) const;
  void holdUnscaled(Unscaled unscaled);

  qsizetype mostBytes_;
  QCache<Key, PreparedPicture> kept_;
  std::vector<Unscaled> unscaled_;  ///< as many as there is room for
};

/// Gets the picture from the store, or prepares it if `store` is null. Throws std::bad_alloc.
PreparedPicture prepare(PreparedPictures* store, const PictureRequest& request, bool inHand = false);

}  // namespace renderer
