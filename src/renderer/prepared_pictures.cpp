#include "renderer/prepared_pictures.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "drawing/fitted_picture.h"
#include "drawing/pictures.h"
#include "drawing/surface.h"
#include "platform/failure.h"
#include "platform/files.h"

namespace renderer {
namespace {

bool isReadable(const QString& path) {
  try {
    return static_cast<bool>(platform::openFile(path).head(1));
  } catch (const platform::Failure&) {
    return false;
  }
}

}  // namespace

PreparedPictures::Source PreparedPictures::sourceOf(const PictureRequest& request) {
  QImage picture = drawing::LoadPicture(request.path);
  if (picture.isNull()) return {isReadable(request.path) ? Reason::NoPicture : Reason::Unread, {}};
  const Recoloring& recoloring = request.recoloring;
  if (recoloring.type == Recoloring::Type::Colorized) colorize(picture, recoloring.color);
  if (recoloring.type == Recoloring::Type::FontBlack && !recolorFont(picture, recoloring.color, recoloring.intensity)) {
    return {Reason::ColorRange, {}};
  }
  return {{}, std::move(picture)};
}

QRect PreparedPictures::partOf(const PictureRequest& request) {
  if (!request.ownSize) return drawing::partOnSurface(request.place);
  const QPoint hidden(std::max(0, -request.place.x()), std::max(0, -request.place.y()));
  return {hidden, QSize(drawing::Surface::Width, drawing::Surface::Height)};
}

PreparedPicture PreparedPictures::fitted(Source source, const PictureRequest& request) {
  if (source.missing) return {source.missing, {}, {}, {}};
  const QSize ownSize = source.picture.size();
  const QSize size = request.ownSize ? ownSize : request.place.size();
  const QRect part = partOf(request) & QRect(QPoint(0, 0), size);
  return {{}, ownSize, part.topLeft(), drawing::fittedPicture(std::move(source.picture), size, part)};
}

PreparedPicture PreparedPictures::get(const PictureRequest& request, bool inHand) {
  constexpr qsizetype Overhead = 512;
  // A picture that can't be looked at isn't kept, and reading it tells why it isn't drawn.
  const auto file = request.identity ? request.identity : platform::identityIfSeen(request.path);
  if (!file) return fitted(sourceOf(request), request);
  const Key key{*file, request.recoloring, request.ownSize ? QSize() : request.place.size(), partOf(request)};
  if (const PreparedPicture* const kept = kept_.object(key)) return *kept;
  if (inHand) {
    if (const Unscaled* const held = unscaledOf(*file, request.recoloring)) return fitted(held->source, request);
  }
  const bool settled = platform::isSettled(*file);
  Source source = sourceOf(request);
  // What hindered the reading may be over next time, whatever the file's identity tells.
  const bool wasRead = !source.missing || source.missing == Reason::ColorRange;
  const bool keeps = settled && wasRead && platform::identityIfSeen(request.path) == file;
  if (keeps && inHand) {
    source.picture = std::move(source.picture).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    holdUnscaled({*file, request.recoloring, source});
  }
  PreparedPicture prepared = fitted(std::move(source), request);
  if (keeps && !inHand) {
    prepared.picture = drawing::withoutUnusedAlpha(std::move(prepared.picture));
    kept_.insert(key, new PreparedPicture(prepared), prepared.picture.sizeInBytes() + Overhead);
  }
  return prepared;
}

qsizetype PreparedPictures::unscaledBytes() const {
  return std::accumulate(unscaled_.begin(), unscaled_.end(), qsizetype(0),
                         [](qsizetype sum, const Unscaled& held) { return sum + held.source.picture.sizeInBytes(); });
}

const PreparedPictures::Unscaled* PreparedPictures::unscaledOf(const platform::FileIdentity& file,
                                                               const Recoloring& recoloring) const {
  const auto found = std::find_if(unscaled_.begin(), unscaled_.end(), [&](const Unscaled& held) {
    return held.file == file && held.recoloring == recoloring;
  });
  return found == unscaled_.end() ? nullptr : &*found;
}

void PreparedPictures::holdUnscaled(Unscaled unscaled) {
  if (unscaledBytes() + unscaled.source.picture.sizeInBytes() > mostBytes_) return;
  unscaled_.push_back(std::move(unscaled));
  kept_.setMaxCost(mostBytes_ - unscaledBytes());
}

void PreparedPictures::letGo() {
  unscaled_.clear();
  kept_.setMaxCost(mostBytes_);
}

void PreparedPictures::clear() {
  letGo();
  kept_.clear();
}

PreparedPicture prepare(PreparedPictures* store, const PictureRequest& request, bool inHand) {
  PreparedPicture prepared =
      store ? store->get(request, inHand) : PreparedPictures::fitted(PreparedPictures::sourceOf(request), request);
  prepared.corner += request.place.topLeft();
  return prepared;
}

}  // namespace renderer
