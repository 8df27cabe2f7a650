#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "desktop/kit/binding.h"

class QGroupBox;

namespace lignara {

/// A frame of options of which one is on. `chosen` tells which, -1 none; `choose` is told the one
/// that the user presses. The Tab key stops at the one that is on, or else at the first; arrow keys
/// choose another.
QGroupBox* MakeOptionFrame(Binding& binding, const QString& caption,
                           const std::vector<QString>& options, std::function<int()> chosen,
                           Binding::RowCommand choose, Qt::Orientation orientation = Qt::Vertical);

}  // namespace lignara
