#pragma once

#include <QString>
#include <optional>

namespace lignara {

/// A filter such as "Text(*.txt)|*.txt|All(*.*)|*.*|" as Qt writes it: "Text (*.txt);;All (*)".
QString QtFilter(const QString& filter);

/// What a save dialog proposes.
struct SaveProposal {
  QString caption;  ///< of the dialog
  QString name;     ///< without extension
  QString filter;   ///< as the core writes it; the extension is that of the kind chosen in it
};

/// Asks for files. Begins in the folder used last, at first in the user's documents.
class FileDialogs {
 public:
  FileDialogs();

  /// A file to open; nothing when the user cancels.
  std::optional<QString> AskOpen(const QString& filter);
  /// The file to write; nothing when the user cancels.
  std::optional<QString> AskSave(const SaveProposal& proposal);

 private:
  QString Used(const QString& path);

  QString folder_;
};

}  // namespace lignara
