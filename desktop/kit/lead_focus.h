#pragma once

#include <QWidget>

namespace lignara {

/// Leads the focus of a window to a widget as a user's hand does. Where the desktop does not let
/// the window become the active one, the widget is told all the same, so that what is done there
/// follows from what the program does and not from the moment at which the desktop shows the
/// window.
void LeadFocus(QWidget* widget, Qt::FocusReason reason = Qt::OtherFocusReason);

}  // namespace lignara
