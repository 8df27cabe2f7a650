#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "desktop/session/journal_keeper.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/monkey.h"

namespace lignara {

/// A program with a journal in which a hand without a plan acts. The same seed does the same, in
/// whatever process.
class RandomWalk : private ActionListener {
 public:
  RandomWalk(unsigned seed, const QString& journalFolder);
  ~RandomWalk() override;

  /// Is told each time an action has ended and is in the journal, of how many did so far.
  void OnActed(std::function<void(int acted)> told) { told_ = std::move(told); }
  /// A step is several actions: one may come back to a window, act there, and lead on to another.
  void Step();
  int acted() const { return acted_; }

  /// What the windows show; each walk has a data folder of its own.
  QStringList Shown();
  Monkey& monkey() { return monkey_; }
  Sessions& sessions() { return sessions_; }
  JournalKeeper& keeper() { return keeper_; }

 private:
  void Begin(ToolWindow* window, const UserAction& action) override;
  void Answered(const QString& answer) override { sessions_.record().Answered(answer); }
  void BoxShown() override { sessions_.record().BoxShown(); }
  void End() override;
  void TakeBack();
  void Tell();

  Monkey monkey_;
  Sessions sessions_;
  JournalKeeper keeper_;
  std::function<void(int)> told_ = [](int) {};
  int acted_ = 0;
  int steps_ = 0;
  bool takesBack_ = false;
};

}  // namespace lignara
