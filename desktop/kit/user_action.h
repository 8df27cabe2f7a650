#pragma once

#include <QString>

class QAction;
class QWidget;

namespace lignara {

class ToolWindow;

/// One thing that a user does with a control, as the window hands it on to be recorded.
struct UserAction {
  enum class Kind {
    None,  ///< nothing that a user did
    Press,
    Menu,
    Enter,     ///< types into a field
    ComeInto,  ///< comes into a field that acts on it
    Key,
    Select,
    Click,
    Scroll,
    Close,  ///< the window
    Window  ///< comes back to the window
  };

  Kind kind = Kind::None;
  QWidget* control = nullptr;
  const QAction* item = nullptr;  ///< of a menu
  QString text = {};              ///< what is entered, the key, the row, the place, the value
  /// Of several on the same control, one after the other, only the last matters.
  bool lastCounts = false;
};

/// Is told of the user's actions: each begins, may get answers in dialogs, and ends.
class ActionListener {
 public:
  virtual ~ActionListener() = default;
  virtual void Begin(ToolWindow* window, const UserAction& action) = 0;
  /// The user answered a dialog; `answer` as a script writes it, such as "yes".
  virtual void Answered(const QString& answer) = 0;
  /// A box was shown to the user.
  virtual void BoxShown() = 0;
  virtual void End() = 0;
};

}  // namespace lignara
