#pragma once

#include <span>

#include "support/windows.h"

/// What a user may want at any moment: a button of the tool window for a key of an object, or anything else.
struct Wish {
  const char* name;
  bool (*other)(support::Program& program);  ///< false when the windows don't allow it at the moment
  const char* tag = nullptr;
  const char* key = nullptr;
  const char* button = nullptr;
  char frame = 0;      ///< whose entry it is about: colours, texts, images
  bool waits = false;  ///< until no work is running; and what it changes shows with the next render
};

std::span<const Wish> wishTable();

/// So many, the first ones of the table, are tried in pairs.
constexpr int Paired = 14;

/// Makes a wish come true. False when the windows don't allow it at the moment.
bool make(const Wish& wish, support::Program& program);
