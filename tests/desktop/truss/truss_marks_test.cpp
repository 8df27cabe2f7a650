// The marks of the truss window on the screen: rows and members light each other, results that are
// out of date are grey, empty lists say why, the saved picture has its legend.
//
// A King post of 24 ft by 5 ft with 100 lbs at the peak: rafters 130 lbs, tie 120 lbs.

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTemporaryDir>

#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class TrussMarksTest : public testing::Test {
 protected:
  TrussMarksTest() { desktop.OpenKingPost(); }

  void GiveMembers(double allowable) {
    for (TrussMemberGroup& group : desktop.session.Member.Groups) {
      group.GroupArea = 10;
      group.GroupB = 2;
      group.GroupD = 5;
      group.GroupE = 1000000;
      group.GroupFt = allowable;
      group.GroupFa = allowable;
    }
  }
  void Run(const char* load = "100") {
    const QByteArray line = QByteArray("enter \"Top Node Loads (lbs)\" ") + load;
    desktop.Play({line.constData(), "press \"All\"", "press \"Run\""});
  }

  QListWidget* List(const QString& name) {
    for (auto* list : desktop.Window("TRUSS")->findChildren<QListWidget*>()) {
      if (list->accessibleName() == name) return list;
    }
    throw std::runtime_error(name.toStdString());
  }
  Picture* Canvas() {
    for (auto* widget : desktop.Window("TRUSS")->findChildren<QWidget*>()) {
      if (auto* picture = dynamic_cast<Picture*>(widget)) return picture;
    }
    throw std::runtime_error("no picture");
  }
  QString Reason(const QString& list) {
    const auto* words = List(list)->viewport()->findChild<QLabel*>();
    return words == nullptr || words->isHidden() ? QString() : words->text();
  }
  QString Status() {
    for (const auto* label : desktop.Window("TRUSS")->statusBar()->findChildren<QLabel*>()) {
      if (label->accessibleName() == "Status") return label->text();
    }
    return "no status";
  }
  std::string LitName() {
    for (const NamedLine& line : Canvas()->drawing().scene.lines) {
      if (line.lit) return line.name;
    }
    return "";
  }

  OpenDesktop desktop;
};

TEST_F(TrussMarksTest, AChosenRowLightsItsMember) {
  GiveMembers(1000);
  Run();
  desktop.Play({"select \"Axial Load (lbs)\" \"CR1 = 120.00\""});
  EXPECT_EQ(LitName(), "CR 1");
}

TEST_F(TrussMarksTest, AMemberHitLightsItsRow) {
  GiveMembers(1000);
  Run();
  const auto& line = Canvas()->drawing().scene.lines.front();
  Canvas()->PressAt(line.markX, line.markY);
  EXPECT_EQ(List("Axial Load (lbs)")->currentItem()->text(), "TL1 = 130.00");
  EXPECT_EQ(LitName(), "TL 1");
  desktop.Play({"read \"Tension or compression\""});
  EXPECT_EQ(desktop.printed.last(), "value \"C\"");
}

TEST_F(TrussMarksTest, EmptyListsSayWhatTheyWaitFor) {
  desktop.Play({"press \"Code Stress\"", "press \"Deflections\""});
  EXPECT_EQ(Reason("Axial Load (lbs)"), "needs a run");
  EXPECT_EQ(Reason("Deflections"), "needs a run");
  EXPECT_EQ(Reason("Actual and Allowable Axial Stresses"), "needs a run");
  Run();
  EXPECT_EQ(Reason("Axial Load (lbs)"), "");
  EXPECT_EQ(Reason("Deflections"), "needs wood type and size");
  EXPECT_EQ(Reason("Actual and Allowable Axial Stresses"), "needs wood type and size");
  EXPECT_EQ(Status(), "No stresses: needs wood type and size");
}

TEST_F(TrussMarksTest, TheHighestStressRatioStandsInOneLine) {
  GiveMembers(10);
  Run();
  EXPECT_EQ(Status(),
            "Highest stress ratio 1.30: TL 1, 13.00 of 10.00 psi; 4 members above their allowable "
            "stress");
}

TEST_F(TrussMarksTest, ResultsAreGreyFromAChangeToTheNextRun) {
  GiveMembers(1000);
  Run();
  EXPECT_EQ(List("Axial Load (lbs)")->toolTip(), "");
  desktop.Play({"enter \"Top Node Loads (lbs)\" 200", "press \"All\""});
  EXPECT_EQ(List("Axial Load (lbs)")->toolTip(), "Out of date: the input has changed since");
  EXPECT_EQ(Status(), "Results are out of date: loads or members have changed. Run again.");
  EXPECT_EQ(Canvas()->drawing().scene.note, "Forces are out of date: run again");
  desktop.Play({"press \"Run\""});
  EXPECT_EQ(List("Axial Load (lbs)")->toolTip(), "");
}

TEST_F(TrussMarksTest, ANoteTellsWhereAReportWasSaved) {
  GiveMembers(1000);
  Run();
  QTemporaryDir directory;
  const QString path = directory.filePath("roof.txt");
  desktop.Play({("answer file \"" + path + "\"").toUtf8().constData(),
                "menu \"Files\" \"Save Output to Text File...\""});
  EXPECT_EQ(desktop.Window("TRUSS")->statusBar()->currentMessage(), "Saved to " + path);
}

TEST_F(TrussMarksTest, TheSavedPictureHasItsLegend) {
  GiveMembers(1000);
  QTemporaryDir directory;
  const QString before = directory.filePath("before.png"), after = directory.filePath("after.png");
  ASSERT_TRUE(SavePng(*Canvas(), before));
  Run();
  ASSERT_TRUE(SavePng(*Canvas(), after));
  const QImage plain(before), explained(after);
  EXPECT_EQ(plain.size(), Canvas()->size() * 2);
  ASSERT_GT(explained.height(), plain.height() + 20);
  // In the strip below the drawing, from the left: the blue of tension, the orange of compression.
  int blue = 0, orange = 0;
  for (int x = 0; x < explained.width(); ++x) {
    const QColor colour = explained.pixelColor(x, (plain.height() + explained.height()) / 2);
    if (colour.blue() - colour.red() > 100) ++blue;
    if (colour.red() - colour.blue() > 100) ++orange;
  }
  EXPECT_GT(blue, 20);
  EXPECT_GT(orange, 20);
}

TEST_F(TrussMarksTest, ZoomPanAndPrintKeepTheTrussInSight) {
  const auto inSight = [this] {
    const Scene& scene = Canvas()->drawing().scene;
    const QRectF content(Canvas()->view().ToPixels({scene.left, scene.top}),
                         Canvas()->view().ToPixels({scene.right, scene.bottom}));
    return content.intersects(QRectF(Canvas()->rect()).adjusted(20, 20, -20, -20));
  };
  EXPECT_TRUE(inSight());
  for (const char* line : {"scroll \"Pan\" 48", "scroll \"Pan\" -48", "press \"Zoom\" \"+\"",
                           "scroll \"Pan\" 40", "press \"Zoom\" \"-\""}) {
    desktop.Play({line});
    EXPECT_TRUE(inSight()) << line;
  }
}

}  // namespace
}  // namespace lignara
