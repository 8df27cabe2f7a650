#pragma once

#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace lignara {

/// The milliseconds that a play takes before it shows a bar.
inline constexpr int kProgressAfter = 500;

/// While a session is played, a user's hand does nothing in the windows: what is clicked and typed
/// is dropped. When the play takes long, a bar with "Cancel" comes up, above every window and
/// barred by none; Escape cancels wherever the focus is.
class PlayProgress : public QDialog {
 public:
  /// `what` the program does, in words for the user; `after` are the milliseconds from which on the
  /// bar is shown.
  PlayProgress(const QString& what, int lines, int after);
  ~PlayProgress() override;

  /// Called ahead of each line: so many are done. False when the user has cancelled.
  bool Step(int done);

  bool eventFilter(QObject* watched, QEvent* event) override;
  /// Escape and the window's own close control.
  void reject() override { cancelled_ = true; }

 private:
  bool Is(const QObject* watched) const;
  void ComeUp();

  QProgressBar* bar_;
  QElapsedTimer since_;
  QElapsedTimer shown_;
  int after_;
  bool cancelled_ = false;
};

}  // namespace lignara
