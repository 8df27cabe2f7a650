#include "beam/label_rooms.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

TEST(LabelRooms, GoOnStepByStepToTheFirstFreePlace) {
  LabelRooms rooms(100);
  LabelRoom first{10, 80, 30, 10};
  EXPECT_TRUE(rooms.Take(first, -10));
  EXPECT_EQ(first.y, 80);
  LabelRoom second{20, 80, 30, 10};
  EXPECT_TRUE(rooms.Take(second, -10));
  EXPECT_EQ(second.y, 70);
  LabelRoom beside{40, 80, 30, 10};
  EXPECT_TRUE(rooms.Take(beside, -10));
  EXPECT_EQ(beside.y, 80) << "rooms that touch do not overlap";
}

TEST(LabelRooms, AreNotOutsideThePicture) {
  LabelRooms rooms(100);
  LabelRoom high{0, -5, 10, 10};
  EXPECT_FALSE(rooms.Take(high, -10));
  LabelRoom low{0, 95, 10, 10};
  EXPECT_FALSE(rooms.Take(low, 10));
  LabelRoom back{0, 95, 10, 10};
  EXPECT_TRUE(rooms.Take(back, -10));
  EXPECT_EQ(back.y, 85);
}

TEST(LabelRooms, EndAfterAFewSteps) {
  LabelRooms rooms(1000);
  for (int i = 0; i < 6; ++i) {
    LabelRoom room{0, 500, 10, 10};
    EXPECT_TRUE(rooms.Take(room, -10)) << i;
  }
  LabelRoom seventh{0, 500, 10, 10};
  EXPECT_FALSE(rooms.Take(seventh, -10));
}

}  // namespace
}  // namespace lignara
