#pragma once

#include "beam/single_span_beam.h"

namespace lignara {

/// Finds the class of the two supports, and the end fixity for the session. Two free ends have no
/// class of their own: the one found before stays.
void ClassifySupports(SingleSpanBeam& beam, SessionState& session);

/// Neither end holds the beam against turning, and one is free.
bool IsUnstable(SupportClass supportClass);
/// One end is free, the other fixed.
bool IsCantilever(SupportClass supportClass);

/// The support in the words of the report: "fixed", "pinned" or "free".
const char* SupportWord(SupportType support);

}  // namespace lignara
