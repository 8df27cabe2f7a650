#pragma once

#include "app/project_header.h"
#include "desktop/kit/binding.h"

class QGroupBox;
class QString;

namespace lignara {

/// The panel "Project Description for Print Header", the same in all beam windows. The record has
/// to live as long as the window.
QGroupBox* MakeHeaderPanel(HeaderPanel& panel, Binding& binding, SessionState& session);

/// The title of the project, or another name where it has none.
QString TitleOr(const QString& otherwise, const SessionState& session);

}  // namespace lignara
