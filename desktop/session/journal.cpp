#include "desktop/session/journal.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <utility>

namespace lignara {
namespace {

constexpr const char* kEnding = ".journal";
/// What shall stand in the place of a journal is written beside it.
constexpr const char* kBeside = ".new";
constexpr mode_t kForUserOnly = S_IRUSR | S_IWUSR;

/// Another program may be about to take the file away: what is locked has to be what stands there.
/// In a folder that several users write, what another one left is none of this user's sessions.
bool Holds(int descriptor, const QByteArray& path) {
  struct stat held;
  struct stat there;
  return flock(descriptor, LOCK_EX | LOCK_NB) == 0 && fstat(descriptor, &held) == 0 &&
         stat(path.constData(), &there) == 0 && held.st_ino == there.st_ino &&
         held.st_uid == geteuid();
}

int OpenLocked(const QString& path, int flags) {
  const QByteArray name = QFile::encodeName(path);
  const int descriptor =
      open(name.constData(), O_RDWR | O_APPEND | O_CLOEXEC | O_NOFOLLOW | flags, kForUserOnly);
  if (descriptor < 0 || Holds(descriptor, name)) return descriptor;
  close(descriptor);
  return -1;
}

QByteArray Bytes(const QStringList& lines) {
  return lines.isEmpty() ? QByteArray() : (lines.join('\n') + "\n").toUtf8();
}

bool MakeFolder(const QString& folder) {
  const QFileInfo info(folder);
  if (info.isDir()) return true;
  return QDir().mkpath(info.path()) &&
         mkdir(QFile::encodeName(folder).constData(), kForUserOnly | S_IXUSR) == 0;
}

/// Puts the names of a folder on the disk, without which a file is not found after a power cut.
void FlushFolderOf(const QString& path) {
  const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
  const int descriptor = open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

/// The whole lines of a journal: its writer may have been stopped within the last one.
QStringList WholeLines(const QByteArray& bytes) {
  QStringList lines = QString::fromUtf8(bytes.left(bytes.lastIndexOf('\n') + 1)).split('\n');
  lines.removeIf([](const QString& line) { return line.isEmpty(); });
  return lines;
}

}  // namespace

LockedFile LockedFile::Make(const QString& path) {
  return LockedFile(OpenLocked(path, O_CREAT | O_EXCL));
}

LockedFile LockedFile::Take(const QString& path) { return LockedFile(OpenLocked(path, 0)); }

LockedFile& LockedFile::operator=(LockedFile&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

LockedFile::~LockedFile() {
  if (IsOpen()) close(descriptor_);
}

int LockedFile::Release() { return std::exchange(descriptor_, -1); }

bool LockedFile::Append(const QByteArray& bytes) {
  qsizetype done = 0;
  while (done < bytes.size()) {
    const ssize_t count =
        write(descriptor_, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    done += count;
  }
  return fdatasync(descriptor_) == 0;
}

QByteArray LockedFile::ReadAll() const {
  QFile file;
  if (!file.open(dup(descriptor_), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) return {};
  file.seek(0);
  return file.readAll();
}

Journal::Journal(const QString& folder) {
  if (!MakeFolder(folder)) return;
  const QString moment = QDateTime::currentDateTime().toString("yyyyMMdd-hhmmss-zzz");
  constexpr int kTries = 100;
  for (int i = 0; i < kTries && !file_.IsOpen(); ++i) {
    path_ = QString("%1/%2-%3-%4%5")
                .arg(folder, moment)
                .arg(QCoreApplication::applicationPid())
                .arg(i)
                .arg(kEnding);
    file_ = LockedFile::Make(path_);
  }
  written_ = file_.IsOpen();
  if (written_) FlushFolderOf(path_);
}

Journal::~Journal() {
  if (file_.IsOpen()) QFile::remove(path_);
}

void Journal::Append(const QStringList& lines) {
  written_ = written_ && file_.Append(Bytes(lines));
}

void Journal::Replace(const QStringList& lines) {
  if (!file_.IsOpen()) return;
  const QString beside = path_ + kBeside;
  LockedFile file = LockedFile::Make(beside);
  written_ =
      file.IsOpen() && file.Append(Bytes(lines)) &&
      rename(QFile::encodeName(beside).constData(), QFile::encodeName(path_).constData()) == 0;
  if (written_) {
    file_ = std::move(file);
    FlushFolderOf(path_);
  } else if (file.IsOpen()) {
    QFile::remove(beside);
  }
}

QString JournalFolder() {
  const QString state = qEnvironmentVariable("XDG_STATE_HOME");
  const bool usable = QDir::isAbsolutePath(state);
  return (usable ? state : QDir::homePath() + "/.local/state") + "/lignara";
}

namespace {

QFileInfoList FilesEnding(const QString& folder, const QString& ending) {
  return QDir(folder).entryInfoList({"*" + ending}, QDir::Files);
}

/// What was to replace a journal that is there no more belongs to nobody.
void TakeAwayOrphans(const QString& folder) {
  for (const QFileInfo& info : FilesEnding(folder, QString(kEnding) + kBeside)) {
    const QString path = info.filePath();
    const bool orphan = !QFileInfo::exists(path.chopped(QString(kBeside).size()));
    if (orphan && LockedFile::Take(path).IsOpen()) QFile::remove(path);
  }
}

/// What was written beside a journal whose writer is gone. Asks for the lock as well: it might be a
/// link, or another user's.
void TakeAwayBeside(const QString& journal) {
  const QString path = journal + kBeside;
  if (LockedFile::Take(path).IsOpen()) QFile::remove(path);
}

}  // namespace

std::vector<LeftJournal> LeftJournals(const QString& folder) {
  TakeAwayOrphans(folder);
  std::vector<LeftJournal> left;
  for (const QFileInfo& info : FilesEnding(folder, kEnding)) {
    LockedFile lock = LockedFile::Take(info.filePath());
    if (!lock.IsOpen()) continue;
    TakeAwayBeside(info.filePath());
    const QStringList lines = WholeLines(lock.ReadAll());
    if (lines.isEmpty()) {
      QFile::remove(info.filePath());
      continue;
    }
    left.push_back({info.filePath(), info.lastModified(), lines, std::move(lock)});
  }
  std::sort(left.begin(), left.end(),
            [](const LeftJournal& a, const LeftJournal& b) { return a.last > b.last; });
  return left;
}

QString KeepAsSession(const LeftJournal& journal) {
  const QFileInfo info(journal.path);
  const QString kept = info.path() + "/" + info.completeBaseName() + ".lig";
  return QFile::rename(journal.path, kept) ? kept : QString();
}

}  // namespace lignara
