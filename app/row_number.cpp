#include "app/row_number.h"

namespace lignara {

std::string NumberText(std::int32_t number) {
  const std::string text = std::to_string(number);
  return number < 0 ? text : " " + text;
}

}  // namespace lignara
