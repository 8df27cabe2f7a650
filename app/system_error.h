#pragma once

#include <string>

namespace lignara {

/// What the system says of the error `code` (as in errno), in English whatever the locale, as the
/// rest of the program: "No such file or directory". An unknown code is told by its number.
std::string SystemErrorText(int code);

}  // namespace lignara
