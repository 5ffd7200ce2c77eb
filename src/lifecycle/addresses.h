#pragma once
// The maker's pages. They belong to a deployment: the settings may name others, in the section
// "Addresses" under the keys given here.

#include "front/settings.h"

#include <string>
#include <string_view>

namespace norvik::lifecycle {

struct Address {
  std::string_view key;
  std::string_view standard;

  std::string in(const front::Settings& settings) const {
    return settings.get("Addresses", key, standard);
  }
};

inline constexpr Address kVersionText{"Version", "https://norvik.invalid/NorvikVer.txt"};
inline constexpr Address kNewsPage{"News", "https://norvik.invalid/news.htm"};
inline constexpr Address kManualPage{"Manual", "https://norvik.invalid/manual.htm"};
inline constexpr Address kTutorialsPage{"Tutorials", "https://norvik.invalid/tutorials.htm"};

}  // namespace norvik::lifecycle
