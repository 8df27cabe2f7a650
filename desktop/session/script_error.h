#pragma once

#include <QString>

namespace lignara {

/// Why a line of a script cannot be carried out.
struct ScriptError {
  QString reason;
};

}  // namespace lignara
