// What a user does by keys alone is recorded so that it can be played: no key leads the focus to
// the button that it presses.

#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "tests/desktop/session/recorded_user.h"

namespace lignara {
namespace {

class KeyboardSessionTest : public RecordedUser {
 protected:
  /// A beam whose length has the focus, with a load ready to be added. To come back into the length
  /// once there is a load asks whether all loads may go.
  void OpenBeam() {
    user.Play({"press \"Single Span Beams\"", "window MLSP", "enter \"Young Mod. (E psi)\" 1600000",
               "enter \"Moment of Inertia, I (in^4)\" 100", "enter \"A(ft)\" 5",
               "enter \"P(lbs)\" 1000", "enter \"L(ft)\" 12"});
  }

  std::string Text(const char* window, const char* caption) {
    return FromQt(static_cast<QLineEdit*>(
                      FindControl(user.Window(window), {caption}, {AllVisible({IsTypedInto})}))
                      ->text());
  }
};

TEST_F(KeyboardSessionTest, AMnemonicLeavesTheFocusInTheField) {
  OpenBeam();
  user.PressKey("MLSP", Qt::Key_N, Qt::AltModifier);
  ASSERT_EQ(FromQt(user.FocusIn("MLSP")), "L(ft)");
  user.Type("MLSP", "5");
  EXPECT_EQ(Text("MLSP", "L(ft)"), "125");
  EXPECT_NE(Recorded().find("\nkey \"L(ft)\" Alt+N\nenter \"L(ft)\" 125"), std::string::npos)
      << Recorded();
  ExpectPlayedTheSame();
}

TEST_F(KeyboardSessionTest, TheKeyOfACommandLeavesTheFocusInTheField) {
  OpenBeam();
  user.PressKey("MLSP", Qt::Key_N, Qt::AltModifier);
  user.PressKey("MLSP", Qt::Key_F5);
  user.Type("MLSP", "5");
  user.PressKey("MLSP", Qt::Key_F5);
  EXPECT_NE(Recorded().find("\nkey \"L(ft)\" F5\nenter \"L(ft)\" 125\nkey \"L(ft)\" F5"),
            std::string::npos)
      << Recorded();
  ExpectPlayedTheSame();
}

TEST_F(KeyboardSessionTest, EscapeLeavesTheFocusInTheField) {
  user.Play({"press \"Single Span Beams\"", "window MLSP",
             "press \"More values reqd. for stress check\"", "enter \"A(ft)\" 5",
             "enter \"P(lbs)\" 1000", "enter \"L(ft)\" 12"});
  user.PressKey("MLSP", Qt::Key_N, Qt::AltModifier);
  user.PressKey("MLSP", Qt::Key_Escape);
  user.Type("MLSP", "5");
  EXPECT_NE(Recorded().find("\nkey \"L(ft)\" Escape\nenter \"L(ft)\" 125"), std::string::npos)
      << Recorded();
  ExpectPlayedTheSame();
}

TEST_F(KeyboardSessionTest, APanelGivesTheFocusBackToTheField) {
  OpenBeam();
  user.PressKey("MLSP", Qt::Key_M, Qt::AltModifier);
  ASSERT_NE(FromQt(user.FocusIn("MLSP")), "L(ft)");
  user.PressKey("MLSP", Qt::Key_Escape);
  ASSERT_EQ(FromQt(user.FocusIn("MLSP")), "L(ft)") << "where it empties itself";
  user.Type("MLSP", "8");
  EXPECT_EQ(Text("MLSP", "L(ft)"), "8");
  ExpectPlayedTheSame();
}

TEST_F(KeyboardSessionTest, AMenuItemByItsKeyIsTheItem) {
  OpenBeam();
  user.PressKey("MLSP", Qt::Key_N, Qt::AltModifier);
  user.PressKey("MLSP", Qt::Key_F5);
  user.PressKey("MLSP", Qt::Key_P, Qt::ControlModifier);
  user.Type("MLSP", "5");
  EXPECT_NE(Recorded().find("\nmenu \"Files\" \"Print Report\"\nenter \"L(ft)\" 125"),
            std::string::npos)
      << Recorded();
  ExpectPlayedTheSame();
}

TEST_F(KeyboardSessionTest, AMenuOpenedByKeysIsTheItem) {
  user.PressKey("main", Qt::Key_H, Qt::AltModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QTest::keyClick(menu, Qt::Key_A);
  QApplication::processEvents();
  EXPECT_EQ(Recorded(), "menu \"Help\" \"About...\"");
  ExpectPlayedTheSame();
}

TEST_F(KeyboardSessionTest, WhereTheFocusMattersToNoFieldAPressIsAPress) {
  user.OpenKingPost();
  record.Clear();
  user.Play({"window TRUSS", "enter \"Top Node Loads (lbs)\" 100"});
  user.PressKey("TRUSS", Qt::Key_F5);
  EXPECT_EQ(Recorded(), "window TRUSS\nenter \"Top Node Loads (lbs)\" 100\npress \"Run\"");
}

}  // namespace
}  // namespace lignara
