#pragma once

#include <QString>
#include <optional>

#include "app/platform.h"

class QWidget;

namespace lignara {

/// While one stands, the pointer is an arrow, also in the middle of a long calculation: the user is
/// asked for something.
class ArrowPointer {
 public:
  ArrowPointer();
  ~ArrowPointer();
  ArrowPointer(const ArrowPointer&) = delete;
  ArrowPointer& operator=(const ArrowPointer&) = delete;

 private:
  bool set_;
};

/// Shows a message box with one "OK". With `offer` it has a tick "Do not show again during this
/// command"; returns whether the user set it.
bool ShowMessageBox(const Message& message, bool offer);

/// A filter such as "Text(*.txt)|*.txt|All(*.*)|*.*|" as Qt writes it: "Text (*.txt);;All (*)".
QString QtFilter(const QString& filter);

/// A title as the name of a file: without the signs that a file's name cannot have.
QString FileNameOf(const QString& title);

/// What a save dialog proposes.
struct SaveProposal {
  QString caption;  ///< of the dialog
  QString folder;
  QString name;    ///< without extension
  QString filter;  ///< as the core writes it; the extension is that of the kind chosen in it
};

/// Asks for a file to open; nothing when the user cancels.
std::optional<QString> AskOpenFile(const QString& folder, const QString& filter);

/// Asks for the file to write; nothing when the user cancels.
std::optional<QString> AskSaveFile(const SaveProposal& proposal);

}  // namespace lignara
