// What the launcher and "About" say of the data folder.

#include <gtest/gtest.h>

#include <QLabel>

#include "app/data_directory.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

/// The label of a name; null where the window has none.
const QLabel* LabelNamed(ToolWindow* window, const char* name) {
  for (const QLabel* label : window->findChildren<QLabel*>()) {
    if (label->accessibleName() == name) return label;
  }
  return nullptr;
}

class DataFolderTest : public testing::Test {
 protected:
  /// The launcher as it opens where the session's data folder is another.
  void OpenLauncherIn(const std::string& folder) {
    desktop.platform.CloseWindow("main");
    desktop.session.DataDirectory = MakeDataDirectory(folder);
    desktop.platform.OpenWindow("main");
  }

  std::string About(const char* name) {
    if (desktop.platform.FindWindow("ABOUT") == nullptr)
      desktop.Play({"menu \"Help\" \"About...\""});
    const QLabel* label = LabelNamed(desktop.Window("ABOUT"), name);
    return label == nullptr ? "" : FromQt(label->text());
  }

  OpenDesktop desktop;
};

TEST_F(DataFolderTest, TheLauncherIsSilentAmongItsFiles) {
  EXPECT_EQ(LabelNamed(desktop.Window("main"), "Status"), nullptr);
}

TEST_F(DataFolderTest, TheLauncherNamesAFolderWithoutDataFiles) {
  OpenLauncherIn("/no/such");
  desktop.Play({"window main", "read \"Status\""});
  EXPECT_EQ(FromQt(desktop.printed.join("\n")),
            "value \"No data files in /no/such: design values and help are missing\"");
}

TEST_F(DataFolderTest, ALongNameTakesLinesNotWidth) {
  OpenLauncherIn("/drawings");
  const int width = desktop.Window("main")->width();
  const int line = LabelNamed(desktop.Window("main"), "Status")->height();
  std::string folder;
  for (int depth = 0; depth < 12; ++depth) folder += "/drawings of the year";
  OpenLauncherIn(folder);
  const QLabel* status = LabelNamed(desktop.Window("main"), "Status");
  EXPECT_EQ(desktop.Window("main")->width(), width);
  EXPECT_GT(status->height(), line);
  EXPECT_GE(status->height(), status->heightForWidth(status->width())) << "all of it is seen";
}

TEST_F(DataFolderTest, AboutNamesTheFolderInUse) {
  EXPECT_EQ(About("Data Folder"), std::string("Data folder: ") + LIGNARA_DATA_DIRECTORY);
}

TEST_F(DataFolderTest, AboutNamesTheVersionOfTheToolkitAtWork) {
  EXPECT_EQ(About("Toolkit"), std::string("Windows drawn by Qt ") + qVersion());
}

TEST_F(DataFolderTest, AboutSaysThatNoTermsAreStated) {
  EXPECT_EQ(About("License"), "No license terms are stated for Lignara");
}

}  // namespace
}  // namespace lignara
