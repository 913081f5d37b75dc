#pragma once

#include <string>
#include <vector>

#include "output.h"

namespace sample {

/// One background texture: its key, and the file behind it in either skin of Stagelight.
struct BackgroundKey {
  std::string key;
  std::string dusk;
  std::string neon;
};

const std::vector<BackgroundKey>& backgroundKeys();

/// Writes every background file of Stagelight into the folder.
void writeBackgrounds(const Output& output, const std::string& folder);

}  // namespace sample
