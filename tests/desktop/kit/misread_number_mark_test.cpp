// The mark on a field whose text is not wholly a number.

#include "desktop/kit/misread_number_mark.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>

#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

/// True where a pixel of the lower edge is amber: much more red than blue.
bool HasWave(QLineEdit* field) {
  const QImage image = field->grab().toImage();
  for (int x = 4; x < image.width() - 8; ++x) {
    for (int y = image.height() - 9; y < image.height() - 2; ++y) {
      const QColor colour = image.pixelColor(x, y);
      if (colour.red() - colour.blue() > 100) return true;
    }
  }
  return false;
}

class MisreadNumberMarkTest : public testing::Test {
 protected:
  MisreadNumberMarkTest() {
    field.resize(96, 26);
    MarkReading(&field);
    field.show();
  }

  QLineEdit field;
};

TEST_F(MisreadNumberMarkTest, TellsWhatATextWithACommaIsReadAs) {
  field.setText("1,200");
  EXPECT_EQ(field.toolTip(), "read as 1");
  EXPECT_EQ(field.accessibleDescription(), "read as 1");
  EXPECT_TRUE(HasWave(&field));
}

TEST_F(MisreadNumberMarkTest, LeavesANumberAlone) {
  field.setText("1200");
  EXPECT_EQ(field.toolTip(), "");
  EXPECT_FALSE(HasWave(&field));
}

TEST_F(MisreadNumberMarkTest, GoesWhenTheTextIsMended) {
  field.setText("1,200");
  field.setText("1200");
  EXPECT_EQ(field.toolTip(), "");
  EXPECT_EQ(field.accessibleDescription(), "");
  EXPECT_FALSE(HasWave(&field));
}

TEST_F(MisreadNumberMarkTest, KeepsItsPlaceWhenTheFieldGrows) {
  field.setText("x");
  field.resize(200, 40);
  EXPECT_TRUE(HasWave(&field));
}

TEST(MisreadNumberMarkInWindows, StandsOnTheNumbersOfAllForms) {
  OpenDesktop desktop;
  desktop.Play({"press \"PRATT1\"", "window TR_INPUT", "enter \"Total Length (ft)\" \"1,200\"",
                "enter \"H (ft)\" 5"});
  QStringList marked;
  for (const QLineEdit* field : desktop.Window("TR_INPUT")->findChildren<QLineEdit*>()) {
    if (!field->toolTip().isEmpty()) marked << CaptionOf(field) + ": " + field->toolTip();
  }
  EXPECT_EQ(marked, QStringList("Total Length (ft): read as 1"));
}

TEST(MisreadNumberMarkInWindows, IsNotForWords) {
  OpenDesktop desktop;
  desktop.OpenKingPost();
  desktop.Play({"menu \"Files\" \"Headings...\"", "enter \"Title\" \"Roof of a barn\""});
  for (const QLineEdit* field : desktop.Window("TRUSS")->findChildren<QLineEdit*>()) {
    if (CaptionOf(field) != "Title") continue;
    EXPECT_EQ(field->text(), "Roof of a barn");
    EXPECT_EQ(field->toolTip(), "");
  }
}

}  // namespace
}  // namespace lignara
