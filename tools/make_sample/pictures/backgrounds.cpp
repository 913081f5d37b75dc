#include "pictures/backgrounds.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

#include "drawing/canvas.h"
#include "drawing/gif.h"
#include "pictures/background_styles.h"

namespace sample {

namespace {

constexpr int Quality = 85;

constexpr Palette Evening = {rgb(0x241a4a), rgb(0x7a3a78), rgb(0xd8785c), rgb(0xffc890), rgb(0x120a26)};
constexpr Palette Plum = {rgb(0x1a1038), rgb(0x4a2470), rgb(0x8a3c7c), rgb(0xf0a0c8), rgb(0x0e0820)};
constexpr Palette Ember = {rgb(0x2c0f24), rgb(0x8a2c3c), rgb(0xc8683c), rgb(0xffd890), rgb(0x180812)};
constexpr Palette Lagoon = {rgb(0x0c1c3c), rgb(0x1c5070), rgb(0x2c8a84), rgb(0xa8f0dc), rgb(0x060e20)};
constexpr Palette Forest = {rgb(0x0e2430), rgb(0x20584c), rgb(0x5c8844), rgb(0xe0f0a0), rgb(0x081418)};
constexpr Palette Slate = {rgb(0x1c2238), rgb(0x3a4a6c), rgb(0x647894), rgb(0xd0e0f4), rgb(0x0c1020)};

constexpr Palette Magenta = {rgb(0x0a0618), rgb(0x3a0a4a), rgb(0x70106c), rgb(0xff5cd8), rgb(0x04020c)};
constexpr Palette Cyan = {rgb(0x04081c), rgb(0x083058), rgb(0x0a5c7c), rgb(0x5cf0ff), rgb(0x02040e)};
constexpr Palette Lime = {rgb(0x040e14), rgb(0x0c3c34), rgb(0x246c30), rgb(0xb4ff5c), rgb(0x02080a)};
constexpr Palette Ultra = {rgb(0x080420), rgb(0x24108c), rgb(0x5420c0), rgb(0xa88cff), rgb(0x040212)};

struct File {
  const char* name;
  int width, height;
  BackgroundStyle style;
  const Palette& palette;
  unsigned seed;
};

const File Files[] = {
    {"dusk_loading.jpg", 800, 600, paintRays, Evening, 1},
    {"dusk_main.jpg", 1024, 768, paintHills, Evening, 2},
    {"dusk_song.jpg", 800, 600, paintStaff, Plum, 3},
    {"dusk_sing.jpg", 1024, 768, paintSpots, Plum, 4},
    {"dusk_score.jpg", 800, 600, paintSpots, Ember, 5},
    {"dusk_options.jpg", 800, 600, paintTiles, Plum, 6},
    {"dusk_game.jpg", 640, 480, paintWaves, Forest, 7},
    {"dusk_graphics.jpg", 400, 300, paintLights, Lagoon, 8},
    {"dusk_sound.jpg", 800, 600, paintSkyline, Slate, 9},
    {"dusk_lyrics.jpg", 800, 600, paintStaff, Forest, 10},
    {"dusk_record.bmp", 400, 300, paintRays, Ember, 11},
    {"dusk_advanced.jpg", 640, 480, paintTiles, Slate, 12},
    {"dusk_themes.jpg", 800, 600, paintHills, Lagoon, 13},
    {"dusk_top5.jpg", 800, 600, paintCurtain, Ember, 14},
    {"dusk_level.jpg", 800, 600, paintHills, Forest, 15},
    {"dusk_name.jpg", 800, 600, paintLights, Plum, 16},
    {"dusk_round.jpg", 800, 600, paintRays, Plum, 17},
    {"dusk_party_score.jpg", 800, 600, paintWaves, Evening, 18},
    {"dusk_win.jpg", 1024, 768, paintCurtain, Plum, 19},
    {"dusk_party_options.gif", 400, 300, paintWaves, Plum, 20},
    {"dusk_players.jpg", 800, 600, paintTiles, Ember, 21},
    {"dusk_menu.jpg", 400, 300, paintLights, Ember, 22},
    {"dusk_jumpto.jpg", 640, 480, paintWaves, Slate, 23},
    {"dusk_stats.jpg", 800, 600, paintSkyline, Evening, 24},
    {"dusk_detail.jpg", 800, 600, paintSkyline, Lagoon, 25},
    {"dusk_check.png", 200, 150, paintRays, Slate, 26},
    {"dusk_error.jpg", 400, 300, paintCurtain, Slate, 27},
    {"neon_grid.jpg", 800, 600, paintTiles, Ultra, 31},
    {"neon_city.jpg", 1024, 768, paintSkyline, Magenta, 32},
    {"neon_lights.jpg", 800, 600, paintLights, Cyan, 33},
    {"neon_stage.jpg", 800, 600, paintSpots, Ultra, 34},
    {"neon_waves.jpg", 800, 600, paintWaves, Cyan, 35},
    {"neon_rays.jpg", 800, 600, paintRays, Magenta, 36},
    {"neon_hills.jpg", 800, 600, paintHills, Ultra, 37},
    {"neon_staff.jpg", 800, 600, paintStaff, Lime, 38},
    {"neon_curtain.jpg", 640, 480, paintCurtain, Magenta, 39},
    {"neon_bars.gif", 400, 300, paintSkyline, Cyan, 40},
};

using Group = std::vector<int>;  // places of dots in a picture, row by row

int channelOf(QRgb color, int channel) {
  return static_cast<int>(color >> (8 * channel) & 255);
}

/// The channel in which the dots differ most, and by how much.
std::pair<int, int> widestChannel(const Group& group, const std::vector<QRgb>& dots) {
  std::pair<int, int> widest{0, -1};
  for (int channel = 0; channel < 3; ++channel) {
    int low = 255;
    int high = 0;
    for (const int place : group) {
      low = std::min(low, channelOf(dots[place], channel));
      high = std::max(high, channelOf(dots[place], channel));
    }
    if (high - low > widest.second) widest = {channel, high - low};
  }
  return widest;
}

QRgb meanColor(const Group& group, const std::vector<QRgb>& dots) {
  const int count = static_cast<int>(group.size());
  int sums[3] = {0, 0, 0};
  for (const int place : group) {
    for (int channel = 0; channel < 3; ++channel) sums[channel] += channelOf(dots[place], channel);
  }
  return qRgb(sums[2] / count, sums[1] / count, sums[0] / count);
}

/// The picture in 256 colours: the group of dots that differ most is halved until there are as many groups.
IndexedPicture reduced(const QImage& image) {
  std::vector<QRgb> dots;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) dots.push_back(image.pixel(x, y));
  }
  Group all(dots.size());
  std::iota(all.begin(), all.end(), 0);
  std::multimap<int, Group> groups;  // by their difference times their size
  const auto add = [&](Group group) {
    const int weight = widestChannel(group, dots).second * static_cast<int>(group.size());
    groups.emplace(weight, std::move(group));
  };
  add(all);
  while (groups.size() < 256) {
    Group widest = std::move(std::prev(groups.end())->second);
    groups.erase(std::prev(groups.end()));
    const int channel = widestChannel(widest, dots).first;
    std::stable_sort(widest.begin(), widest.end(),
                     [&](int a, int b) { return channelOf(dots[a], channel) < channelOf(dots[b], channel); });
    const auto middle = widest.begin() + static_cast<std::ptrdiff_t>(widest.size() / 2);
    add(Group(widest.begin(), middle));
    add(Group(middle, widest.end()));
  }
  IndexedPicture picture{image.width(), image.height(), {}, std::vector<unsigned char>(dots.size()), {}};
  for (const auto& [weight, group] : groups) {
    for (const int place : group) picture.dots[place] = static_cast<unsigned char>(picture.colors.size());
    picture.colors.push_back(meanColor(group, dots));
  }
  return picture;
}

}  // namespace

const std::vector<BackgroundKey>& backgroundKeys() {
  static const std::vector<BackgroundKey> keys = {
      {"LoadingBG", "dusk_loading.jpg", "neon_rays.jpg"},
      {"MainBG", "dusk_main.jpg", "neon_city.jpg"},
      {"SongBG", "dusk_song.jpg", "neon_staff.jpg"},
      {"SingBG", "dusk_sing.jpg", "neon_stage.jpg"},
      {"ScoreBG", "dusk_score.jpg", "neon_curtain.jpg"},
      {"OptionsBG", "dusk_options.jpg", "neon_grid.jpg"},
      {"OptionsGameBG", "dusk_game.jpg", "neon_waves.jpg"},
      {"OptionsGraphicsBG", "dusk_graphics.jpg", "neon_lights.jpg"},
      {"OptionsSoundBG", "dusk_sound.jpg", "neon_bars.gif"},
      {"OptionsLyricsBG", "dusk_lyrics.jpg", "neon_staff.jpg"},
      {"OptionsThemesBG", "dusk_themes.jpg", "neon_hills.jpg"},
      {"OptionsRecordBG", "dusk_record.bmp", "neon_rays.jpg"},
      {"OptionsAdvancedBG", "dusk_advanced.jpg", "neon_grid.jpg"},
      {"Top5BG", "dusk_top5.jpg", "neon_curtain.jpg"},
      {"LevelBG", "dusk_level.jpg", "neon_hills.jpg"},
      {"NameBG", "dusk_name.jpg", "neon_lights.jpg"},
      {"PartyNewRoundBG", "dusk_round.jpg", "neon_rays.jpg"},
      {"PartyScoreBG", "dusk_party_score.jpg", "neon_waves.jpg"},
      {"PartyWinBG", "dusk_win.jpg", "neon_stage.jpg"},
      {"PartyOptionsBG", "dusk_party_options.gif", "neon_grid.jpg"},
      {"PartyPlayerBG", "dusk_players.jpg", "neon_city.jpg"},
      {"SongMenuBG", "dusk_menu.jpg", "neon_staff.jpg"},
      {"SongJumptoBG", "dusk_jumpto.jpg", "neon_lights.jpg"},
      {"StatMainBG", "dusk_stats.jpg", "neon_city.jpg"},
      {"StatDetailBG", "dusk_detail.jpg", "neon_bars.gif"},
      {"CheckPopupBG", "dusk_check.png", "neon_waves.jpg"},
      {"ErrorPopupBG", "dusk_error.jpg", "neon_curtain.jpg"},
  };
  return keys;
}

void writeBackgrounds(const Output& output, const std::string& folder) {
  for (const File& file : Files) {
    Canvas canvas(file.width, file.height, 800, 600);
    file.style(canvas, file.palette, file.seed);
    const std::string path = folder + file.name;
    if (path.ends_with(".gif")) {
      output.write(path, encodeGif(reduced(canvas.image())));
    } else {
      output.writePicture(path, canvas.image(), path.ends_with(".jpg") ? Quality : -1);
    }
  }
}

}  // namespace sample
