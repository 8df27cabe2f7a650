#pragma once

#include "desktop/session/script_line.h"

class QListWidget;

namespace lignara {

/// The row that a word names: its index, or in quotes its text. A `ScriptError` where there is
/// none.
int RowOf(const QListWidget* list, const ScriptWord& word);

}  // namespace lignara
