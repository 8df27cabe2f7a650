#pragma once

#include <QByteArray>
#include <optional>

#include "desktop/session/variants.h"

namespace lignara {

// Variants are played by a program of their own, so that the windows of this one keep their focus
// and their places. This is what the two say to each other: JSON, one object a line.

/// What is to be played.
QByteArray RequestFor(const Variants& variants);
/// Nothing where a request cannot be read, or asks for what is no line or value.
std::optional<Variants> ReadRequest(const QByteArray& request);

/// What came of one value, on one line without its end.
QByteArray AnswerFor(const VariantOutcome& outcome);
/// Nothing where an answer cannot be read.
std::optional<VariantOutcome> ReadAnswer(const QByteArray& answer);

}  // namespace lignara
