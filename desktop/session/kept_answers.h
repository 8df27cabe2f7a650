#pragma once

#include <QString>
#include <deque>
#include <initializer_list>
#include <optional>

namespace lignara {

/// An answer that a script keeps for a dialog.
struct ScriptAnswer {
  enum class Kind { Ok, Yes, No, Cancel, Text, File };
  Kind kind = Kind::Ok;
  QString text;  ///< of Text and File
};

/// The answers that a script keeps for dialogs to come, in their order.
class KeptAnswers {
 public:
  void Keep(ScriptAnswer answer) { answers_.push_back(std::move(answer)); }

  /// The answer to a question; no where none is kept.
  bool Question();
  /// The answer to a prompt with this text in it; nothing where the user cancels, or none is kept.
  std::optional<QString> Prompt(const QString& initial);
  /// The path for a file dialog; nothing where the user cancels, or none is kept.
  std::optional<QString> File(const QString& dialog);

  /// Why a dialog could not be answered since the last call; empty when all could.
  QString TakeFailure();

 private:
  /// The next kept answer, if it is one that the dialog can take; notes a failure otherwise.
  std::optional<ScriptAnswer> Take(const QString& dialog,
                                   std::initializer_list<ScriptAnswer::Kind> fitting);

  std::deque<ScriptAnswer> answers_;
  QString failure_;
};

}  // namespace lignara
