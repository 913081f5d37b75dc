#pragma once

#include <string>
#include <vector>

#include "output.h"
#include "pictures/texture_styles.h"

namespace sample {

/// A texture key and the end of its file's name; the skin's prefix stands before it.
struct TextureKey {
  std::string key;
  std::string file;
};

extern const Look DuskLook;
extern const Look NeonLook;

std::vector<TextureKey> textureKeys();

/// Writes the textures of one skin into the folder.
void writeTextures(const Output& output, const std::string& folder, const std::string& prefix, const Look& look);

/// Writes the signs that both skins share.
void writeGlyphs(const Output& output, const std::string& folder);

}  // namespace sample
