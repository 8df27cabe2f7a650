#pragma once

class QLineEdit;

namespace lignara {

/// From now on a text in the field that is not wholly a number is marked: the field is tinted and
/// underlined by a wave, and its tip tells the number that counts ("read as 1" of "1,200"). The tip
/// comes up by itself while the user types.
void MarkReading(QLineEdit* field);

}  // namespace lignara
