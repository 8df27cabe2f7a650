#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "app/launcher.h"
#include "tests/support/recording_platform.h"
#include "wood/member_size_window.h"

namespace lignara {

/// The member size calculator in a fresh session, for tests.
class MemberSizeTest : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  MemberSizeTest() { StartSession(session, "/data"); }

  void Open(const std::string& mode) {
    session.DesignMode = mode;
    OpenMemberSize(window, session, platform);
  }
  /// What a visit to the data base that ends with "OK" leaves behind.
  void VisitDataBase() {
    VisitWoodDataBase(session, platform);
    member().GradeText = "No.2";
    member().WoodTypeText = "Hem-Fir";
    member().AllowFb = 850.0;
    member().AllowFt = 525.0;
    member().AllowFv = 75.0;
    member().AllowFc = 1300.25;
    member().AllowFcPerp = 405.0;
    member().ModulusE = 1300000.0;
    ReturnFromWoodDataBase(window, session, platform);
  }
  /// Presses the buttons of a nominal size.
  void Pick(int width, int depth) {
    PickWidth(window, Button(width));
    PickDepth(window, Button(depth));
  }
  void Accept() { AcceptSize(window, session, platform); }
  void AcceptPair(int width, int depth) {
    Pick(width, depth);
    Accept();
  }
  void Select(MemberGroup group) { SelectGroupSize(window, session, platform, group); }
  void TypeB(MemberGroup group, const std::string& text) {
    window.Group(group).b = text;
    EditGroupField(window, session, platform, group, GroupField::B);
  }
  void TypeD(MemberGroup group, const std::string& text) {
    window.Group(group).d = text;
    EditGroupField(window, session, platform, group, GroupField::D);
  }
  void TypeArea(MemberGroup group, const std::string& text) {
    window.Group(group).area = text;
    EditGroupField(window, session, platform, group, GroupField::Area);
  }
  void TypeBeam(const std::string& b, const std::string& d) {
    window.beam.b = b;
    EditBeamSize(window, session, platform);
    window.beam.d = d;
    EditBeamSize(window, session, platform);
  }
  void Ok() { AcceptMemberSize(window, session, platform); }

  MemberSelection& member() { return session.Member; }
  TrussMemberGroup& Group(MemberGroup group) { return session.Member.Group(group); }
  Texts SizeTexts() const {
    return {window.selection.size, window.selection.dressedB, window.selection.dressedD};
  }

  static int Button(int size) {
    const auto at = std::find(kNominalSizes.begin(), kNominalSizes.end(), size);
    return static_cast<int>(at - kNominalSizes.begin());
  }

  SessionState session;
  RecordingPlatform platform;
  MemberSizeWindow window;
};

}  // namespace lignara
