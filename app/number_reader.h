#pragma once

#include <string>
#include <string_view>

#include "app/stored_number.h"

namespace lignara {

/// The value of a text as the number fields read it: its longest numeric prefix behind leading
/// blanks (sign, digits, point, exponent), 0 where there is none. The locale plays no part. A
/// number too large for 64 bits is an overflow fault; one too small is 0.
Number ReadNumber(std::string_view text);

/// True where a number stands at the start of a text, behind blanks: what `ReadNumber` reads of it
/// was entered.
bool StartsWithNumber(std::string_view text);

/// What a user has to know of a text that is not wholly a number: the part that counts, as in
/// "read as 1" of "1,200". Empty for a number with or without blanks around it, and where nothing
/// was entered.
std::string ReadingNote(std::string_view text);

}  // namespace lignara
