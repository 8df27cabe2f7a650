#pragma once

#include <string>
#include <string_view>

#include "app/stored_number.h"

namespace lignara {

/// Shows a value in 32 bits; one that met a fault leaves what stood there.
void ShowValue(std::string& shown, const Number& value, std::string_view pattern);

}  // namespace lignara
