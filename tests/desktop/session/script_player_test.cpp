// How lines find their controls, and what they refuse.

#include "desktop/session/script_player.h"

#include <gtest/gtest.h>

#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class ScriptPlayerTest : public testing::Test {
 protected:
  /// What the last of some lines prints.
  std::string Said(std::initializer_list<const char*> lines) {
    desktop.printed.clear();
    desktop.Play(lines);
    return FromQt(desktop.printed.join('\n'));
  }

  /// Why a line cannot be carried out; empty where it can.
  std::string Refusal(const char* line) {
    try {
      desktop.Play({line});
    } catch (const ScriptError& error) {
      return FromQt(error.reason);
    }
    return "";
  }

  OpenDesktop desktop;
};

TEST_F(ScriptPlayerTest, SelectTakesABareNumberAsIndexAndAQuotedOneAsText) {
  desktop.OpenKingPost();
  EXPECT_EQ(
      Said({"select \"Top Node Loads (lbs)\" \"PT = 0.00\"", "state \"Top Node Loads (lbs)\""}),
      "state visible enabled selected 1");
  EXPECT_EQ(Refusal("select \"Top Node Loads (lbs)\" 2"), "the list has no row 2");
  EXPECT_EQ(Refusal("select \"Top Node Loads (lbs)\" -1"), "the list has no row -1");
  EXPECT_EQ(Refusal("select \"Top Node Loads (lbs)\" \"1\""), "the list has no row \"1\"");
  EXPECT_EQ(Refusal("select \"Top Node Loads (lbs)\" PT"), "\"PT\" is not a whole number");
}

TEST_F(ScriptPlayerTest, SelectChoosesTheFirstRowOfAListThatIsOnlyRead) {
  desktop.OpenKingPost();
  EXPECT_EQ(Refusal("select \"Axial Load (lbs)\" 0"), "the list has no row 0");
  desktop.Play({"press \"Run\""});
  EXPECT_EQ(Said({"select \"Axial Load (lbs)\" 0", "state \"Axial Load (lbs)\""}),
            "state visible enabled selected 0");
}

TEST_F(ScriptPlayerTest, StateKeepsToTheCommandWhenItsPanelOpens) {
  desktop.OpenKingPost();
  EXPECT_EQ(Said({"state \"Deflections\""}), "state visible enabled");
  EXPECT_EQ(Said({"press \"Deflections\"", "state \"Deflections\""}), "state visible enabled");
  EXPECT_EQ(Said({"state \"Deflections\" \"Deflections\""}), "state visible enabled selected -1");
}

TEST_F(ScriptPlayerTest, StateTellsOfHiddenControlsAndOfMenus) {
  desktop.OpenKingPost();
  EXPECT_EQ(Said({"state \"Truss Spacing (ft)\""}), "state hidden enabled");
  EXPECT_EQ(Said({"state \"Files\""}), "state visible enabled");
  EXPECT_EQ(Said({"state \"Files\" \"Print\""}), "state visible enabled");
  EXPECT_EQ(Refusal("state \"Apply\""), "more than one control is named \"Apply\"")
      << "both panels with that command are hidden";
}

TEST_F(ScriptPlayerTest, OnlyWhatIsVisibleCanBePressed) {
  desktop.OpenKingPost();
  EXPECT_EQ(Refusal("press \"Apply\""), "no control is named \"Apply\"");
  desktop.Play({"press \"Unif. Load (lb/ft)\""});
  EXPECT_EQ(Refusal("press \"Apply\""), "");
}

TEST_F(ScriptPlayerTest, ACaptionTwiceOnTheScreenNeedsItsPanel) {
  desktop.OpenKingPost();
  desktop.Play({"press \"Deflections\"", "press \"Unif. Load (lb/ft)\""});
  EXPECT_EQ(Refusal("press \"Cancel\""), "more than one control is named \"Cancel\"");
  EXPECT_EQ(Refusal("press \"Deflections\" \"Cancel\""), "");
}

TEST_F(ScriptPlayerTest, FiguresHaveToBeFigures) {
  desktop.OpenKingPost();
  EXPECT_EQ(Refusal("click \"Truss\" left 3"), "\"left\" is not a number");
  EXPECT_EQ(Refusal("scroll \"Pan\" far"), "\"far\" is not a whole number");
  EXPECT_EQ(Refusal("scroll \"Pan\" 1000"), "the scroll bar has no value 1000");
}

TEST_F(ScriptPlayerTest, KeysTypeIntoAField) {
  desktop.OpenKingPost();
  EXPECT_EQ(Said({"enter \"Top Node Loads (lbs)\" 12", "key \"Top Node Loads (lbs)\" 7",
                  "read \"Top Node Loads (lbs)\""}),
            "value \"127\"");
}

TEST_F(ScriptPlayerTest, ReadGivesPlainTextForTheLegend) {
  desktop.OpenKingPost();
  desktop.Play({"press \"Run\""});
  EXPECT_EQ(Said({"read \"Tension\""}), "value \"Tension\"");
}

TEST_F(ScriptPlayerTest, ReadGivesACaptionWithoutTheMarkOfItsKey) {
  desktop.Play({"press \"Glu-Lam Data Base\"", "window GL"});
  EXPECT_EQ(Said({"read \"Combination Symbol\""}), "value \"Combination Symbol\"");
}

TEST_F(ScriptPlayerTest, TheLaunchersPicturesHaveShapes) {
  EXPECT_EQ(Said({"shapes \"KINGPOST\""}).substr(0, 5), "line ");
}

TEST_F(ScriptPlayerTest, FilesThatCannotBeWrittenAreTold) {
  EXPECT_EQ(Refusal("screenshot \"no such folder/a.png\""), "cannot write no such folder/a.png");
  EXPECT_EQ(Refusal("picture \"PRATT1\" \"no such folder/a.png\""),
            "cannot write no such folder/a.png");
}

TEST_F(ScriptPlayerTest, ASaveDialogNeedsAFittingAnswer) {
  desktop.OpenKingPost();
  const char* save = "menu \"Files\" \"Save Output to Text File...\"";
  EXPECT_EQ(Refusal(save), "there is no answer for the save dialog");
  desktop.Play({"answer yes"});
  EXPECT_EQ(Refusal(save), "the answer does not fit the save dialog");
  desktop.Play({"answer cancel"});
  EXPECT_EQ(Refusal(save), "");
}

/// Dialogs that no window of this version shows yet.
TEST_F(ScriptPlayerTest, QuestionsAndPromptsArePrintedAndTakeTheirAnswers) {
  desktop.printed.clear();
  desktop.Play({"answer no", "answer yes", "answer text \"7 ft\"", "answer ok", "answer cancel"});
  EXPECT_FALSE(desktop.platform.AskYesNo("T", "Sure?"));
  EXPECT_TRUE(desktop.platform.AskYesNo("T", "Sure?"));
  EXPECT_EQ(desktop.platform.PromptText("T", "How far?", "6"), "7 ft");
  EXPECT_EQ(desktop.platform.PromptText("T", "How far?", "6"), "6");
  EXPECT_EQ(desktop.platform.PromptText("T", "How far?", "6"), std::nullopt);
  EXPECT_EQ(FromQt(desktop.printed.first()), "ask \"T\" \"Sure?\"");
  EXPECT_EQ(FromQt(desktop.printed.last()), "prompt \"T\" \"How far?\" \"6\"");
}

}  // namespace
}  // namespace lignara
