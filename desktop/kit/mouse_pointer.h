#pragma once

namespace lignara {

/// While it is set, the pointer tells that the program is at work.
void SetWaitingPointer(bool waiting);

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

}  // namespace lignara
