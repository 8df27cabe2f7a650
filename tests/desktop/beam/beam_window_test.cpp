// What a user has to see and reach in the window of single-span beams.

#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>

#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class BeamWindowTest : public testing::Test {
 protected:
  BeamWindowTest() {
    desktop.Play({"press \"Single Span Beams\"", "window MLSP"});
    QApplication::processEvents();
  }

  void AddPointLoad() {
    desktop.Play({"enter \"A(ft)\" 5", "enter \"P(lbs)\" 1000", "press \"Add New\""});
  }
  void OpenAllPanels() {
    desktop.Play({"press \"RUN\"", "press \"Statics Check\"", "press \"View Diag.\"",
                  "press \"More values reqd. for stress check\"",
                  "menu \"Files\" \"Project Description...\""});
    QApplication::processEvents();
  }
  QString Read(const char* line) {
    desktop.Play({line});
    return desktop.printed.back();
  }
  /// Tab until a control has the focus.
  void TabTo(const QString& caption) {
    for (int i = 0; i < 60 && desktop.FocusIn("MLSP") != caption; ++i) {
      desktop.PressKey("MLSP", Qt::Key_Tab);
    }
    ASSERT_EQ(FromQt(desktop.FocusIn("MLSP")), FromQt(caption));
  }
  Picture* Find(const char* name) {
    for (QWidget* control : VisibleControls(desktop.Window("MLSP"))) {
      auto* picture = dynamic_cast<Picture*>(control);
      if (picture != nullptr && CaptionOf(picture) == name) return picture;
    }
    throw std::runtime_error(name);
  }

  OpenDesktop desktop;
};

TEST_F(BeamWindowTest, FitsASmallScreenWithAllPanelsOpen) {
  OpenAllPanels();
  const QSize least = desktop.Window("MLSP")->minimumSizeHint();
  EXPECT_LE(least.width(), 1000);
  EXPECT_LE(least.height(), 700);
}

TEST_F(BeamWindowTest, CutsNoCaptionOff) {
  AddPointLoad();
  OpenAllPanels();
  desktop.Window("MLSP")->resize(desktop.Window("MLSP")->minimumSizeHint());
  QApplication::processEvents();
  ExpectNoCaptionCutOff(desktop.Window("MLSP"));
}

TEST_F(BeamWindowTest, NamesEveryControl) {
  OpenAllPanels();
  for (const QWidget* control : VisibleControls(desktop.Window("MLSP"))) {
    EXPECT_FALSE(CaptionOf(control).isEmpty()) << control->metaObject()->className();
  }
}

TEST_F(BeamWindowTest, OpensWithoutEmptyingAField) {
  EXPECT_EQ(Read("read \"L(ft)\""), "value \"10.00\"");
  EXPECT_NE(desktop.FocusIn("MLSP"), "L(ft)");
}

TEST_F(BeamWindowTest, WorksByKeyboardAlone) {
  TabTo("A(ft)");
  desktop.Type("MLSP", "5");
  desktop.PressKey("MLSP", Qt::Key_Tab);
  desktop.Type("MLSP", "1000");
  desktop.PressKey("MLSP", Qt::Key_N, Qt::AltModifier);
  desktop.PressKey("MLSP", Qt::Key_F5);
  EXPECT_EQ(Read("read \"R1 (lbs)\""), "value \"500.00\"");
  desktop.PressKey("MLSP", Qt::Key_V, Qt::AltModifier);
  EXPECT_EQ(FromQt(desktop.FocusIn("MLSP")), "Station");
  desktop.PressKey("MLSP", Qt::Key_Right);
  EXPECT_EQ(Read("read \"Diagrams\" \"(ft)\""), "value \"0.020\"");
  desktop.PressKey("MLSP", Qt::Key_Escape);
  EXPECT_EQ(Read("state \"Diagrams\""), "state hidden enabled");
}

TEST_F(BeamWindowTest, OpensAndClosesTheStaticsCheckByKeyboard) {
  AddPointLoad();
  desktop.PressKey("MLSP", Qt::Key_F5);
  TabTo("Statics Check");
  desktop.PressKey("MLSP", Qt::Key_Space);
  EXPECT_EQ(Read("read \"Statics Check\" \"Result\""),
            "value \"Agrees with statics within 0.00 %.\"");
  EXPECT_EQ(FromQt(desktop.FocusIn("MLSP")), "Differences");
  EXPECT_EQ(Read("rows \"Statics Check\" \"Differences\""),
            "row 4 \"Max. Def.\" \"36.0000\" \"36.0000\" \"0.00 %\"");
  desktop.PressKey("MLSP", Qt::Key_Escape);
  EXPECT_EQ(Read("state \"Statics Check\" \"Differences\""), "state hidden enabled");
  EXPECT_EQ(FromQt(desktop.FocusIn("MLSP")), "Statics Check");
}

TEST_F(BeamWindowTest, EmptiesAFieldThatTheTabKeyEnters) {
  AddPointLoad();
  EXPECT_EQ(Read("read \"A(ft)\""), "value \"5\"");
  desktop.Play({"answer no"});  // the length is on the way
  TabTo("A(ft)");
  EXPECT_EQ(Read("read \"A(ft)\""), "value \"\"");
  EXPECT_EQ(Read("read \"P(lbs)\""), "value \"1000\"");
}

TEST_F(BeamWindowTest, EmptiesNoFieldOnTheWayBackFromAnotherWindow) {
  desktop.Play({"enter \"A(ft)\" 5", "window main", "window MLSP"});
  EXPECT_EQ(Read("read \"A(ft)\""), "value \"5\"");
}

TEST_F(BeamWindowTest, KeepsWhatWasTypedWhileTheUserReadsTheHelp) {
  desktop.Play({"enter \"Young Mod. (E psi)\" 1625000", "menu \"Help\" \"Help\"", "window HELP",
                "window MLSP"});
  EXPECT_EQ(Read("read \"Young Mod. (E psi)\""), "value \"1625000\"");
  desktop.Play({"window main", "window MLSP"});
  EXPECT_EQ(Read("read \"Young Mod. (E psi)\""), "value \"1.00e+06\"");
}

TEST_F(BeamWindowTest, ProposesTheTitleOfTheReportAsTheNameOfAFile) {
  EXPECT_EQ(FromQt(desktop.Window("MLSP")->DocumentName()), "Multi-Load Single Span");
  desktop.session.Header.Title = " Library ";
  EXPECT_EQ(FromQt(desktop.Window("MLSP")->DocumentName()), "Library");
}

TEST_F(BeamWindowTest, OpeningTheStressPanelEmptiesNothing) {
  desktop.Play({"press \"More values reqd. for stress check\""});
  EXPECT_EQ(Read("read \"Area (in^2)\""), "value \"1.00\"");
  EXPECT_EQ(Read("read \"Shear Area (in^2)\""), "value \"0.667\"");
}

TEST_F(BeamWindowTest, LeadsAwayFromTheLengthOnNo) {
  AddPointLoad();
  desktop.Play({"answer no", "enter \"L(ft)\" 20"});
  EXPECT_EQ(Read("read \"L(ft)\""), "value \"10.00\"");
  EXPECT_EQ(FromQt(desktop.FocusIn("MLSP")), "Loads about St. Axis");
  desktop.Type("MLSP", "99");
  EXPECT_EQ(Read("read \"L(ft)\""), "value \"10.00\"");
  EXPECT_EQ(desktop.printed.filter("ask ").size(), 1);
}

TEST_F(BeamWindowTest, ADragOverADiagramMovesTheStation) {
  AddPointLoad();
  desktop.Play({"press \"RUN\"", "press \"View Diag.\""});
  QApplication::processEvents();
  Picture* moment = Find("Moment");
  const auto send = [&](QEvent::Type type, double share) {
    const QPointF at(moment->width() * share, moment->height() / 2.0);
    QMouseEvent event(type, at, moment->mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(moment, &event);
  };
  send(QEvent::MouseButtonPress, 0.25);
  const QString pressed = Read("read \"Diagrams\" \"(ft)\"");
  send(QEvent::MouseMove, 0.5);
  EXPECT_NE(pressed, "value \"0.000\"");
  EXPECT_EQ(Read("read \"Diagrams\" \"(ft)\"").left(10), "value \"5.0");
}

TEST_F(BeamWindowTest, TellsOfReplacedValuesOnlyThen) {
  EXPECT_EQ(Read("read \"Member Note\""), "value \"\"");
  desktop.Play({"enter \"Moment of Inertia, I (in^4)\" 7", "window main", "window MLSP"});
  EXPECT_EQ(Read("read \"Member Note\""), "value \"Values of CUSTOM put in\"");
  EXPECT_EQ(Read("read \"Moment of Inertia, I (in^4)\""), "value \"1.00\"");
}

}  // namespace
}  // namespace lignara
