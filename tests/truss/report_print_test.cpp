#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "tests/support/drawn_members.h"
#include "tests/support/reported_truss.h"
#include "truss/headings_and_fonts.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

/// A print job as pages of lines; a drawing stands as "(drawing)".
std::vector<Texts> Pages(const Report& report) {
  std::vector<Texts> pages(1);
  for (const Report::Item& item : report.items()) {
    if (const auto* line = std::get_if<ReportLine>(&item)) {
      pages.back().push_back(line->Text());
    } else if (std::get_if<Drawing>(&item) != nullptr) {
      pages.back().push_back("(drawing)");
    } else {
      pages.emplace_back();
    }
  }
  return pages;
}

std::string Zone2(const std::string& line) {
  return line.empty() ? line : std::string(14, ' ') + line;
}

TEST(PrintTruss, HasTheSectionsOfTheFileOnThreePagesInZone2) {
  OpenedTruss truss = Example("PRATT1");
  truss.session.ReportTitle = "Barn";
  PrintTruss(truss.window, truss.session, truss.platform);
  ASSERT_EQ(truss.platform.printed.size(), 1u);
  const auto pages = Pages(truss.platform.printed[0]);
  ASSERT_EQ(pages.size(), 3u);

  const Texts file = FileLines(truss);
  const auto at = [&](const std::string& line) {
    return std::find(file.begin(), file.end(), line);
  };
  const auto vertical = at("VERT. MEMBERS");
  const auto secondTitle = std::find(vertical, file.end(), "");
  const auto stresses = at("REVIEW OF STRESSES");
  Texts first = {"", "TITLE:   Barn", "DESCRIPTION:   ", "(drawing)"};
  first.insert(first.end(), file.begin() + 3, secondTitle);
  std::vector<Texts> expected = {first, Texts(secondTitle, stresses), Texts(stresses, file.end())};
  for (Texts& page : expected) {
    for (std::string& line : page) {
      if (line != "(drawing)") line = Zone2(line);
    }
  }
  EXPECT_EQ(pages, expected);
}

TEST(PrintTruss, FontIsTimes10WhateverWasChosen) {
  OpenedTruss truss = Example("PRATT1");
  truss.window.fontTimes = false;
  truss.window.fontTen = false;
  AcceptFonts(truss.window, truss.session);
  PrintTruss(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.platform.printed.at(0).fontName, "Times New Roman");
  EXPECT_EQ(truss.platform.printed.at(0).fontSize, 10);
}

const Drawing& PrintedDrawing(const OpenedTruss& truss) {
  for (const Report::Item& item : truss.platform.printed.at(0).items()) {
    if (const auto* drawing = std::get_if<Drawing>(&item)) return *drawing;
  }
  throw std::logic_error("no drawing was printed");
}

// Whatever the view was zoomed and panned to, the page shows the whole truss at the opening scale:
// 30 ft x 144 units from (144, 2580).
TEST(PrintTruss, DrawingIsAtOpeningScaleInBlack) {
  OpenedTruss truss = Example("PRATT1");
  EnlargeTruss(truss.window, truss.session, truss.platform);
  PanTruss(truss.window, truss.session, truss.platform, 3);
  PrintTruss(truss.window, truss.session, truss.platform);
  const Drawing& drawing = PrintedDrawing(truss);
  EXPECT_EQ(drawing.width, kCanvasWidth);
  EXPECT_EQ(drawing.height, kCanvasHeight);
  const auto members = DrawnByName(drawing);
  EXPECT_EQ(members.size(), 21u);
  EXPECT_EQ(members.at("CL 1").line.x1, 144);
  EXPECT_EQ(members.at("CR 1").line.x1, 4464);
  EXPECT_EQ(members.at("TL 3").line.y2, 480);
  EXPECT_EQ(members.at("TL 1").line.colour, Colour::Black);
  EXPECT_EQ(members.at("TL 1").circle.x, 504);
  EXPECT_EQ(members.at("TL 1").circle.colour, Colour::Red);
}

TEST(PrintTruss, DrawingNamesTheCentreVertical) {
  const std::pair<const char*, const char*> names[] = {
      {"KINGPOST", "CV"}, {"HOWE", "CV1"}, {"ENGLISH", "CV"}, {"PRATT2", "CV"}, {"SCI", "CV"}};
  for (const auto& [type, name] : names) {
    OpenedTruss truss = Example(type);
    PrintTruss(truss.window, truss.session, truss.platform);
    EXPECT_EQ(DrawnByName(PrintedDrawing(truss)).count(name), 1u) << type;
  }
}

/// The texts of a printed drawing behind its members, and where they stand.
std::vector<TextShape> NodeNames(const Drawing& drawing) {
  std::vector<TextShape> names;
  for (std::size_t i = DrawnMembers(drawing).size() * 3; i < drawing.shapes.size(); ++i) {
    names.push_back(std::get<TextShape>(drawing.shapes[i]));
  }
  return names;
}

TEST(PrintTruss, DrawingNamesTheTopNodes) {
  const NodeLabels rows[] = {
      {"PRATT1", 6, {"LN 1", "LN 2", "TN", "RN 1", "RN 2"}},
      {"KINGPOST", 4, {"TN"}},
      {"SCI", 4, {"LN1", "TN", "RN1"}},
      {"PRATT2", 4, {"LN 1", "LN 2", "TN", "RN 1", "RN 2"}},
      {"WARREN", 6, {"LN 0", "LN 1", "RN 0", "RN 1"}},
  };
  for (const NodeLabels& row : rows) {
    OpenedTruss truss = AfterRun(row.type, row.spans, 30, 7.5, 3);
    PrintTruss(truss.window, truss.session, truss.platform);
    Texts names;
    for (const TextShape& name : NodeNames(PrintedDrawing(truss))) {
      names.push_back(name.text);
      EXPECT_GE(name.x, 0) << row.type << name.text;
      EXPECT_LE(name.x + 60.0 * static_cast<double>(name.text.size()), kCanvasWidth);
      EXPECT_GE(name.y, 0) << row.type << name.text;
    }
    EXPECT_EQ(names, row.labels) << row.type;
  }
}

TEST(PrintTruss, NodeNamesStandBesideTheirNodes) {
  OpenedTruss truss = Example("PRATT1");
  PrintTruss(truss.window, truss.session, truss.platform);
  const auto names = NodeNames(PrintedDrawing(truss));
  // LN 1 at (864, 1880): up and outward, where the rafter falls away; RN 1 at (3744, 1880)
  // likewise.
  EXPECT_LT(names[0].x + 240, 864);
  EXPECT_LT(names[0].y + 110, 1880);
  EXPECT_GT(names[0].x, 864 - 400);
  EXPECT_GT(names[3].x, 3744);
  EXPECT_LT(names[3].x, 3744 + 100);
  // TN over the peak at (2304, 480).
  EXPECT_LT(names[2].y + 110, 480);
  EXPECT_NEAR(names[2].x + 60, 2304, 1);
}

TEST(PrintTruss, TakesTheViewBackToTheOpening) {
  OpenedTruss truss = Example("PRATT1");
  EnlargeTruss(truss.window, truss.session, truss.platform);
  PanTruss(truss.window, truss.session, truss.platform, 3);
  SelectNode(truss.window, truss.session, truss.platform, 1);
  PrintTruss(truss.window, truss.session, truss.platform);
  const TrussView& view = truss.window.view;
  EXPECT_EQ(view.ZoomFactor.value(), 1.0f);
  EXPECT_EQ(view.PixelsPerFootX.value(), 144);
  EXPECT_EQ(view.PixelsPerFootY.value(), 280);
  EXPECT_EQ(view.CanvasOriginX.value(), 144);
  EXPECT_EQ(view.CanvasOriginY.value(), 2580);
  EXPECT_EQ(view.markedRow, -1);
  const auto members = DrawnByName(view.drawing);
  EXPECT_EQ(members.at("CL 1").line.x1, 144);
  EXPECT_EQ(members.at("CL 1").line.colour, Colour::RoyalBlue) << "the canvas keeps its colours";
}

TEST(PrintTruss, NeedsARun) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  EnlargeTruss(truss.window, truss.session, truss.platform);
  PrintTruss(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"You need to run the model prior to printing!"});
  EXPECT_TRUE(truss.platform.printed.empty());
  EXPECT_NEAR(truss.window.view.ZoomFactor.value(), 1.1, 1e-6);
}

}  // namespace
}  // namespace lignara
