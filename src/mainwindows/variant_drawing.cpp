#include "mainwindows/variant_drawing.h"

#include <utility>

#include "renderer/object_passes.h"
#include "themefiles/screen_table.h"

namespace mainwindows {
namespace {

void drawBackgroundOf(renderer::RenderContext& context) {
  renderer::DrawBackground(context, themefiles::stemOf(context.state, context.host.screenName()));
}

}  // namespace

VariantDrawing::VariantDrawing(themefiles::ModuleState state, QString screen, QString scheme,
                               renderer::PreparedPictures& pictures)
    : state_(std::move(state)), screen_(std::move(screen)), scheme_(std::move(scheme)), pictures_(pictures) {}

/// The objects are listed, then come the passes of a render, the pictures one by one.
bool VariantDrawing::step() {
  const int step = next_++;
  if (step == 0) {
    choose();
    return true;
  }
  const int objects = chosen_->tags.ListCount();
  if (step == 1) {
    draw(chosen_->tags, drawBackgroundOf);
  } else if (step < 2 + objects) {
    themefiles::SortedTags one;
    one.AddItem(chosen_->tags.List(step - 2));
    if (renderer::isStatic(one.List(0))) draw(one, renderer::DrawStatics);
  } else if (step == 2 + objects) {
    draw(chosen_->tags, renderer::DrawTexts);
  } else if (step == 3 + objects) {
    chosen_->state.ButtonCount = 0;
    draw(chosen_->tags, renderer::DrawButtons);
  } else {
    return false;
  }
  return true;
}

void VariantDrawing::choose() {
  chosen_.emplace(std::move(state_), screen_, scheme_, status_);
  chosen_->pictures = &pictures_;
  chosen_->state.ButtonListFilled = true;
}

void VariantDrawing::draw(const themefiles::TagList& tags, void (*pass)(renderer::RenderContext&)) {
  renderer::RenderContext context = chosen_->context(tags);
  context.trial = &frame_;
  pass(context);
}

}  // namespace mainwindows
