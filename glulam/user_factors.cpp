#include "glulam/user_factors.h"

#include <optional>

#include "app/data_directory.h"
#include "app/fault.h"
#include "app/field_file.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/number_that_fits.h"
#include "app/plain_number.h"
#include "app/replace_file.h"
#include "glulam/allowable_stresses.h"

namespace lignara {
namespace {

constexpr const char* kFactorFile = "USERADJ.CSV";

/// The next factor; nothing where there is none that can be read.
std::optional<Float32> ReadFactor(FieldFile& file) {
  const double number = file.ReadFilledValue();
  return file.LastFieldRead() ? NumberThatFits(number) : std::nullopt;
}

/// A factor as a line of its file: one leading blank where it is not negative.
std::string FactorLine(const Float32& factor) {
  return (factor < 0 ? "" : " ") + PlainNumber(factor) + "\n";
}

FieldFile FactorFile(const SessionState& session, Platform& platform) {
  return session.FactorsInstead
             ? FieldFile::InsteadOf(kFactorFile, *session.FactorsInstead, platform)
             : FieldFile(session.DataDirectory, kFactorFile, platform);
}

/// The factors of the window as lines of their file; nothing where one is too large, which is told.
std::optional<std::string> FactorLines(const GlulamWindow& window) {
  std::string lines;
  for (const std::string& text : window.factors) {
    const std::optional<Float32> factor = NumberThatFits(ReadNumber(text));
    if (!factor) return std::nullopt;
    lines += FactorLine(*factor);
  }
  return lines;
}

}  // namespace

void ShowDefaultFactors(GlulamWindow& window, const SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  window.factors.fill(FormatNumber(1.0, kTwoDecimals));
  FieldFile file = FactorFile(session, platform);
  for (std::string& factor : window.factors) {
    const std::optional<Float32> number = ReadFactor(file);
    if (!number) return;
    factor = FormatNumber(*number, kTwoDecimals);
  }
}

void SaveUserFactors(const GlulamWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  const std::optional<std::string> lines = FactorLines(window);
  if (!lines) return;
  const std::string path = DataPath(session.DataDirectory, kFactorFile);
  const std::optional<std::string> before = FileText(path);
  if (!ReplaceFile(path, *lines)) return;
  if (!session.FactorsAtStart) session.FactorsAtStart = before.value_or("");
  session.FactorsInstead.reset();
}

void HoldUserFactors(const GlulamWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  if (const auto lines = FactorLines(window)) session.FactorsInstead = lines;
}

void ApplyUserFactors(GlulamWindow& window) {
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    std::string& value = window.values[i];
    const std::optional<Float32> factor = NumberThatFits(ReadNumber(window.factors[i]));
    if (factor) ShowValue(value, ReadNumber(value) * *factor, kTwoDecimals);
  }
}

}  // namespace lignara
