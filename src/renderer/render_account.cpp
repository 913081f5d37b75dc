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
    {Reason::EmptyTexture, u"texture '%1' names no file"},
    {Reason::NoFile, u"no file '%1'"},
    {Reason::Unseen, u"file '%1' can't be looked at"},
    {Reason::Unread, u"file '%1' can't be read"},
    {Reason::NoPicture, u"'%1' is no picture"},
    {Reason::UnknownColor, u"%2: colour '%1' is in no table"},
    {Reason::BadColor, u"%2: colour '%1' isn't three numbers from 0 to 255"},
    {Reason::ColorRange, u"%2: '%1' brings the colour out of its range"},
    {Reason::NumberTooLarge, u"%2: '%1' is too large"},
    {Reason::NoArea, u"%2: '%1' leaves no area"},
    {Reason::Hidden, u"hidden: %2 is %1"},
    {Reason::NoSize, u"%2: '%1' is no size of a text"},
    {Reason::NoPlace, u"%2: the text of a button isn't drawn without it"},
    {Reason::HiddenWithButton, u"hidden with its button '%1'"},
    {Reason::WithButton, u"left out with its button '%1'"},
});
static_assert(platform::inOrder(Wordings, &Wording::reason, Reason::WithButton));
constexpr QStringView KeyHead = u"%2: ";

QStringView wordingOf(Reason reason) {
  return Wordings.at(static_cast<size_t>(reason)).text;
}

QString filled(QStringView wording, const LeftOut& entry) {
  return wording.toString().replace(QLatin1String("%2"), entry.key).replace(QLatin1String("%1"), entry.value);
}

}  // namespace

QSet<QString> drawnSections(const RenderAccount& account) {
  QSet<QString> drawn{platform::upperCase(account.background)};
  for (const DrawnObject& object : account.objects) drawn.insert(platform::upperCase(object.section));
  return drawn;
}

QString reasonText(const LeftOut& entry) {
  return filled(wordingOf(entry.why), entry);
}

QString reasonWithoutKey(const LeftOut& entry) {
  const QStringView wording = wordingOf(entry.why);
  return filled(wording.startsWith(KeyHead) ? wording.sliced(KeyHead.size()) : wording, entry);
}

}  // namespace renderer
