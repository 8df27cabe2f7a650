#include "app/system_error.h"

#include <locale.h>
#include <string.h>

namespace lignara {

std::string SystemErrorText(int code) {
  // Made once and kept: strerror_l may hand out texts that live as long as the locale.
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  return strerror_l(code, plain);
}

}  // namespace lignara
