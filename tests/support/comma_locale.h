#pragma once
// The locale of a user whose numbers have a decimal comma.

#include <clocale>
#include <locale>
#include <string>

namespace norvik::tests {

/// While it lives, streams write numbers with a decimal comma and points between the thousands. So
/// do the C functions, if the machine has such a locale.
class CommaLocale {
 public:
  CommaLocale()
      : oldC_(std::setlocale(LC_ALL, nullptr)),
        oldStreams_(std::locale::global(std::locale(std::locale(), new Numbers))) {
    for (const char* name :
         {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8", "es_ES.UTF-8"}) {
      if (std::setlocale(LC_ALL, name) != nullptr) break;
    }
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;
  ~CommaLocale() {
    std::locale::global(oldStreams_);
    std::setlocale(LC_ALL, oldC_.c_str());
  }

 private:
  class Numbers : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  std::string oldC_;
  std::locale oldStreams_;
};

}  // namespace norvik::tests
