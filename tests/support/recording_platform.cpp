#include "tests/support/recording_platform.h"

#include <stdexcept>
#include <utility>

namespace lignara {
namespace {

template <typename T>
T TakeAnswer(std::deque<T>& answers) {
  if (answers.empty()) throw std::logic_error("the test gave no answer for a dialog");
  T answer = std::move(answers.front());
  answers.pop_front();
  return answer;
}

}  // namespace

bool RecordingPlatform::AskYesNo(const std::string&, const std::string& text) {
  asked.push_back(text);
  return TakeAnswer(yesNoAnswers);
}

std::optional<std::string> RecordingPlatform::PromptText(const std::string&,
                                                         const std::string& text,
                                                         const std::string&) {
  asked.push_back(text);
  return TakeAnswer(textAnswers);
}

std::optional<std::string> RecordingPlatform::ChooseSaveFile(const std::string& filter) {
  filters.push_back(filter);
  return TakeAnswer(fileAnswers);
}

std::vector<std::string> RecordingPlatform::TakeTexts() {
  std::vector<std::string> texts;
  for (const Message& message : messages) texts.push_back(message.text);
  messages.clear();
  return texts;
}

}  // namespace lignara
