// What stands in a panel that opens later is made when it opens, as if it had been there all along.

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

/// A button, a closed panel with a field, another button.
class LatePanel : public testing::Test {
 protected:
  LatePanel() {
    auto* rows = new QVBoxLayout(&window);
    for (QWidget* widget : std::initializer_list<QWidget*>{first, panel, last}) {
      rows->addWidget(widget);
    }
    binding.CloseOnEscape(panel, [this] { open = false; });
    binding.Shown(panel, &open, [this] {
      ++made;
      field = new QLineEdit;
      binding.Words(field, &text);
      (new QVBoxLayout(panel))->addWidget(field);
    });
    binding.Refresh();
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    first->setFocus();
  }

  void SetOpen(bool now) {
    open = now;
    binding.Refresh();
  }

  QWidget window;
  QPushButton* first = new QPushButton("First");
  QGroupBox* panel = new QGroupBox("Panel");
  QPushButton* last = new QPushButton("Last");
  QLineEdit* field = nullptr;
  bool open = false;
  int made = 0;
  std::string text = "7";
  Binding binding{[this] { binding.Refresh(); }};
};

TEST_F(LatePanel, IsMadeOnceWhenItOpensForTheFirstTime) {
  EXPECT_EQ(made, 0);
  EXPECT_FALSE(panel->isVisible());
  SetOpen(true);
  ASSERT_NE(field, nullptr);
  EXPECT_TRUE(field->isVisible());
  EXPECT_EQ(field->text(), "7");
  SetOpen(false);
  SetOpen(true);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(binding.lateMade(), 1);
}

TEST_F(LatePanel, IsTiedToTheRecord) {
  SetOpen(true);
  text = "8";
  binding.Refresh();
  EXPECT_EQ(field->text(), "8");
  emit field->textEdited("9");
  EXPECT_EQ(text, "9");
}

TEST_F(LatePanel, StopsTheTabKeyWhereThePanelStands) {
  SetOpen(true);
  EXPECT_TRUE(field->hasFocus()) << "a panel that opens takes the focus";
  QWidget* next = field->nextInFocusChain();
  while (next->focusPolicy() == Qt::NoFocus) next = next->nextInFocusChain();
  EXPECT_EQ(next, last);
  QWidget* before = field->previousInFocusChain();
  while (before->focusPolicy() == Qt::NoFocus) before = before->previousInFocusChain();
  EXPECT_EQ(before, first);
}

TEST_F(LatePanel, HoldsItsTextBeforeItMarksIt) {
  SetOpen(true);
  SetOpen(false);
  text = "1234";
  SetOpen(true);
  EXPECT_EQ(field->selectedText(), "1234");
}

TEST_F(LatePanel, CanBeMadeWhileItIsClosed) {
  binding.MakeAllPanels();
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->text(), "7");
  EXPECT_FALSE(field->isVisible());
  SetOpen(true);
  EXPECT_TRUE(field->isVisible());
  EXPECT_EQ(made, 1);
}

TEST(LatePanelsOfWindows, StopTheTabKeyInWhateverOrderTheyAreMade) {
  constexpr int kMoreThanOnceAround = 60;
  OpenDesktop late, atOnce;
  atOnce.OpenKingPost();
  atOnce.Window("TRUSS")->MakeAllPanels();
  late.OpenKingPost();
  late.Play({"menu \"Files\" \"Fonts...\"", "press \"Statics Check\"", "press \"Code Stress\"",
             "menu \"Files\" \"Headings...\"", "press \"Deflections\"",
             "press \"Area Load (lbs/sf)\"", "press \"Run\""});
  atOnce.Play(kOpenAllTrussPanels);
  atOnce.Play({"press \"Run\""});
  EXPECT_EQ(late.Walk("TRUSS", kMoreThanOnceAround), atOnce.Walk("TRUSS", kMoreThanOnceAround));
}

TEST(LatePanelsOfWindows, TellTheStateOfWhatIsNotSeenYet) {
  OpenDesktop desktop;
  desktop.OpenKingPost();
  desktop.printed.clear();
  desktop.Play({"state \"Uniform Load (Line Load)\" \"Apply\"", "state \"Differences\""});
  EXPECT_EQ(desktop.printed, QStringList({"state hidden enabled", "state hidden enabled"}));
}

}  // namespace
}  // namespace lignara
