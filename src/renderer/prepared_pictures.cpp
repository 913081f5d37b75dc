#include "renderer/prepared_pictures.h"

#include <algorithm>
#include <utility>

#include "drawing/fitted_picture.h"
#include "drawing/pictures.h"
#include "drawing/surface.h"

namespace renderer {

PreparedPictures::Source PreparedPictures::sourceOf(const PictureWish& wish) {
  QImage picture = drawing::LoadPicture(wish.path);
  if (picture.isNull()) return {Reason::NoPicture, {}};
  const Recoloring& recoloring = wish.recoloring;
  if (recoloring.type == Recoloring::Type::Colorized) colorize(picture, recoloring.color);
  if (recoloring.type == Recoloring::Type::FontBlack && !recolorFont(picture, recoloring.color, recoloring.intensity)) {
    return {Reason::ColorRange, {}};
  }
  return {{}, std::move(picture)};
}

QRect PreparedPictures::partOf(const PictureWish& wish) {
  if (!wish.ownSize) return drawing::partOnSurface(wish.place);
  const QPoint hidden(std::max(0, -wish.place.x()), std::max(0, -wish.place.y()));
  return {hidden, QSize(drawing::Surface::Width, drawing::Surface::Height)};
}

PreparedPicture PreparedPictures::fitted(Source source, const PictureWish& wish) {
  if (source.missing) return {source.missing, {}, {}, {}};
  const QSize ownSize = source.picture.size();
  const QSize size = wish.ownSize ? ownSize : wish.place.size();
  const QRect part = partOf(wish) & QRect(QPoint(0, 0), size);
  return {{}, ownSize, part.topLeft(), drawing::fittedPicture(std::move(source.picture), size, part)};
}

PreparedPicture PreparedPictures::get(const PictureWish& wish, bool inHand) {
  constexpr qsizetype Overhead = 512;
  // A picture that can't be looked at isn't kept, and reading it tells why it isn't drawn.
  const auto file = wish.identity ? wish.identity : platform::identityIfSeen(wish.path);
  if (!file) return fitted(sourceOf(wish), wish);
  const Key key{*file, wish.recoloring, wish.ownSize ? QSize() : wish.place.size(), partOf(wish)};
  if (const PreparedPicture* const kept = kept_.object(key)) return *kept;
  if (inHand && unscaled_ && unscaled_->file == *file && unscaled_->recoloring == wish.recoloring) {
    return fitted(unscaled_->source, wish);
  }
  const bool settled = platform::isSettled(*file);
  Source source = sourceOf(wish);
  const bool keeps = settled && platform::identityIfSeen(wish.path) == file;
  if (keeps && inHand) {
    source.picture = std::move(source.picture).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    holdUnscaled({*file, wish.recoloring, source});
  }
  PreparedPicture prepared = fitted(std::move(source), wish);
  if (keeps && !inHand) {
    prepared.picture = drawing::withoutIdleAlpha(std::move(prepared.picture));
    kept_.insert(key, new PreparedPicture(prepared), prepared.picture.sizeInBytes() + Overhead);
  }
  return prepared;
}

void PreparedPictures::holdUnscaled(Unscaled unscaled) {
  unscaled_ = std::move(unscaled);
  if (unscaledBytes() > mostBytes_) unscaled_.reset();
  kept_.setMaxCost(mostBytes_ - unscaledBytes());
}

void PreparedPictures::letGo() {
  unscaled_.reset();
  kept_.setMaxCost(mostBytes_);
}

void PreparedPictures::clear() {
  letGo();
  kept_.clear();
}

PreparedPicture prepare(PreparedPictures* store, const PictureWish& wish, bool inHand) {
  PreparedPicture prepared =
      store ? store->get(wish, inHand) : PreparedPictures::fitted(PreparedPictures::sourceOf(wish), wish);
  prepared.corner += wish.place.topLeft();
  return prepared;
}

}  // namespace renderer
