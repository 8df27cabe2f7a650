#pragma once

namespace lignara {

/// The colours of pictures, by what a user would call them.
enum class Colour { Black, Red, Blue, Gray, RoyalBlue, DarkOrange, Green };

/// The colour's name as scripts print it, such as "red".
const char* ColourName(Colour colour);

}  // namespace lignara
