#include "desktop/session/variant_run.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <utility>

#include "desktop/session/variant_pipe.h"

namespace lignara {

QString VariantProgram() {
  return QStandardPaths::findExecutable("lignara-script", {QCoreApplication::applicationDirPath()});
}

VariantRun::VariantRun(std::function<void(VariantOutcome)> told, std::function<void(End)> ended)
    : told_(std::move(told)), ended_(std::move(ended)) {
  process_.setStandardErrorFile(QProcess::nullDevice());
  QObject::connect(&process_, &QProcess::readyReadStandardOutput, &process_,
                   [this] { ReadAnswers(); });
  QObject::connect(&process_, &QProcess::finished, &process_, [this] { Finished(); });
  QObject::connect(&process_, &QProcess::errorOccurred, &process_,
                   [this](QProcess::ProcessError error) {
                     if (error == QProcess::FailedToStart) Finished();
                   });
}

VariantRun::~VariantRun() {
  process_.disconnect();
  process_.kill();
  process_.waitForFinished();
}

void VariantRun::Start(const Variants& variants, const QString& folder, const QString& program) {
  running_ = true;
  cancelled_ = false;
  left_ = variants.values.size();
  process_.start(program, {"--data", folder, "--variants"});
  if (!running_) return;  // it could not even be started
  process_.write(RequestFor(variants));
  process_.closeWriteChannel();
}

void VariantRun::WaitForEnd() {
  if (running_) process_.waitForFinished(-1);
}

void VariantRun::Cancel() {
  if (!running_) return;
  cancelled_ = true;
  process_.kill();
}

void VariantRun::ReadAnswers() {
  while (process_.canReadLine()) {
    const auto outcome = ReadAnswer(process_.readLine());
    if (!outcome || left_ == 0 || cancelled_) continue;
    --left_;
    told_(*outcome);
  }
}

void VariantRun::Finished() {
  if (!std::exchange(running_, false)) return;
  ReadAnswers();
  const End failed = cancelled_ ? End::Cancelled : End::Failed;
  ended_(left_ == 0 ? End::Done : failed);
}

}  // namespace lignara
