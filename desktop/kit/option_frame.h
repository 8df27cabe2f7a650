#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "desktop/kit/binding.h"

class QGroupBox;
class QRadioButton;

namespace lignara {

/// A frame of options of which one is on. `chosen` tells which, -1 none; `choose` is told the one
/// that the user presses. The Tab key stops at the one that is on, or else at the first; arrow keys
/// choose another.
QGroupBox* MakeOptionFrame(Binding& binding, const QString& caption,
                           const std::vector<QString>& options, std::function<int()> chosen,
                           Binding::RowCommand choose, Qt::Orientation orientation = Qt::Vertical);

/// A frame of two options of which one is on: the first where `firstIsOn`.
QGroupBox* MakeOptionPair(Binding& binding, const QString& caption, const QString& first,
                          const QString& second, bool* firstIsOn,
                          Qt::Orientation orientation = Qt::Vertical);

/// The option of a frame that is on, or the first.
QRadioButton* ChosenOption(const QGroupBox* frame);

}  // namespace lignara
