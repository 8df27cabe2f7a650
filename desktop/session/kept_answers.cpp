#include "desktop/session/kept_answers.h"

#include <algorithm>
#include <utility>

namespace lignara {

using Kind = ScriptAnswer::Kind;

bool KeptAnswers::Question() {
  const auto answer = Take("question", {Kind::Yes, Kind::No, Kind::Ok, Kind::Cancel});
  return answer && (answer->kind == Kind::Yes || answer->kind == Kind::Ok);
}

std::optional<QString> KeptAnswers::Prompt(const QString& initial) {
  const auto answer = Take("prompt", {Kind::Text, Kind::Ok, Kind::Cancel});
  if (!answer || answer->kind == Kind::Cancel) return std::nullopt;
  return answer->kind == Kind::Text ? answer->text : initial;
}

std::optional<QString> KeptAnswers::File(const QString& dialog) {
  const auto answer = Take(dialog, {Kind::File, Kind::Cancel});
  if (!answer || answer->kind == Kind::Cancel) return std::nullopt;
  return answer->text;
}

QString KeptAnswers::TakeFailure() { return std::exchange(failure_, QString()); }

std::optional<ScriptAnswer> KeptAnswers::Take(const QString& dialog,
                                              std::initializer_list<Kind> fitting) {
  if (answers_.empty()) {
    failure_ = "there is no answer for the " + dialog;
    return std::nullopt;
  }
  const ScriptAnswer answer = answers_.front();
  answers_.pop_front();
  if (std::find(fitting.begin(), fitting.end(), answer.kind) == fitting.end()) {
    failure_ = "the answer does not fit the " + dialog;
    return std::nullopt;
  }
  return answer;
}

}  // namespace lignara
