#pragma once

#include <optional>

#include <QCache>
#include <QImage>
#include <QRect>

#include "platform/file_identity.h"
#include "renderer/recolouring.h"
#include "renderer/render_account.h"

namespace renderer {

/// What is done to a picture's colours. Of the numbers only those that it needs are set.
struct Recolouring {
  enum class Type { None, Colorized, FontBlack };
  Type type = Type::None;
  ColorNumbers color = {};
  float intensity = NoIntensity;
  friend bool operator==(const Recolouring&, const Recolouring&) = default;
};

/// A picture as an object wants it drawn: recoloured, stretched to the size of `place`, or at its own size with its top
/// left at that of `place`.
struct PictureWish {
  QString path;
  Recolouring recolouring = {};
  QRect place;
  bool ownSize = false;
};

/// What became of a wish: what has to be blended at `corner` of the surface, its own size, or why there is none.
struct PreparedPicture {
  std::optional<Reason> missing;  ///< NoPicture or ColorRange
  QSize ownSize;
  QPoint corner;
  QImage picture;  ///< null also when nothing of it shows
};

/// Keeps what picture files became, up to a number of bytes; what wasn't used for longest goes first. A file counts as
/// the same only by its whole identity, and what was read too near to a change isn't kept. Keeps outcomes too.
class PreparedPictures {
 public:
  static constexpr qsizetype MostBytes = qsizetype(128) * 1024 * 1024;

  explicit PreparedPictures(qsizetype mostBytes = MostBytes) : mostBytes_(mostBytes), kept_(mostBytes) {}

  /// The picture wished for: the kept one, or made from its file. For the object in hand, whose size changes from frame
  /// to frame, the unscaled picture is kept in place of the scaled ones. Throws std::bad_alloc.
  PreparedPicture get(const PictureWish& wish, bool inHand);
  /// No object is in hand any more.
  void letGo();
  /// Forgets everything.
  void clear();
  /// What is kept now.
  qsizetype bytes() const { return kept_.totalCost() + unscaledBytes(); }

 private:
  struct Source {
    std::optional<Reason> missing;
    QImage picture;
  };
  /// A part of a picture that is drawn at its own size is told by its top left.
  struct Key {
    platform::FileIdentity file;
    Recolouring recolouring;
    QSize size;  ///< invalid for a picture's own size
    QRect part;
    friend bool operator==(const Key&, const Key&) = default;
    friend size_t qHash(const Key& key, size_t seed = 0) {
      return qHashMulti(seed, key.file.number, key.file.changed, key.size.width(), key.size.height(),
                        key.recolouring.color.R, key.recolouring.color.G, key.recolouring.color.B);
    }
  };
  struct Unscaled {
    platform::FileIdentity file;
    Recolouring recolouring;
    Source source;
  };

  friend PreparedPicture prepare(PreparedPictures* store, const PictureWish& wish, bool inHand);
  static Source sourceOf(const PictureWish& wish);
  static QRect partOf(const PictureWish& wish);
  static PreparedPicture fitted(Source source, const PictureWish& wish);
  qsizetype unscaledBytes() const { return unscaled_ ? unscaled_->source.picture.sizeInBytes() : 0; }
  void holdUnscaled(Unscaled unscaled);

  qsizetype mostBytes_;
  QCache<Key, PreparedPicture> kept_;
  std::optional<Unscaled> unscaled_;
};

/// The picture from the store, or made for this once without one. Throws std::bad_alloc.
PreparedPicture prepare(PreparedPictures* store, const PictureWish& wish, bool inHand = false);

}  // namespace renderer
