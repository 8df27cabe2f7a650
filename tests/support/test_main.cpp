#include <gtest/gtest.h>

#include <clocale>
#include <iostream>
#include <locale>
#include <stdexcept>

namespace {

/// Takes on the locale of the environment, as the desktop program does, so that a run under a
/// decimal comma shows any number that is read or written by the locale's rules.
void TakeOnLocale() {
  const char* name = std::setlocale(LC_ALL, "");
  if (name == nullptr) {
    std::cerr << "The locale of the environment is not installed; going on with \"C\".\n";
    return;
  }
  try {
    std::locale::global(std::locale(""));
  } catch (const std::runtime_error&) {
    std::cerr << "The C++ library does not know the locale \"" << name << "\".\n";
  }
  std::cout << "Locale " << name << ", decimal point " << std::localeconv()->decimal_point << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  TakeOnLocale();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
