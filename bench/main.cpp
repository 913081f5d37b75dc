#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

#include <QApplication>

#include "controls/look.h"
#include "figures.h"
#include "platform/files.h"
#include "sample_screens.h"

namespace bench {
namespace {

std::vector<Figure>& figures() {
  static std::vector<Figure> all;
  return all;
}

/// Gathers the time of each repetition beside the usual output.
class Medians : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      failed_ = failed_ || run.error_occurred;
      if (run.run_type == Run::RT_Iteration) times_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
    }
  }

  bool failed() const { return failed_; }

  /// The median in microseconds; 0 for what did not run.
  double of(const std::string& name) const {
    const auto found = times_.find(name);
    if (found == times_.end()) return 0;
    std::vector<double> times = found->second;
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  }

 private:
  std::map<std::string, std::vector<double>> times_;
  bool failed_ = false;
};

struct Result {
  double value;
  const char* reach;  ///< how the table calls it
};

Result resultOf(Held held, double work, double floor) {
  switch (held) {
    case Held::AtMost:
      return {work / floor, "at most"};
    case Held::FasterAtLeast:
      return {floor / work, "faster by"};
    case Held::Within:
      return {work / 1000, "ms, within"};
  }
  return {};
}

/// Prints the table; whether every figure that ran has its reach.
bool printTable(const Medians& medians, const std::vector<std::shared_ptr<SampleScreen>>& screens) {
  bool reached = true;
  std::printf("\n%-12s %14s %14s %9s   %s\n", "", "work (us)", "floor (us)", "ratio", "reach");
  for (const Figure& figure : figures()) {
    const double work = medians.of(figure.name + "/work");
    const double floor = medians.of(figure.name + "/floor");
    if (work <= 0 || floor <= 0) continue;
    const Result result = resultOf(figure.held, work, floor);
    const bool holds = figure.held == Held::FasterAtLeast ? result.value >= figure.reach : result.value <= figure.reach;
    reached = reached && holds;
    std::printf("%-12s %14.1f %14.1f %9.2f   %s %.2f%s\n", figure.name.c_str(), work, floor, result.value, result.reach,
                figure.reach, holds ? "" : "  MISSED");
  }
  constexpr double LongestGapReach = 100;
  for (const auto& screen : screens) {
    if (screen->longestGap() <= 0) continue;
    std::printf("longest gap between two yields of %s of %s, %.1f MB: %.1f ms (reach: under %.0f)\n",
                qPrintable(screen->name()), qPrintable(screen->theme()),
                static_cast<double>(platform::readFile(screen->themeFile()).size()) / 1'000'000, screen->longestGap(),
                LongestGapReach);
    reached = reached && screen->longestGap() < LongestGapReach;
  }
  return reached;
}

}  // namespace

void registerBenchmark(const Figure& figure, const Body& work, const Body& floor) {
  figures().push_back(figure);
  for (const auto& [side, body] : {std::pair{"/work", work}, {"/floor", floor}}) {
    benchmark::RegisterBenchmark((figure.name + side).c_str(), body)->Unit(benchmark::kMicrosecond)->UseRealTime();
  }
}

}  // namespace bench

/// Takes the options of every Google Benchmark program. Gives 1 when a figure misses its reach.
int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  controls::applyLook(application);
  char interleave[] = "--benchmark_enable_random_interleaving=true";
  char repeat[] = "--benchmark_repetitions=30";
  char time[] = "--benchmark_min_time=0.1";
  std::vector<char*> options{argv[0], interleave, repeat, time};
  options.insert(options.end(), argv + 1, argv + argc);
  int count = static_cast<int>(options.size());
  benchmark::Initialize(&count, options.data());
  if (benchmark::ReportUnrecognizedArguments(count, options.data())) return 2;

  const std::shared_ptr<bench::SampleScreen> screen = bench::fullestScreen();
  if (!screen) return 2;
  bench::registerIniAccess();
  bench::registerRecoloring();
  bench::registerScreen(screen);
  bench::registerShownScreen(screen);
  bench::registerListing();
  bench::registerChoosing();
  const std::shared_ptr<bench::SampleScreen> large = bench::registerLargeTheme(*screen);
  bench::registerThemeCheck();
  bench::registerFinding();
  bench::Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  bool reached = bench::printTable(medians, {screen, large});
  reached = bench::drawHeavyDrag() && reached;
  reached = bench::gapsAreShort(*screen) && reached;
  benchmark::ClearRegisteredBenchmarks();  // they hold windows, which go before the application
  return reached && !medians.failed() ? 0 : 1;
}
