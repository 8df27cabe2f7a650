#include "tests/support/beam_fixture.h"

#include "app/launcher.h"

namespace lignara {
namespace {

const std::map<std::string, LoadField> kLetters = {{"A", LoadField::A}, {"B", LoadField::B},
                                                   {"P", LoadField::P}, {"M", LoadField::M},
                                                   {"W", LoadField::W}, {"Disp", LoadField::Disp}};

}  // namespace

TestBeam::TestBeam() {
  StartSession(session, "/data");
  OpenBeam(window, session, platform);
}

void TestBeam::Supports(SupportType left, SupportType right) {
  SetSupport(window, session, BeamEnd::Left, left);
  SetSupport(window, session, BeamEnd::Right, right);
}

void TestBeam::Length(const std::string& text) {
  window.length = text;
  EditLength(window);
}

void TestBeam::Constants(const std::string& modulus, const std::string& inertia) {
  window.modulus.text = modulus;
  window.inertia.text = inertia;
}

void TestBeam::Fill(LoadKind kind, const std::map<std::string, std::string>& fields) {
  SetKind(window, kind);
  for (const auto& [letter, text] : fields) window.Field(kLetters.at(letter)) = text;
}

void TestBeam::Add(LoadKind kind, const std::map<std::string, std::string>& fields) {
  Fill(kind, fields);
  AddLoad(window, platform);
}

void TestBeam::Edit(int load, LoadKind kind, const std::map<std::string, std::string>& fields) {
  SelectLoad(window, load - 1);
  Fill(kind, fields);
  EditLoad(window, platform);
}

void TestBeam::Point(const std::string& A, const std::string& P) {
  Add(LoadKind::PointLoad, {{"A", A}, {"P", P}});
}

void TestBeam::Uniform(const std::string& A, const std::string& B, const std::string& W) {
  Add(LoadKind::LevelUniform, {{"A", A}, {"B", B}, {"W", W}});
}

void TestBeam::Moment(const std::string& A, const std::string& M) {
  Add(LoadKind::PointMoment, {{"A", A}, {"M", M}});
}

void TestBeam::Axial(const std::string& P) { Add(LoadKind::AxialLoad, {{"P", P}}); }

}  // namespace lignara
