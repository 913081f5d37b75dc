#include "mainwindows/variant_drawing.h"

#include <array>
#include <utility>

#include "renderer/object_passes.h"
#include "themefiles/screen_table.h"

namespace mainwindows {
namespace {

void drawBackgroundOf(renderer::RenderContext& context) {
  renderer::DrawBackground(context, themefiles::stemOf(context.state, context.host.screenName()));
}

struct Pass {
  bool (*draws)(const QString& tag);
  void (*draw)(renderer::RenderContext& context);
};
constexpr auto Passes = std::to_array<Pass>({{renderer::isStatic, renderer::DrawStatics},
                                             {renderer::isFreeText, renderer::DrawTexts},
                                             {renderer::isButton, renderer::DrawButtons}});

}  // namespace

VariantDrawing::VariantDrawing(themefiles::ModuleState state, QString screen, QString scheme,
                               renderer::PreparedPictures& pictures)
    : state_(std::move(state)), screen_(std::move(screen)), scheme_(std::move(scheme)), pictures_(pictures) {}

/// The objects are listed, the background is drawn, and then what each pass of a render draws, one by one.
bool VariantDrawing::step() {
  if (!chosen_) {
    choose();
    return true;
  }
  if (!hasBackground_) {
    draw(chosen_->tags, drawBackgroundOf);
    hasBackground_ = true;
    return true;
  }
  const int rows = chosen_->tags.ListCount();
  for (; pass_ < Passes.size(); ++pass_, row_ = 0) {
    while (row_ < rows) {
      themefiles::SortedTags one;
      one.AddItem(chosen_->tags.List(row_++));
      if (!Passes[pass_].draws(one.List(0))) continue;
      draw(one, Passes[pass_].draw);
      return true;
    }
  }
  return false;
}

void VariantDrawing::choose() {
  chosen_.emplace(std::move(state_), screen_, scheme_, status_);
  chosen_->pictures = &pictures_;
  chosen_->state.ButtonCount = 0;
}

void VariantDrawing::draw(const themefiles::TagList& tags, void (*pass)(renderer::RenderContext&)) {
  renderer::RenderContext context = chosen_->context(tags);
  context.trial = &frame_;
  context.textShift = textShift_;
  pass(context);
  textShift_ = context.textShift;
}

}  // namespace mainwindows
