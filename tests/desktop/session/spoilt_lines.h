#pragma once

#include <QStringList>
#include <random>
#include <vector>

namespace lignara {

/// Sessions that nobody wrote: lines of the kept scripts, some of them spoilt. The same seed gives
/// the same.
class SpoiltLines {
 public:
  explicit SpoiltLines(unsigned seed) : random_(seed) {}

  /// A part of a kept script, mostly from its start on, so that it comes deep into the program.
  QStringList Session();
  int Pick(qsizetype count);

 private:
  QString Spoilt(const QString& line);
  const QString& AnyOf(const QStringList& texts);
  /// A line in the place of another: its words, with one of them changed.
  QString WithWord(const QString& line, const QString& word);
  QString BadBytes(const QString& line);

  std::mt19937 random_;
};

}  // namespace lignara
