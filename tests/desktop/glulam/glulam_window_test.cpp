// The glulam window under the hand of a user: clicks into its fields, its keys, its place on the
// screen, and the way back to it.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <map>
#include <set>

#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class GlulamWindowTest : public testing::Test {
 protected:
  GlulamWindowTest() {
    desktop.Play({"press \"Glu-Lam Data Base\"", "window GL",
                  "press \"Visually Graded Western Species\"",
                  "select \"Combination Symbol\" \"24F-V4\""});
  }

  ToolWindow* Window() { return desktop.Window("GL"); }

  QWidget* Control(const char* caption, const char* panel = "") {
    const QStringList path = *panel == '\0' ? QStringList{caption} : QStringList{panel, caption};
    for (QWidget* control : VisibleControls(Window())) {
      if (CaptionOf(control) != path.back()) continue;
      const auto* group = qobject_cast<const QGroupBox*>(control->parentWidget());
      if (path.size() == 1 || (group != nullptr && CaptionOf(group) == path[0])) return control;
    }
    throw std::runtime_error(caption);
  }

  QString TextOf(const char* caption) {
    return static_cast<const QLineEdit*>(Control(caption))->text();
  }

  void ClickInto(const char* caption, Qt::MouseButton button = Qt::LeftButton) {
    QWidget* field = Control(caption);
    const QPointF at(4, 4);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, at, field->mapToGlobal(at), button, button, Qt::NoModifier);
      QApplication::sendEvent(field, &event);
    }
  }

  void Type(const char* text) {
    for (const char* key = text; *key != '\0'; ++key) {
      QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(*key)));
      QApplication::sendEvent(Window()->focusWidget(), &event);
    }
  }

  QString Fc() {
    desktop.Play(
        {"read \"Display Data, Allowable Stress Values (psi)\" \"Fc, Compression parallel "
         "to grain\""});
    return desktop.printed.back();
  }

  /// The captions at which `stops` presses of Tab stop.
  QStringList Walk(int stops) {
    QStringList path;
    for (int i = 0; i < stops; ++i) {
      desktop.PressKey("GL", Qt::Key_Tab);
      path << desktop.FocusIn("GL");
    }
    return path;
  }

  OpenDesktop desktop;
};

TEST_F(GlulamWindowTest, AClickIntoASizeEmptiesItAndComputes) {
  desktop.Play({"enter \"L(ft)\" 50", "enter \"d(in)\" 12", "enter \"b(in)\" 12"});
  EXPECT_EQ(Fc(), "value \"192.00\"");
  for (const char* size : {"L(ft)", "d(in)", "b(in)"}) {
    const QString before = TextOf(size);
    ClickInto(size);
    EXPECT_EQ(TextOf(size), "") << size;
    EXPECT_EQ(Fc(), "value \"1650.00\"") << size;
    desktop.Play({FromQt("enter \"" + QString(size) + "\" " + before).c_str()});
  }
  EXPECT_EQ(Fc(), "value \"192.00\"");
}

TEST_F(GlulamWindowTest, OtherMouseButtonsAndTheTabKeyEmptyNothing) {
  desktop.Play({"enter \"L(ft)\" 50", "key \"L(ft)\" Tab"});
  ClickInto("L(ft)", Qt::RightButton);
  EXPECT_EQ(TextOf("L(ft)"), "50");
  for (QWidget* popup : QApplication::topLevelWidgets()) {
    if (popup->windowType() == Qt::Popup) popup->close();
  }
}

TEST_F(GlulamWindowTest, EachTypedLetterComputes) {
  desktop.Play({"enter \"d(in)\" 12", "enter \"b(in)\" 12"});
  ClickInto("L(ft)");
  Control("L(ft)")->setFocus();
  Type("5");
  EXPECT_EQ(Fc(), "value \"1650.00\"");
  Type("0");
  EXPECT_EQ(TextOf("L(ft)"), "50");
  EXPECT_EQ(Fc(), "value \"192.00\"");
}

TEST_F(GlulamWindowTest, TabGoesFromFileToListToSizesToChoicesToFactorsToTransfer) {
  Control("Visually Graded Western Species")->setFocus();
  EXPECT_EQ(Walk(7), QStringList({"Combination Symbol", "L(ft)", "d(in)", "b(in)", "Dry Use",
                                  "> 10 yr.", "Single Consentrated"}));
  EXPECT_EQ(Walk(14).front(), "Fbx, Ten. Zone in tension");
  EXPECT_EQ(Walk(2), QStringList({"Set user adjustment as default", "Done / Transfer"}));
}

TEST_F(GlulamWindowTest, ArrowKeysChooseDurationAndLoadType) {
  Control("> 10 yr.")->setFocus();
  desktop.PressKey("GL", Qt::Key_Space);
  desktop.PressKey("GL", Qt::Key_Down);
  desktop.Play({"state \"2 Month\"", "state \"> 10 yr.\""});
  EXPECT_EQ(desktop.printed[desktop.printed.size() - 2], "state visible enabled checked");
  EXPECT_EQ(desktop.printed.back(), "state visible enabled unchecked");
  EXPECT_EQ(Fc(), "value \"1898.00\"");
  Control("Single Consentrated")->setFocus();
  desktop.PressKey("GL", Qt::Key_Space);
  desktop.PressKey("GL", Qt::Key_Down);
  EXPECT_EQ(desktop.FocusIn("GL"), "Uniform");
}

TEST_F(GlulamWindowTest, ReturnInAFieldTransfers) {
  desktop.Play(
      {"enter \"L(ft)\" 10", "enter \"d(in)\" 12", "enter \"b(in)\" 6", "key \"b(in)\" Return"});
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList{"main"});
  EXPECT_EQ(desktop.session.Member.SizeName, "GL 24F-V4(DF/DF)");
}

TEST_F(GlulamWindowTest, EveryLetterOfTheKeyboardLeadsToOneControl) {
  std::map<QChar, int> letters;
  const auto note = [&](const QString& text) {
    const qsizetype at = text.indexOf('&');
    if (at >= 0) ++letters[text[at + 1].toLower()];
  };
  for (const auto* button : Window()->findChildren<QAbstractButton*>()) note(button->text());
  for (const auto* label : Window()->findChildren<QLabel*>()) note(label->text());
  for (const auto* menu : Window()->menuBar()->actions()) note(menu->text());
  EXPECT_EQ(letters.size(), 23U);
  for (const auto& [letter, count] : letters) EXPECT_EQ(count, 1) << letter.toLatin1();
}

TEST_F(GlulamWindowTest, FitsASmallScreenWithoutCuttingACaption) {
  const QSize least = Window()->minimumSizeHint();
  EXPECT_LE(least.width(), 1000);
  EXPECT_LE(least.height(), 700);
  Window()->resize(least);
  QApplication::processEvents();
  ExpectNoCaptionCutOff(Window());
}

TEST_F(GlulamWindowTest, FactorsStandOnTheRowsOfTheirValues) {
  std::map<QString, std::set<int>> tops;
  for (const QWidget* control : VisibleControls(Window())) {
    const auto* field = qobject_cast<const QLineEdit*>(control);
    if (field == nullptr || !CaptionOf(field).contains(", ")) continue;
    tops[CaptionOf(field)].insert(field->mapTo(Window(), QPoint(0, 0)).y());
  }
  EXPECT_EQ(tops.size(), 14U);
  for (const auto& [caption, places] : tops) EXPECT_EQ(places.size(), 1U) << FromQt(caption);
}

TEST_F(GlulamWindowTest, TheListTakesTheRoomOfALargerWindow) {
  const int before = Control("Combination Symbol")->height();
  Window()->resize(Window()->size() + QSize(200, 150));
  QApplication::processEvents();
  EXPECT_GE(Control("Combination Symbol")->height(), before + 140);
}

// A window that comes to the front by the user's hand, without a script line.
TEST_F(GlulamWindowTest, ComesBackFromAnotherWindowButNotFromItself) {
  desktop.Play({"enter \"L(ft)\" 50"});
  desktop.platform.NoteActive(Window());
  EXPECT_EQ(TextOf("L(ft)"), "50");
  desktop.platform.NoteActive(desktop.Window("main"));
  EXPECT_EQ(TextOf("L(ft)"), "50");
  desktop.platform.NoteActive(Window());
  EXPECT_EQ(TextOf("L(ft)"), "0.00");
}

TEST_F(GlulamWindowTest, ABoxIsNoOtherWindow) {
  desktop.Play({"enter \"L(ft)\" 50", "press \"Done / Transfer\"", "window GL"});
  EXPECT_TRUE(desktop.printed.back().startsWith("message"));
  EXPECT_EQ(TextOf("L(ft)"), "50");
}

TEST_F(GlulamWindowTest, WetUseIsGreyedWhereItIsNotOffered) {
  desktop.Play({"press \"Wet Use\"", "press \"Visually Graded Southern Pine\"",
                "select \"Combination Symbol\" \"24F-V4\""});
  EXPECT_FALSE(Control("Wet Use")->isEnabled());
  EXPECT_TRUE(static_cast<QAbstractButton*>(Control("Dry Use"))->isChecked());
}

}  // namespace
}  // namespace lignara
