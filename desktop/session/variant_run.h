#pragma once

#include <QProcess>
#include <QString>
#include <functional>

#include "desktop/session/variants.h"

namespace lignara {

/// The program that plays variants, beside the one that runs; empty where it is missing.
QString VariantProgram();

/// A run of variants, out of sight in a program of its own: the windows of this one stay as they
/// are and can be worked in meanwhile. Rows come in the order of the values.
class VariantRun {
 public:
  /// How a run ended.
  enum class End { Done, Cancelled, Failed };

  /// `told` is handed each outcome as it comes, `ended` is called once a run. Neither may end the
  /// life of this object.
  VariantRun(std::function<void(VariantOutcome)> told, std::function<void(End)> ended);
  /// A run that goes on ends without a word.
  ~VariantRun();

  /// Begins to play variants with the data files of a folder. `program` plays them.
  void Start(const Variants& variants, const QString& folder,
             const QString& program = VariantProgram());
  /// Returns when the run has ended.
  void WaitForEnd();
  /// Ends the run; what came so far was told.
  void Cancel();
  bool IsRunning() const { return running_; }

 private:
  void ReadAnswers();
  void Finished();

  std::function<void(VariantOutcome)> told_;
  std::function<void(End)> ended_;
  qsizetype left_ = 0;  ///< values without an outcome
  bool running_ = false;
  bool cancelled_ = false;
  QProcess process_;
};

}  // namespace lignara
