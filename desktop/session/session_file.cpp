#include "desktop/session/session_file.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "app/program.h"
#include "app/replace_file.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// More than a user does in a year; what is larger is no session.
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

constexpr const char* kFactors = "# own glulam factors at the start: ";

QStringList Header(const QString& path, const SessionState& session) {
  QString title = ToQt(session.ReportTitle);
  if (title.isEmpty()) title = ToQt(session.Header.Title);
  if (title.isEmpty()) title = QFileInfo(path).completeBaseName();
  return QStringList{"# A session, to be opened again or run by lignara-script",
                     QString("# program: %1 %2").arg(kProgramName, ProgramVersion()),
                     "# date: " + QDateTime::currentDateTime().toString("yyyy-MM-dd hh:mm"),
                     "# title: " + title.simplified()} +
         StartLines(session);
}

}  // namespace

QStringList ReadSessionFile(const QString& path, QString& refusal) {
  QFile file(path);
  // To open what is no file, such as a pipe, may wait for ever.
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
    refusal = "Cannot read " + path;
    return {};
  }
  const QByteArray bytes = file.read(kLargestFile + 1);
  if (bytes.size() > kLargestFile) {
    refusal = path + " is too large for a session";
    return {};
  }
  return QString::fromUtf8(bytes).remove('\r').split('\n');
}

QStringList StartLines(const SessionState& session) {
  if (!session.FactorsAtStart) return {};
  return {kFactors + ToQt(*session.FactorsAtStart).simplified()};
}

std::optional<std::string> StartFactorsIn(const QStringList& lines) {
  for (const QString& line : lines) {
    if (!line.startsWith(kFactors)) continue;
    return FromQt(line.mid(QString(kFactors).size()).split(' ').join('\n') + "\n");
  }
  return std::nullopt;
}

bool WriteSessionFile(const QString& path, const SessionState& session, const QStringList& lines) {
  const QString text = (Header(path, session) + lines).join('\n') + "\n";
  return ReplaceFile(FromQt(path), FromQt(text));
}

}  // namespace lignara
