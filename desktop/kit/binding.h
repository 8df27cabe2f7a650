#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/drawing.h"
#include "app/list_rows.h"
#include "desktop/kit/open_panels.h"
#include "desktop/kit/user_action.h"

class QAbstractButton;
class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QScrollBar;
class QTableWidget;
class QWidget;

namespace lignara {

class Picture;

/// The row of a list that is chosen, as the screen shows it; -1 where none is.
int ChosenRow(const QListWidget* list);

/// True for a field with a command for a user who comes into it (`Binding::Entered`).
bool ActsOnEntry(const QWidget* widget);

/// Ties the widgets of a window to the members of its record, once each. A user's action writes the
/// record and calls the command; after every command all windows show their records again.
///
/// The record has to live as long as the window.
class Binding {
 public:
  using Command = std::function<void()>;
  using RowCommand = std::function<void(int row)>;
  using Condition = std::function<bool()>;
  using PlaceCommand = std::function<void(double x, double y)>;
  using ActionTold = std::function<void(const UserAction&)>;
  using PanelTold = std::function<void(QWidget* panel)>;

  /// `afterCommand` makes all open windows show their records; `beforeCommand` is told of each
  /// action of the user, `afterMaking` of each panel that was made late.
  explicit Binding(
      Command afterCommand, ActionTold beforeCommand = [](const UserAction&) {},
      PanelTold afterMaking = [](QWidget*) {})
      : beforeCommand_(std::move(beforeCommand)),
        afterCommand_(std::move(afterCommand)),
        afterMaking_(std::move(afterMaking)) {}

  /// A number that the user types. `typed`, if any, runs after each change by the user. A text that
  /// is not wholly a number is marked, with the number that it is read as.
  void Field(QLineEdit* field, std::string* text, Command typed = {});
  /// The same for words, such as a title: nothing is marked.
  void Words(QLineEdit* field, std::string* text, Command typed = {});
  /// The user comes into a field: by the mouse, by a key, or led there. Coming back to it from a
  /// box, a menu or another window is no entry. The command may lead the focus away.
  void Entered(QLineEdit* field, Command entered);
  /// A text that the window only shows.
  void Text(QLabel* label, const std::string* text);
  void Text(QLineEdit* field, const std::string* text);
  /// A list and its chosen row (-1 none). `chosen` runs after a click or a move by keyboard; a list
  /// that is only read has none, and lets the user mark several rows. Any list can be copied as
  /// text.
  void List(QListWidget* list, const std::vector<std::string>* rows, const int* row = nullptr,
            RowCommand chosen = {});
  /// What stands beside the rows of a list, row by row; fewer notes than rows are legal.
  void Notes(QListWidget* list, const std::vector<RowNote>* notes);
  /// Why a list is empty, in grey words in its room. No words where it is empty for good reason.
  void WhyEmpty(QListWidget* list, std::function<std::string()> reason);
  /// Greys a result while it is older than what it was worked out from.
  void OutOfDate(QWidget* result, Condition outOfDate);
  /// A table that is only read: a text a column in each row. It can be copied as text.
  void Table(QTableWidget* table, const std::vector<std::vector<std::string>>* rows);
  void Press(QAbstractButton* button, Command command);
  /// What Return does in a field, instead of pressing the button of the area around it.
  void OnReturn(QLineEdit* field, Command command);
  void Menu(QAction* action, Command command);
  /// A check box or one option of a group.
  void Check(QAbstractButton* button, bool* checked, Command changed = {});
  /// A part of the window that is shown or hidden. One that Escape can leave (`SetEscapeButton`, or
  /// `CloseOnEscape`) takes the focus when it opens and gives it back when it closes.
  ///
  /// A panel that is closed at first may leave the making of all that stands in it to `make`, which
  /// runs when it opens for the first time: so the window opens sooner.
  void Shown(QWidget* panel, const bool* shown, Command make = {});
  void Shown(QWidget* panel, Condition shown, Command make = {});
  /// What Escape does to a panel that has no button for it.
  void CloseOnEscape(QWidget* panel, Command close);
  void Enabled(QWidget* widget, Condition enabled);
  void Enabled(QAction* action, Condition enabled);
  void Show(Picture* picture, const Drawing* drawing);
  /// The mouse is pressed on a picture, at a place in the drawing's units.
  void Click(Picture* picture, PlaceCommand clicked);
  /// The same where only the last of several places matters, as with a mouse that is dragged along.
  void Trace(Picture* picture, PlaceCommand clicked);
  /// The mouse comes to a place of a picture, pressed or not.
  void Hover(Picture* picture, PlaceCommand moved);
  void Scroll(QScrollBar* bar, const int* value, RowCommand moved);
  /// Anything else that has to follow the record.
  void Follow(Command refresh);

  /// Shows the record in all widgets.
  void Refresh();
  /// Runs a command as if a widget had called it, but is no action of the user.
  void Run(const Command& command) { Act(UserAction(), command); }
  /// Runs the command of an action of the user.
  void Act(const UserAction& action, const Command& command);
  /// From now on nothing that the widgets say reaches the record: the window is gone.
  void Release() { released_ = true; }
  /// The panels of the window that are open.
  OpenPanels& panels() { return panels_; }
  /// Makes what stands in all panels, also in those that have not been open yet.
  void MakeAllPanels();
  /// How many panels were made late up to now.
  int lateMade() const { return lateMade_; }

 private:
  /// A panel that is made when it opens, and what follows the record in it.
  struct LatePanel {
    QWidget* panel;
    Command make;  ///< none once it is made
    std::vector<Command> refreshers;
  };

  void Make(LatePanel& late);
  void ShowLate(QWidget* panel, const Condition& shown, Command make);

  ActionTold beforeCommand_;
  Command afterCommand_;
  PanelTold afterMaking_;
  OpenPanels panels_;
  bool released_ = false;
  std::vector<Command> refreshers_;
  std::vector<Command>* follows_ = &refreshers_;  ///< to which `Follow` adds
  std::vector<std::unique_ptr<LatePanel>> late_;
  int lateMade_ = 0;
};

}  // namespace lignara
