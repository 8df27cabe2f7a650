#include "truss/report.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/report_file.h"
#include "truss/canvas.h"
#include "truss/top_nodes.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// What the report shows for the area of members that nobody has chosen.
constexpr double kNoMemberArea = 10000.0;

void SetAllAreas(SessionState& session, double area) {
  for (TrussMemberGroup& group : session.Member.Groups) group.GroupArea = area;
}

/// While one stands, groups without a member have an area that no engineer overlooks. Only the top
/// chord's is asked.
class NoMemberRule {
 public:
  explicit NoMemberRule(SessionState& session) : session_(session) {
    if (TopArea() == 0.0) SetAllAreas(session_, kNoMemberArea);
  }
  ~NoMemberRule() {
    if (TopArea() == kNoMemberArea) SetAllAreas(session_, 0.0);
  }
  NoMemberRule(const NoMemberRule&) = delete;
  NoMemberRule& operator=(const NoMemberRule&) = delete;

 private:
  const Float32& TopArea() const { return session_.Member.Group(MemberGroup::Top).GroupArea; }

  SessionState& session_;
};

/// The sections of one report, each line behind the same number of empty zones.
class TrussReport {
 public:
  TrussReport(const TrussWindow& window, const SessionState& session, std::size_t indent)
      : window_(window), session_(session), indent_(indent) {}

  void Title();
  void TrussType() { Line("TRUSS TYPE IS: " + TrussTypeOf(session_.TrussType).title); }
  void Members();
  void AppliedLoads();
  void Reactions();
  void Deflections();
  void WoodType();
  void Stresses();

  Report report;

 private:
  void Line(const std::string& text) { report.Line(text, indent_); }
  void Columns(std::vector<std::string> items, std::size_t emptyZones = 0) {
    report.Columns(std::move(items), indent_ + emptyZones);
  }
  void Heads(std::vector<std::string> items, std::size_t emptyZones = 0) {
    report.Heads(std::move(items), indent_ + emptyZones);
  }
  /// A heading with a blank line behind it.
  void Heading(const std::string& text);
  void MemberRow(const Member& member);
  void NodeRows(const Float32& (*value)(const ActiveModel&, const TopNode&), const char* pattern);

  const TrussWindow& window_;
  const SessionState& session_;
  std::size_t indent_;
};

struct MemberSection {
  const char* heading;
  std::initializer_list<Family> families;
};

constexpr std::initializer_list<Family> kTops = {Family::TL, Family::TR};
constexpr std::initializer_list<Family> kBottoms = {Family::CL, Family::CR};
constexpr std::initializer_list<Family> kDiagonals = {Family::DL, Family::DR};
constexpr std::initializer_list<Family> kVerticals = {Family::VL, Family::VR, Family::CV};

constexpr std::array<MemberSection, 4> kMemberSections = {{
    {"TOP MEMBERS", kTops},
    {"BOTTOM MEMBERS", kBottoms},
    {"DIAGONAL MEMBERS", kDiagonals},
    {"VERT. MEMBERS", kVerticals},
}};

void TrussReport::Heading(const std::string& text) {
  Line(text);
  report.Line();
}

void TrussReport::Title() {
  report.Line();
  Line("TITLE:   " + session_.ReportTitle);
  Line("DESCRIPTION:   " + session_.ReportDescription);
}

void TrussReport::Members() {
  report.Line();
  Heading("MEMBER INFORMATION");
  Line("Note, if Area = 10000 then no member types were selected.");
  Heads({"MEMBER", "TYPE", "AREA", "LENGTH", "AXIAL"});
  Heads({"in^2", "ft", "LOAD(lb)"}, 2);
  const auto members =
      MembersOf(TrussTypeOf(session_.TrussType).checkedMembers, HalfSpans(session_));
  for (const MemberSection& section : kMemberSections) {
    Line(section.heading);
    for (const Member& member : members) {
      const auto& families = section.families;
      if (std::find(families.begin(), families.end(), member.family) == families.end()) continue;
      MemberRow(member);
    }
  }
}

void TrussReport::MemberRow(const Member& member) {
  const TrussMemberGroup& group = session_.Member.Group(GroupOf(member.family));
  const Float32 axial = Abs(AxialOf(window_.model, member.family)[member.index]);
  Columns({MemberLabel(member), group.GroupSizeName, FormatNumber(group.GroupArea, "0.0"),
           FormatNumber(LengthOf(window_.model, member.family)[member.index], "0.0"),
           FormatNumber(axial, "0.0")});
}

void TrussReport::NodeRows(const Float32& (*value)(const ActiveModel&, const TopNode&),
                           const char* pattern) {
  for (const TopNode& node : TopNodesInReport(TopNodesOf(window_.model, session_))) {
    Line(NodeLabel(node, session_.TrussType) + " = " +
         FormatNumber(value(window_.model, node), pattern));
  }
}

void TrussReport::AppliedLoads() {
  report.Line();
  Heading("APPLIED LOADS (LBS)");
  NodeRows(NodeLoad, "0.0");
}

void TrussReport::Reactions() {
  report.Line();
  Heading("TRUSS END REACTIONS");
  Columns({"R1 = " + window_.leftReaction + " lbs", "R2 = " + window_.rightReaction + " lbs"});
}

void TrussReport::Deflections() {
  report.Line();
  Heading("DEFLECTIONS (in)");
  NodeRows(NodeDeflection, "0.0000");
}

void TrussReport::WoodType() {
  Heading("WOOD TYPE");
  Line("WOOD TYPE IS: " + session_.LastWoodTypes);
  Line("GRADE IS: " + session_.LastGrade);
  report.Line();
}

void TrussReport::Stresses() {
  Heading("REVIEW OF STRESSES");
  for (const std::string& row : window_.stressRows) {
    if (row.empty()) {
      report.Line();
    } else {
      Line(row);
    }
  }
}

void WriteLoadsToWoodType(TrussReport& sections) {
  sections.Title();
  sections.AppliedLoads();
  sections.Reactions();
  sections.Deflections();
  sections.WoodType();
}

}  // namespace

Report TRUSS_FILE(const TrussWindow& window, SessionState& session) {
  const NoMemberRule areas(session);
  TrussReport sections(window, session, 0);
  sections.Title();
  sections.TrussType();
  sections.Members();
  WriteLoadsToWoodType(sections);
  sections.Stresses();
  return std::move(sections.report);
}

Report TRUSS_PRINT(TrussWindow& window, SessionState& session) {
  const NoMemberRule areas(session);
  ResetView(window.view, session);
  // On all pages a margin of one zone, so that what belongs together stands in one line.
  TrussReport sections(window, session, 1);
  sections.Title();
  sections.report.Draw(PageDrawing(window, session));
  sections.TrussType();
  sections.Members();
  sections.report.StartPage();
  WriteLoadsToWoodType(sections);
  sections.report.StartPage();
  sections.Stresses();
  return std::move(sections.report);
}

void PrintTruss(TrussWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  if (window.model.RunState.value() != 1) {
    platform.ShowMessage({"You need to run the model prior to printing!"});
    return;
  }
  platform.PrintReport(TRUSS_PRINT(window, session));
  RedrawTruss(window, session, platform);
}

void SaveTrussReport(TrussWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  std::optional<ReportFile> file = CreateReportFile(platform);
  if (!file) return;
  if (window.model.RunState.value() != 1) {
    platform.ShowMessage({"You need to run the model prior to saving!"});
    return;
  }
  WriteReportFile(*file, TRUSS_FILE(window, session), platform);
}

}  // namespace lignara
