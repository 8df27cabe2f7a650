// A hidden window is not open, but keeps what it holds.

#include <gtest/gtest.h>

#include "desktop/session/script_error.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class HiddenWindow : public testing::Test {
 protected:
  HiddenWindow() {
    desktop_.Play({"press \"HOWE\"", "window TR_INPUT", "enter \"Total Length (ft)\" 31"});
    desktop_.platform.HideWindow("TR_INPUT");
  }

  OpenDesktop desktop_;
};

TEST_F(HiddenWindow, IsNotOpenForTheUser) {
  EXPECT_EQ(desktop_.platform.OpenWindows(), QStringList{"main"});
  EXPECT_THROW(desktop_.Play({"window TR_INPUT"}), ScriptError);
}

TEST_F(HiddenWindow, ComesBackAsItWas) {
  desktop_.platform.OpenWindow("TR_INPUT");
  desktop_.Play({"window TR_INPUT", "read \"Total Length (ft)\""});
  EXPECT_EQ(desktop_.printed.back(), "value \"31\"");
}

TEST_F(HiddenWindow, IsForgottenWhenItIsClosed) {
  desktop_.platform.CloseWindow("TR_INPUT");
  desktop_.platform.OpenWindow("TR_INPUT");
  desktop_.Play({"window TR_INPUT", "read \"Total Length (ft)\""});
  EXPECT_NE(desktop_.printed.back(), "value \"31\"");
}

TEST_F(HiddenWindow, HidingAWindowThatIsNotOpenDoesNothing) {
  desktop_.platform.HideWindow("TRUSS");
  EXPECT_EQ(desktop_.platform.OpenWindows(), QStringList{"main"});
}

}  // namespace
}  // namespace lignara
