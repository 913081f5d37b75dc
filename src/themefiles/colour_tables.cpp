#include "themefiles/colour_tables.h"

#include <algorithm>
#include <array>

#include <QStringView>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "themefiles/ini_access.h"
#include "themefiles/section_names.h"

namespace themefiles {
namespace {

struct BuiltInColor {
  QStringView name;
  QStringView value;
};

constexpr auto Players = std::to_array<BuiltInColor>({
    {u"P1Dark", u"71 175 247"},
    {u"P1Light", u"135 211 251"},
    {u"P1Lightest", u"185 232 253"},
    {u"P2Dark", u"247 71 71"},
    {u"P2Light", u"251 135 135"},
    {u"P2Lightest", u"253 185 185"},
    {u"P3Dark", u"63 191 63"},
    {u"P3Light", u"127 221 127"},
    {u"P3Lightest", u"180 237 180"},
    {u"P4Dark", u"230 63 230"},
    {u"P4Light", u"242 127 242"},
    {u"P4Lightest", u"230 63 230"},
    {u"P5Dark", u"255 144 0"},
    {u"P5Light", u"255 192 0"},
    {u"P5Lightest", u"255 221 0"},
    {u"P6Dark", u"230 230 95"},
    {u"P6Light", u"242 242 156"},
    {u"P6Lightest", u"249 249 199"},
});
static_assert(Players.size() == std::tuple_size_v<decltype(ModuleState::PlayerColors)>);

/// A scheme has either the three colours of a player (number from 1) or three values of its own.
struct Scheme {
  QStringView name;
  int player;
  std::array<QStringView, RowsPerScheme> values;
};

constexpr auto Schemes = std::to_array<Scheme>({
    {u"Blue", 1, {}},
    {u"Green", 3, {}},
    {u"Pink", 0, {u"255 175 247", u"255 211 251", u"255 223 251"}},
    {u"Red", 2, {}},
    {u"Violet", 4, {}},
    {u"Orange", 5, {}},
    {u"Yellow", 6, {}},
    {u"Brown", 0, {u"192 127 31", u"221 180 89", u"229 204 165"}},
    {u"Black", 0, {u"0 0 0", u"0 0 0", u"153 153 153"}},
});
static_assert(Schemes.size() * RowsPerScheme == std::tuple_size_v<decltype(ModuleState::BaseColors)>);

void fillBuiltInColors(ModuleState& state) {
  std::transform(Players.begin(), Players.end(), state.PlayerColors.begin(), [](const BuiltInColor& color) {
    return NamedColor{color.name.toString(), color.value.toString()};
  });
  auto row = state.BaseColors.begin();
  for (const Scheme& scheme : Schemes) {
    for (int shade = 0; shade < RowsPerScheme; ++shade, ++row) {
      row->Name = shade == 0 ? scheme.name.toString() : QString();
      row->Value = scheme.player > 0 ? state.PlayerColors.at((scheme.player - 1) * RowsPerScheme + shade).Value
                                     : scheme.values.at(shade).toString();
    }
  }
}

void fillThemeColors(ModuleState& state) {
  const QString& file = state.paths.ThemeFile;
  const QString list = GetINI(ColorsSection, std::nullopt, QString(), file, ListBufferSize);
  if (list.isEmpty()) return;
  auto row = state.ThemeColors.begin();
  // The last element is empty, and takes a row as well.
  for (const QString& name : list.split(QChar(0))) {
    if (row == state.ThemeColors.end()) throw platform::Failure(QStringLiteral("more than 99 colours"));
    *row++ = {name, GetINI(ColorsSection, name, QStringLiteral("0 0 0"), file)};
  }
}

template <typename Table>
QString valueOf(const Table& table, const QString& name) {
  const auto row =
      std::find_if(table.begin(), table.end(), [&](const NamedColor& color) { return color.Name == name; });
  return row == table.end() ? QString() : row->Value;
}

}  // namespace

const QStringList& programColorNames() {
  static const QStringList names{QStringLiteral("ColorDark"), QStringLiteral("ColorLight"),
                                 QStringLiteral("ColorLightest")};
  return names;
}

void ReadColors(ModuleState& state, platform::StatusLine& status) {
  platform::guarded(status, QStringLiteral("Error while reading Colors"), [&] {
    fillThemeColors(state);
    fillBuiltInColors(state);
  });
}

QStringList schemeNames(const ModuleState& state) {
  QStringList names;
  for (size_t row = 0; row < state.BaseColors.size(); row += RowsPerScheme) names += state.BaseColors[row].Name;
  return names;
}

QString GetBaseColor(const ModuleState& state, qint16 Offset, const QString& scheme) {
  for (size_t row = 0; row < state.BaseColors.size(); row += RowsPerScheme) {
    if (state.BaseColors[row].Name == scheme) return state.BaseColors.at(row + Offset).Value;
  }
  return {};
}

QString ResolveColor(const ModuleState& state, const QString& Name, const QString& scheme) {
  if (Name.isEmpty()) return {};
  for (int shade = 0; shade < RowsPerScheme; ++shade) {
    if (platform::sameName(Name, programColorNames()[shade])) {
      return GetBaseColor(state, static_cast<qint16>(shade), scheme);
    }
  }
  const QString player = valueOf(state.PlayerColors, Name);
  return player.isEmpty() ? valueOf(state.ThemeColors, Name) : player;
}

qint32 ColorToRGB(const QString& Color) {
  const QStringList fields = platform::splitAtBlanks(Color);
  if (fields.size() < 3) return 0;
  quint32 sum = 0;
  for (int channel = 2; channel >= 0; --channel) {
    const auto number = platform::roundToInt16(platform::numberOf(fields[channel]));
    if (!number || *number < 0) return 0;
    sum = sum * 256 + static_cast<quint32>(*number);
  }
  return static_cast<qint32>(sum & 0xFFFFFF);
}

}  // namespace themefiles
