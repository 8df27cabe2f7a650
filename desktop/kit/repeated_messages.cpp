#include "desktop/kit/repeated_messages.h"

namespace lignara {

void RepeatedMessages::EndCommand() {
  if (--depth_ == 0) told_.clear();
}

RepeatedMessages::Box RepeatedMessages::Next(const Message& message) {
  if (depth_ == 0) return Box::Plain;
  Told& told = Of(message);
  if (told.silent) return Box::None;
  return ++told.times == 1 ? Box::Plain : Box::WithOffer;
}

void RepeatedMessages::Silence(const Message& message) {
  if (depth_ > 0) Of(message).silent = true;
}

}  // namespace lignara
