#pragma once

#include <iosfwd>

#include "desktop/session/variants.h"

namespace lignara {

/// Plays variants with the data files of the current folder and prints a table of CSV, a row for
/// each value; what cannot be played goes to standard error. Returns the exit status.
int PrintVariants(const Variants& variants);

/// Plays the variants of a request (see `desktop/session/variant_pipe.h`), read to its end, and
/// writes an answer for each value as soon as it is there. Returns the exit status.
int AnswerVariants(std::istream& request, std::ostream& answers);

}  // namespace lignara
