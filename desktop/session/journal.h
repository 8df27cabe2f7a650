#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <vector>

namespace lignara {

/// A file that this program has open and locked; closing it frees it for others.
class LockedFile {
 public:
  LockedFile() = default;
  /// Makes a file that only the user can read.
  static LockedFile Make(const QString& path);
  /// Opens a file of this user that no other program holds.
  static LockedFile Take(const QString& path);
  LockedFile(LockedFile&& other) noexcept : descriptor_(other.Release()) {}
  LockedFile& operator=(LockedFile&& other) noexcept;
  ~LockedFile();

  bool IsOpen() const { return descriptor_ >= 0; }
  /// Adds bytes at the end; they are on the disk when this returns. False where they are not.
  bool Append(const QByteArray& bytes);
  QByteArray ReadAll() const;

 private:
  explicit LockedFile(int descriptor) : descriptor_(descriptor) {}
  int Release();

  int descriptor_ = -1;
};

/// What the user does, line by line on the disk while it happens, so that a program that is killed
/// loses none of it. One file a program; a program that ends by itself takes it away.
class Journal {
 public:
  /// Begins a journal in a folder, which is made, for the user alone, where it is missing.
  explicit Journal(const QString& folder);
  ~Journal();
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  /// False where the folder cannot be written, or lines could not. Until they can be replaced
  /// nothing more is written then: a journal with a gap would restore what never was.
  bool IsWritten() const { return written_; }
  void Append(const QStringList& lines);
  /// Puts other lines in the place of all; at each moment one or the other is on the disk.
  void Replace(const QStringList& lines);

 private:
  QString path_;
  LockedFile file_;  ///< stays locked as long as the program runs, written or not
  bool written_ = false;
};

/// The journal of a program that was ended before it could take it away. Nobody else gets it while
/// this stands.
struct LeftJournal {
  QString path;
  QDateTime last;  ///< when its last line was written
  QStringList lines;
  LockedFile lock;
};

/// Where this user's journals are.
QString JournalFolder();

/// The journals in a folder that no running program holds, the newest first. Those without a line
/// are taken away, and so is what a program left that was ended while it replaced its journal.
std::vector<LeftJournal> LeftJournals(const QString& folder);

/// Keeps a journal as a session file beside it; its path, empty where that fails.
QString KeepAsSession(const LeftJournal& journal);

}  // namespace lignara
