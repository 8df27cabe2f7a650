#include "tests/desktop/session/other_program.h"

#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QCoreApplication>
#include <csignal>
#include <iostream>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

const QByteArray kSays = "says ";
constexpr int kPatience = 300000;  // milliseconds, on a machine that has other work, too

}  // namespace

OtherProgram::OtherProgram(const char* test, const QString& folder,
                           const std::map<QString, QString>& settings) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const auto& [name, value] : settings) environment.insert(name, value);
  environment.insert("TMPDIR", folder);
  for (const char* part : {"GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"}) environment.remove(part);
  process_.setProcessEnvironment(environment);
  process_.setProcessChannelMode(QProcess::MergedChannels);
  process_.start(QCoreApplication::applicationFilePath(),
                 {"--gtest_also_run_disabled_tests", QString("--gtest_filter=") + test});
}

void OtherProgram::WaitFor(qsizetype lines) {
  Read();
  while (said_.size() < lines && process_.waitForReadyRead(kPatience)) Read();
}

void OtherProgram::Say(const QString& line) {
  process_.write((line + "\n").toUtf8());
  process_.waitForBytesWritten(kPatience);
}

void OtherProgram::Kill() {
  process_.kill();
  process_.waitForFinished(kPatience);
  Read();
}

bool OtherProgram::EndsWell() {
  process_.waitForFinished(kPatience);
  Read();
  return process_.exitStatus() == QProcess::NormalExit && process_.exitCode() == 0;
}

void OtherProgram::Read() {
  while (process_.canReadLine()) {
    const QByteArray line = process_.readLine();
    output_ += line;
    if (line.startsWith(kSays)) said_ << QString::fromUtf8(line.mid(kSays.size()).trimmed());
  }
}

void SayToTest(const QString& line) {
  std::cout << kSays.toStdString() << FromQt(line) << std::endl;
}

QString HearTest() {
  std::string line;
  std::getline(std::cin, line);
  return ToQt(line);
}

void DieWithTest() { prctl(PR_SET_PDEATHSIG, SIGKILL); }

}  // namespace lignara
