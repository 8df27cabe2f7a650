// What a save dialog proposes: a name after the title, the extension of the kind, the last folder.

#include "desktop/kit/file_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/report_printer.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

TEST(QtFilter, WritesTheKindsAsTheDialogWantsThem) {
  EXPECT_EQ(QtFilter("Text(*.txt)|*.txt|All(*.*)|*.*|"), "Text (*.txt);;All (*)");
}

/// Accepts each save dialog with what it proposes, or with a name of its own.
class DialogReader : public QObject {
 public:
  explicit DialogReader(QString name = {}) : name_(std::move(name)) {
    timer_.callOnTimeout([this] { Answer(); });
    timer_.start(1);
  }

  QString caption;
  QString proposed;
  QString folder;

 private:
  void Answer() {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    caption = dialog->windowTitle();
    proposed = QFileInfo(dialog->selectedFiles().value(0)).fileName();
    folder = dialog->directory().absolutePath();
    if (!name_.isEmpty()) dialog->selectFile(name_);
    static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
  }

  const QString name_;
  QTimer timer_;
};

class SaveDialogTest : public testing::Test {
 protected:
  void SetUp() override { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

  QTemporaryDir directory;
  SessionState session;
};

TEST_F(SaveDialogTest, ProposesANameWithTheExtensionOfTheKind) {
  DialogReader reader;
  const auto path = FileDialogs().AskSave({"Save As", "Barn", "Text(*.txt)|*.txt|All(*.*)|*.*|"});
  EXPECT_EQ(FromQt(reader.proposed), "Barn.txt");
  ASSERT_TRUE(path);
  EXPECT_EQ(FromQt(QFileInfo(*path).fileName()), "Barn.txt");
}

TEST_F(SaveDialogTest, AddsTheExtensionToANameThatIsTyped) {
  DialogReader reader("loads");
  const auto path = FileDialogs().AskSave({"Save As", "Barn", "PNG(*.png)|*.png|"});
  ASSERT_TRUE(path);
  EXPECT_EQ(FromQt(QFileInfo(*path).fileName()), "loads.png");
}

TEST_F(SaveDialogTest, OpensInTheFolderUsedLast) {
  DesktopPlatform platform(session);
  {
    DialogReader reader(directory.filePath("first.txt"));
    ASSERT_TRUE(platform.ChooseSaveFile("Text(*.txt)|*.txt|"));
  }
  DialogReader reader;
  ASSERT_TRUE(platform.ChooseSaveFile("Text(*.txt)|*.txt|"));
  EXPECT_EQ(FromQt(reader.folder), FromQt(QDir(directory.path()).absolutePath()));
}

TEST_F(SaveDialogTest, SaysThatAPdfIsWrittenWhereThereIsNoPrinter) {
  DesktopPlatform platform(session);
  DialogReader reader(directory.filePath("a.pdf"));
  ASSERT_TRUE(platform.ChooseSaveFile(kPdfFilter));
  EXPECT_EQ(FromQt(reader.caption), "There is no printer: a PDF file is written");
}

TEST(DocumentName, IsWhatWasChosenInADataBase) {
  OpenDesktop desktop;
  desktop.Play({"press \"Glu-Lam Data Base\"", "window GL"});
  EXPECT_EQ(desktop.Window("GL")->DocumentName(), desktop.Window("GL")->windowTitle());
  desktop.Play(
      {"press \"Visually Graded Western Species\"", "select \"Combination Symbol\" \"24F-V4\""});
  EXPECT_EQ(FromQt(desktop.Window("GL")->DocumentName()), "Glu-Lam 24F-V4");
  desktop.Play(
      {"window main", "press \"Fastener Data Base\"", "window FASTENER", "press \"Lag Screws\""});
  EXPECT_EQ(FromQt(desktop.Window("FASTENER")->DocumentName()), "Lag Screws Dia. 1/4");
  desktop.Play({"window main", "press \"Ply Wood\""});
  EXPECT_EQ(FromQt(desktop.Window("ply")->DocumentName()), "Ply Wood");
  desktop.Play({"window ply", "press \"Sub Floors\""});
  EXPECT_EQ(FromQt(desktop.Window("ply")->DocumentName()), "Sub Floors (APA Rated Sheathing)");
}

TEST(DocumentName, IsTheGradeInTheWoodDataBase) {
  OpenDesktop desktop;
  desktop.Play(
      {"press \"Pure Wood Data Base\"", "window QUESTION", "press \"BEAM\"", "window WTYPETR",
       "press \"Wood Type Data Base\"", "window wdb", "press \"Western Woods\"",
       "select \"Data Base File to Load\" \"Douglas Fir-Larch\"", "select \"Grades\" \"No.2\""});
  EXPECT_EQ(FromQt(desktop.Window("wdb")->DocumentName()), "Douglas Fir-Larch No.2");
}

TEST(DocumentName, IsTheTitleOfTheTrussReportOrItsType) {
  OpenDesktop desktop;
  desktop.OpenKingPost();
  EXPECT_EQ(FromQt(desktop.Window("TRUSS")->DocumentName()), "KING POST TRUSS");
  desktop.session.ReportTitle = "Barn, north bay";
  EXPECT_EQ(FromQt(desktop.Window("TRUSS")->DocumentName()), "Barn, north bay");
}

}  // namespace
}  // namespace lignara
