#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <string>

namespace bench {

class SampleScreen;

/// How a figure is held against its floor.
enum class Held {
  AtMost,         ///< the work takes at most so many times the floor's time
  FasterAtLeast,  ///< the work is at least so many times as fast as the floor
  Within          ///< the work takes at most so many milliseconds, whatever the floor
};

struct Figure {
  std::string name;
  double reach;
  Held held;
};

using Body = std::function<void(benchmark::State&)>;

/// Registers both sides of a figure as "name/work" and "name/floor".
void registerBenchmark(const Figure& figure, const Body& work, const Body& floor);

void registerIniAccess();
void registerRecoloring();
void registerScreen(const std::shared_ptr<SampleScreen>& screen);
/// A drag on a screen of many large pictures. Prints the share of its frames that a display of 60 a second would miss;
/// whether that is little enough.
bool drawHeavyDrag();
/// With the windows open that go over the whole theme. Prints the longest times in which no event is served; whether
/// they are short enough.
bool gapsAreShort(const SampleScreen& screen);
void registerThemeCheck();
void registerFinding();
void registerShownScreen(const std::shared_ptr<SampleScreen>& screen);
void registerListing();
void registerChoosing();
/// The screen in a large theme; gives it for its gap.
std::shared_ptr<SampleScreen> registerLargeTheme(const SampleScreen& screen);

}  // namespace bench
