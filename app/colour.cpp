#include "app/colour.h"

namespace lignara {

const char* ColourName(Colour colour) {
  switch (colour) {
    case Colour::Black:
      return "black";
    case Colour::Red:
      return "red";
    case Colour::Blue:
      return "blue";
    case Colour::Gray:
      return "gray";
    case Colour::RoyalBlue:
      return "royalblue";
    case Colour::DarkOrange:
      return "darkorange";
    case Colour::Green:
      return "green";
  }
  return "black";
}

}  // namespace lignara
