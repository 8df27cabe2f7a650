#pragma once

#include <map>
#include <string>
#include <utility>

#include "app/platform.h"

namespace lignara {

/// Counts the equal boxes of one command, so that sixty of a kind need not be answered one by one.
class RepeatedMessages {
 public:
  /// How a box is to be shown: as it is, with the offer not to show it again, or not at all.
  enum class Box { Plain, WithOffer, None };

  /// A command of the user begins or ends. Commands nest: one may open a window that begins with a
  /// command of its own. All is forgotten when the outermost ends.
  void BeginCommand() { ++depth_; }
  void EndCommand();
  bool InCommand() const { return depth_ > 0; }

  /// How the next box of this message is to be shown.
  Box Next(const Message& message);
  /// The user wants no more of these during the command.
  void Silence(const Message& message);

 private:
  struct Told {
    int times = 0;
    bool silent = false;
  };
  Told& Of(const Message& message) { return told_[{message.title, message.text}]; }

  int depth_ = 0;
  std::map<std::pair<std::string, std::string>, Told> told_;
};

}  // namespace lignara
