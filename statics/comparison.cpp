#include "statics/comparison.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "app/number_pattern.h"
#include "app/report_file.h"

namespace lignara {
namespace {

/// How values of a kind are told. What rounding to the pattern can make is no difference.
struct KindRow {
  const char* plural;  ///< with their unit in words
  const char* unit;
  const char* pattern;
  double smallest;  ///< the last decimal of the pattern
};

constexpr std::size_t kKinds = 7;
constexpr std::array<KindRow, kKinds> kKindRows = {{
    {"member forces in lbs", "lbs", "0.00", 0.01},
    {"reactions in lbs", "lbs", "0.00", 0.01},
    {"deflections in inches", "in", "0.000", 0.001},
    {"shears in lbs", "lbs", "0.00", 0.01},
    {"moments in ft-lbs", "ft-lbs", "0.00", 0.01},
    {"end moments in ft-lbs", "ft-lbs", "0.00", 0.01},
    {"deflections in inches", "in", "0.0000", 0.0001},
}};

std::size_t PlaceOf(ComparedKind kind) { return static_cast<std::size_t>(kind); }
const KindRow& RowOf(ComparedKind kind) { return kKindRows[PlaceOf(kind)]; }

/// The largest value of each kind by statics; where statics finds none, by the run.
std::array<double, kKinds> LargestOfKinds(const std::vector<ComparedValue>& values) {
  std::array<double, kKinds> exact{}, found{};
  for (const ComparedValue& value : values) {
    const std::size_t kind = PlaceOf(value.kind);
    exact[kind] = std::max(exact[kind], std::abs(value.statics));
    found[kind] = std::max(found[kind], std::abs(value.lignara));
  }
  for (std::size_t kind = 0; kind < kKinds; ++kind) {
    if (exact[kind] < kKindRows[kind].smallest) exact[kind] = found[kind];
    exact[kind] = std::max(exact[kind], kKindRows[kind].smallest);
  }
  return exact;
}

std::vector<StaticsDifference> DifferencesOf(const std::vector<ComparedValue>& values) {
  const std::array<double, kKinds> largest = LargestOfKinds(values);
  std::vector<StaticsDifference> differences;
  differences.reserve(values.size());
  for (const ComparedValue& value : values) {
    const double apart = std::abs(value.lignara - value.statics);
    const bool shown = apart > 0.5001 * RowOf(value.kind).smallest;
    differences.push_back({value, shown ? apart / largest[PlaceOf(value.kind)] : 0.0});
  }
  return differences;
}

/// A number as its window shows it: results of 32 bits have 7 digits.
std::string ValueText(double value, ComparedKind kind) {
  const char* pattern = RowOf(kind).pattern;
  const auto single = static_cast<float>(value);
  return static_cast<double>(single) == value ? FormatNumber(single, pattern)
                                              : FormatNumber(value, pattern);
}

std::string PercentText(double share) {
  const double percent = 100 * share;
  const char* pattern = percent < 0.995 ? "0.00" : percent < 9.95 ? "0.0" : "0";
  return FormatNumber(percent, pattern) + " %";
}

/// Shares that print alike are alike, so that the order is that of the window and not of rounding.
long long Rank(const StaticsDifference& difference) {
  return std::llround(std::min(difference.share, 1e9) * 1e5);
}

bool IsWorse(const StaticsDifference& a, const StaticsDifference& b) { return Rank(a) > Rank(b); }
bool IsSmaller(const StaticsDifference& a, const StaticsDifference& b) { return a.share < b.share; }

/// Rounded up, so that "within" is true.
std::string AgreementLine(double share) {
  const double percent = std::ceil(share * 1e4 - 1e-6) / 100;
  return "Agrees with statics within " + FormatNumber(percent, kTwoDecimals) + " %.";
}

std::string DifferenceLine(const StaticsDifference& worst) {
  const ComparedValue& value = worst.value;
  return "Differs from statics: " + value.item + " by " + PercentText(worst.share) + " (" +
         ValueText(value.lignara, value.kind) + ", statics " +
         ValueText(value.statics, value.kind) + " " + RowOf(value.kind).unit + ").";
}

void AddSection(Report& report, const std::string& head, const std::vector<std::string>& lines) {
  if (lines.empty()) return;
  report.Line(head);
  for (const std::string& line : lines) report.Line(line);
  report.Line();
}

Report ReportOf(const StaticsCheck& check, const std::string& title) {
  Report report;
  if (!title.empty()) report.Line(title);
  report.Line("Statics Check");
  report.Line(check.line);
  report.Line();
  AddSection(report, "Structure", check.structure);
  AddSection(report, "Loads", check.loads);
  if (check.differences.empty()) return report;
  report.Heads(kDifferenceHeads);
  for (const auto& row : DifferenceRows(check)) report.Columns(row);
  report.Line();
  report.Line(UnitsNote(check));
  return report;
}

}  // namespace

double PeakOf(const CurveRange& range, double like) {
  const bool isAbove = std::fabs(range.most) >= std::fabs(range.least);
  const double larger = isAbove ? range.most : range.least;
  const double other = isAbove ? range.least : range.most;
  const bool isAsLarge = std::fabs(other) >= (1 - kAgreementShare) * std::fabs(larger);
  return isAsLarge && larger * like < 0 && other * like > 0 ? other : larger;
}

void ClearStatics(StaticsCheck& check) {
  const bool open = check.open;
  check = StaticsCheck();
  check.open = open;
}

void ShowMechanism(StaticsCheck& check) {
  ClearStatics(check);
  check.verdict = StaticsVerdict::Mechanism;
  check.line = "Mechanism: no equilibrium is possible.";
}

void ShowStatics(StaticsCheck& check, const std::vector<ComparedValue>& values) {
  ClearStatics(check);
  if (values.empty()) return;
  check.differences = DifferencesOf(values);
  const auto first = check.differences.begin(), last = check.differences.end();
  const double most = std::max_element(first, last, IsSmaller)->share;
  const bool agrees = most <= kAgreementShare;
  check.verdict = agrees ? StaticsVerdict::Agrees : StaticsVerdict::Differs;
  check.line =
      agrees ? AgreementLine(most) : DifferenceLine(*std::min_element(first, last, IsWorse));
}

std::vector<std::vector<std::string>> DifferenceRows(const StaticsCheck& check) {
  std::vector<const StaticsDifference*> order;
  for (const StaticsDifference& difference : check.differences) order.push_back(&difference);
  std::stable_sort(order.begin(), order.end(),
                   [](const auto* a, const auto* b) { return IsWorse(*a, *b); });
  std::vector<std::vector<std::string>> rows;
  rows.reserve(order.size());
  for (const StaticsDifference* difference : order) {
    const ComparedValue& value = difference->value;
    rows.push_back({value.item, ValueText(value.lignara, value.kind),
                    ValueText(value.statics, value.kind), PercentText(difference->share)});
  }
  return rows;
}

std::string UnitsNote(const StaticsCheck& check) {
  std::array<bool, kKinds> compared{};
  for (const auto& difference : check.differences) compared[PlaceOf(difference.value.kind)] = true;
  std::string note;
  for (std::size_t kind = 0; kind < kKinds; ++kind) {
    if (!compared[kind]) continue;
    note += std::string(note.empty() ? "" : ", ") + kKindRows[kind].plural;
  }
  if (note.empty()) return note;
  note[0] = static_cast<char>(note[0] - 'a' + 'A');
  return note + "; differences as a share of the largest of their kind.";
}

void SaveDifferences(const StaticsCheck& check, const std::string& title, Platform& platform) {
  if (auto file = CreateReportFile(platform)) {
    WriteReportFile(*file, ReportOf(check, title), platform);
  }
}

}  // namespace lignara
