#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "app/platform.h"
#include "app/stored_number.h"

namespace lignara {

/// A text as a stream of fields, each ended by a comma or a line end.
///
/// - A field may stand in double quotes, which keep commas and blanks; two quotes in it stand for
///   one. A quote that is never closed ends with its line.
/// - Blanks around a field do not count. Blank lines are passed over, and so is a comma at the end
///   of a line: a record may break over lines.
/// - Line ends of all systems serve; a UTF-8 mark at the start is passed over.
class FieldStream {
 public:
  explicit FieldStream(std::string text);

  /// The next field; nothing behind the last one.
  std::optional<std::string> Next();
  /// True where nothing but blank lines is left.
  bool AtEnd();

 private:
  void SkipBlanks();
  std::string QuotedField();
  std::string BareField();
  bool AtLineEnd() const { return text_[at_] == '\n' || text_[at_] == '\r'; }

  std::string text_;
  std::size_t at_ = 0;
};

/// A comma-separated file of the data directory, read field by field.
///
/// A file that cannot be opened, that ends too early, or that has letters for a number, is shown
/// once in a plain box; the field is then empty or 0, and the reading goes on. Text behind the last
/// field asked for is passed over.
class FieldFile {
 public:
  FieldFile(const std::string& dataDirectory, const std::string& fileName, Platform& platform);
  /// The same for a text that stands in the place of the file.
  static FieldFile InsteadOf(const std::string& fileName, const std::string& text,
                             Platform& platform);

  /// The next field as text.
  std::string ReadText();
  /// The next field as a number; 0 where it is empty, no number, or too large.
  double ReadValue();
  /// The same where a number has to stand: an empty field is told as one that cannot be read.
  double ReadFilledValue();
  /// The next field as the count of the records that follow: 0 to 32767. What is no such number is
  /// shown and counts as 0.
  int ReadCount();
  /// The same where a count has to stand: an empty field is told as one that cannot be read.
  int ReadFilledCount();
  /// False where the last field asked for was missing, no number, or too large.
  bool LastFieldRead() const { return lastFieldRead_; }
  /// True where no further field can be read.
  bool AtEnd() { return fields_.AtEnd(); }

 private:
  FieldFile(Platform& platform, const std::string& fileName, const std::string& text)
      : platform_(platform), fileName_(fileName), fields_(text) {}
  std::optional<std::string> Next();
  double ValueOf(const std::string& field);
  int CountOf(double value);
  void FailNumber(const char* how);
  /// Shows what happened, unless the file has shown the same before.
  void Report(const std::string& text);

  Platform& platform_;
  std::string fileName_;
  FieldStream fields_;
  bool missing_ = false;
  bool lastFieldRead_ = true;
  std::string lastReport_;
};

}  // namespace lignara
