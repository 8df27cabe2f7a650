// A frame of options follows its record, also where none is chosen.

#include "desktop/kit/option_frame.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QRadioButton>
#include <memory>

namespace lignara {
namespace {

class OptionFrameTest : public testing::Test {
 protected:
  OptionFrameTest()
      : frame_(MakeOptionFrame(
            binding_, "Colour", {"Red", "Blue", "Green"}, [this] { return chosen_; },
            [this](int at) { chosen_ = at; })),
        options_(frame_->findChildren<QRadioButton*>()) {
    binding_.Refresh();
  }

  void Choose(int at) {
    chosen_ = at;
    binding_.Refresh();
  }

  std::vector<bool> Checked() const {
    std::vector<bool> checked;
    for (const QRadioButton* option : options_) checked.push_back(option->isChecked());
    return checked;
  }

  int chosen_ = -1;
  Binding binding_{[this] { binding_.Refresh(); }};
  std::unique_ptr<QGroupBox> frame_;
  QList<QRadioButton*> options_;
};

TEST_F(OptionFrameTest, NoneIsOnAtFirstAndTabStopsAtTheFirst) {
  EXPECT_EQ(Checked(), (std::vector<bool>{false, false, false}));
  EXPECT_EQ(options_[0]->focusPolicy(), Qt::StrongFocus);
  EXPECT_EQ(options_[1]->focusPolicy(), Qt::ClickFocus);
}

TEST_F(OptionFrameTest, APressedOptionIsOnAlone) {
  options_[1]->click();
  EXPECT_EQ(chosen_, 1);
  options_[2]->click();
  EXPECT_EQ(Checked(), (std::vector<bool>{false, false, true}));
  EXPECT_EQ(options_[2]->focusPolicy(), Qt::StrongFocus);
  EXPECT_EQ(options_[0]->focusPolicy(), Qt::ClickFocus);
}

TEST_F(OptionFrameTest, AChoiceCanBeTakenBack) {
  options_[1]->click();
  Choose(-1);
  EXPECT_EQ(Checked(), (std::vector<bool>{false, false, false}));
  options_[1]->click();
  EXPECT_EQ(Checked(), (std::vector<bool>{false, true, false}));
}

}  // namespace
}  // namespace lignara
