#pragma once

#include <gtest/gtest.h>

#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"
#include "desktop/session/session_record.h"
#include "tests/desktop/open_desktop.h"
#include "tests/desktop/screen_text.h"

namespace lignara {

/// A user whose doings are recorded, and played to a second program.
class RecordedUser : public testing::Test {
 protected:
  RecordedUser() { user.platform.SetListener(&record); }
  ~RecordedUser() override { user.platform.SetListener(nullptr); }

  std::string Recorded() const { return FromQt(record.Lines().join('\n')); }

  void ExpectPlayedTheSame() {
    OpenDesktop other;
    SessionRecord again;
    other.platform.SetListener(&again);
    for (const QString& line : record.Lines()) {
      try {
        other.Play({FromQt(line).c_str()});
      } catch (const ScriptError& error) {
        FAIL() << FromQt(line + ": " + error.reason) << " in\n" << Recorded();
      }
    }
    other.platform.SetListener(nullptr);
    EXPECT_EQ(FromQt(ScreenText(other.platform).join('\n')),
              FromQt(ScreenText(user.platform).join('\n')))
        << Recorded();
    EXPECT_EQ(FromQt(again.Lines().join('\n')), Recorded());
  }

  /// A control that the user sees, by the action that it fits.
  template <typename Widget>
  Widget* Find(const char* window, const QStringList& path, UserAction::Kind action) {
    return static_cast<Widget*>(
        FindControl(user.Window(window), path, {AllVisible(KindsOf(action))}));
  }

  OpenDesktop user;
  SessionRecord record;
};

}  // namespace lignara
