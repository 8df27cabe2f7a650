#pragma once

#include <optional>
#include <string>

#include "app/platform.h"

namespace lignara {

/// Shows a message box with one "OK". With `offer` it has a tick "Do not show again during this
/// command"; returns whether the user set it.
bool ShowMessageBox(const Message& message, bool offer);

/// Asks a question with "Yes" and "No"; true for "Yes".
bool ShowQuestionBox(const std::string& title, const std::string& text);

/// Asks for a text, at first `initial`; nothing when the user cancels.
std::optional<std::string> ShowPromptBox(const std::string& title, const std::string& text,
                                         const std::string& initial);

}  // namespace lignara
