// Texts that a user can bring into a field, and that the lines of a session have to carry.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include "desktop/kit/text.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class OddTextsTest : public testing::Test {
 protected:
  static QLineEdit* Length(OpenDesktop& desktop) {
    return static_cast<QLineEdit*>(FindControl(desktop.Window("TR_INPUT"), {"Total Length (ft)"},
                                               {AllVisible(KindsOf(UserAction::Kind::Enter))}));
  }

  /// What the field holds when the session so far is played again.
  QString Again() {
    EXPECT_TRUE(sessions.PlayAndTell(sessions.record().Lines(), "again", "Again"));
    return Length(desktop)->text();
  }

  OpenDesktop desktop;
  Sessions sessions{desktop.session, desktop.platform};
};

TEST_F(OddTextsTest, PastedLinesAreOne) {
  desktop.Play({"press \"KINGPOST\"", "window TR_INPUT"});
  QApplication::clipboard()->setText("24\n36\r\n\u2028\tft");
  QLineEdit* length = Length(desktop);
  length->setFocus();
  length->selectAll();
  length->paste();
  EXPECT_EQ(FromQt(length->text()), "24 36   \tft");
  EXPECT_EQ(FromQt(sessions.record().Lines().last()),
            "enter \"Total Length (ft)\" \"24 36   \tft\"");
  EXPECT_EQ(FromQt(Again()), "24 36   \tft");
}

TEST_F(OddTextsTest, TheLongestTextOfAFieldComesBack) {
  desktop.Play({"press \"KINGPOST\"", "window TR_INPUT"});
  QLineEdit* length = Length(desktop);
  const QString longest(length->maxLength(), '"');
  length->setFocus();
  length->selectAll();
  length->insert(longest);
  EXPECT_EQ(length->text(), longest);
  EXPECT_EQ(Again(), longest);
}

TEST_F(OddTextsTest, SignsThatScriptsUseComeBack) {
  for (const char* text : {"\\", "\\n", "a\\\\", "\"", "# 1", "", " ", "\\\"", "\xC2\xBD in"}) {
    desktop.Play({"window main", "press \"KINGPOST\"", "window TR_INPUT"});
    desktop.Play({FromQt("enter \"Total Length (ft)\" " + Quoted(text)).c_str()});
    EXPECT_EQ(FromQt(Again()), text);
  }
}

}  // namespace
}  // namespace lignara
