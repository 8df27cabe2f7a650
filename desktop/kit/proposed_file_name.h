#pragma once

#include <QString>

namespace lignara {

/// The name that a save dialog proposes for a work of this title, without an extension: without the
/// signs that a file's name cannot have. Empty where nothing of the title is left.
QString FileNameOf(const QString& title);

}  // namespace lignara
