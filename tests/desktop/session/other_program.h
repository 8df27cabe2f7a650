#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <map>

namespace lignara {

/// A test of this very program that runs in a process of its own, which can be killed. Its name
/// begins with DISABLED_, so that it is run in no other way.
class OtherProgram {
 public:
  /// `settings` are put into its environment. What it makes for the moment comes into `folder`.
  OtherProgram(const char* test, const QString& folder, const std::map<QString, QString>& settings);

  /// Waits until it has said so many lines that begin with kSays, or has ended.
  void WaitFor(qsizetype lines);
  void Say(const QString& line);
  void Kill();
  /// Waits for its own end; false where it failed.
  bool EndsWell();

  /// What it has said so far.
  const QStringList& said() const { return said_; }
  bool WasKilled() const { return process_.exitStatus() == QProcess::CrashExit; }
  qint64 pid() const { return process_.processId(); }
  /// All its output, for a failing test.
  std::string Output() const { return output_.toStdString(); }

 private:
  void Read();

  QProcess process_;
  QStringList said_;
  QByteArray output_;
};

/// In the other program: says a line to the test that started it, at once.
void SayToTest(const QString& line);
/// In the other program: waits for a line of the test; empty where there is none any more.
QString HearTest();
/// In the other program: it ends as soon as the test that started it does.
void DieWithTest();

}  // namespace lignara
