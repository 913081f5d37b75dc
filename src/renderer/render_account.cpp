#include "renderer/render_account.h"

#include <array>

#include <QStringView>

#include "platform/code_page.h"
#include "platform/row_order.h"

namespace renderer {
namespace {

struct Wording {
  Reason reason;
  QStringView text;  ///< %1 is the value, %2 the key
};

constexpr auto Wordings = std::to_array<Wording>({
    {Reason::NoTexture, u"texture '%1' has no entry in the skin"},
    {Reason::NoFile, u"no file '%1'"},
    {Reason::Unseen, u"file '%1' can't be looked at"},
    {Reason::NoPicture, u"'%1' is no picture"},
    {Reason::UnknownColor, u"%2: colour '%1' is in no table"},
    {Reason::ColorRange, u"%2: '%1' brings the colour out of its range"},
    {Reason::NumberTooLarge, u"%2: '%1' is too large"},
    {Reason::NoArea, u"%2: '%1' leaves no area"},
    {Reason::Hidden, u"hidden: %2 is %1"},
    {Reason::NoSize, u"%2: '%1' is no size of a text"},
    {Reason::HiddenWithButton, u"hidden with its button '%1'"},
    {Reason::WithButton, u"left out with its button '%1'"},
});
static_assert(platform::inOrder(Wordings, &Wording::reason, Reason::WithButton));

}  // namespace

QSet<QString> drawnSections(const RenderAccount& account) {
  QSet<QString> drawn{platform::upperCase(account.background)};
  for (const DrawnObject& object : account.objects) drawn.insert(platform::upperCase(object.section));
  return drawn;
}

QString reasonText(const LeftOut& entry) {
  QString text = Wordings.at(static_cast<size_t>(entry.why)).text.toString();
  return text.replace(QLatin1String("%2"), entry.key).replace(QLatin1String("%1"), entry.value);
}

}  // namespace renderer
