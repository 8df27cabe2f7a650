#include "app/field_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "app/data_directory.h"
#include "app/number_reader.h"

namespace lignara {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

FieldStream::FieldStream(std::string text) : text_(std::move(text)) {
  if (text_.starts_with(kUtf8Mark)) at_ = kUtf8Mark.size();
}

void FieldStream::SkipBlanks() {
  while (at_ < text_.size() && IsBlank(text_[at_])) ++at_;
}

bool FieldStream::AtEnd() {
  while (at_ < text_.size() && (IsBlank(text_[at_]) || AtLineEnd())) ++at_;
  return at_ >= text_.size();
}

std::optional<std::string> FieldStream::Next() {
  if (AtEnd()) return std::nullopt;
  std::string field = text_[at_] == '"' ? QuotedField() : BareField();
  // Nothing between a closing quote and the end of its field counts.
  while (at_ < text_.size() && text_[at_] != ',' && !AtLineEnd()) ++at_;
  if (at_ < text_.size()) ++at_;
  return field;
}

std::string FieldStream::QuotedField() {
  std::string field;
  for (++at_; at_ < text_.size() && !AtLineEnd(); ++at_) {
    if (text_[at_] == '"') {
      ++at_;
      if (at_ >= text_.size() || text_[at_] != '"') break;
    }
    field += text_[at_];
  }
  return field;
}

std::string FieldStream::BareField() {
  const std::size_t start = at_;
  at_ = std::min(text_.find_first_of(",\r\n", at_), text_.size());
  std::size_t end = at_;
  while (end > start && IsBlank(text_[end - 1])) --end;
  return text_.substr(start, end - start);
}

FieldFile::FieldFile(const std::string& dataDirectory, const std::string& fileName,
                     Platform& platform)
    : platform_(platform), fileName_(fileName), fields_("") {
  std::optional<std::string> text;
  if (!fileName.empty()) text = FileText(DataPath(dataDirectory, fileName));
  missing_ = !text;
  if (missing_) {
    Report(fileName.empty() ? "This row names no file"
                            : "Cannot open " + fileName + " in " + FolderOf(dataDirectory));
  } else {
    fields_ = FieldStream(std::move(*text));
  }
}

FieldFile FieldFile::InsteadOf(const std::string& fileName, const std::string& text,
                               Platform& platform) {
  return FieldFile(platform, fileName, text);
}

std::string FieldFile::ReadText() { return Next().value_or(""); }

double FieldFile::ReadValue() { return ValueOf(Next().value_or("")); }

double FieldFile::ReadFilledValue() {
  const std::optional<std::string> field = Next();
  if (field && field->empty()) FailNumber(" cannot be read");
  return ValueOf(field.value_or(""));
}

double FieldFile::ValueOf(const std::string& field) {
  const Number number = ReadNumber(field);
  if (number.fault() != Fault::None) FailNumber(" is too large");
  if (!field.empty() && !StartsWithNumber(field)) FailNumber(" cannot be read");
  return number.value();
}

void FieldFile::FailNumber(const char* how) {
  lastFieldRead_ = false;
  Report("A number in " + fileName_ + how);
}

int FieldFile::ReadCount() { return CountOf(ReadValue()); }

int FieldFile::ReadFilledCount() { return CountOf(ReadFilledValue()); }

int FieldFile::CountOf(double value) {
  const double count = std::nearbyint(value);
  const bool large = count > std::numeric_limits<std::int16_t>::max();
  if (count >= 0 && !large) return static_cast<int>(count);
  Report("A number in " + fileName_ + (large ? " is too large" : " is too small"));
  return 0;
}

std::optional<std::string> FieldFile::Next() {
  std::optional<std::string> field = fields_.Next();
  lastFieldRead_ = field.has_value();
  if (!field && !missing_) Report("The file " + fileName_ + " is too short");
  return field;
}

void FieldFile::Report(const std::string& text) {
  if (text == lastReport_) return;
  lastReport_ = text;
  platform_.ShowMessage({text});
}

}  // namespace lignara
