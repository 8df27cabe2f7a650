// Printing where the system has no printer: a PDF file, chosen by the user.

#include "desktop/kit/report_printer.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include "app/report.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"
#include "tests/support/file_size_limit.h"

namespace lignara {
namespace {

/// Answers the save dialog with a fixed path.
class FilePlatform : public DesktopPlatform {
 public:
  FilePlatform(SessionState& session, std::optional<std::string> path)
      : DesktopPlatform(session), path_(std::move(path)) {}

  void ShowMessage(const Message& message) override { texts.push_back(message.text); }
  std::optional<std::string> ChooseSaveFile(const std::string& filter) override {
    filters.push_back(filter);
    return path_;
  }

  void ShowNote(const std::string& text) override { notes.push_back(text); }

  std::vector<std::string> notes;
  std::vector<std::string> texts;
  std::vector<std::string> filters;

 private:
  std::optional<std::string> path_;
};

Report ThreePages() {
  Report report;
  report.Line("TITLE:   A", 1);
  Drawing drawing;
  drawing.width = 4800;
  drawing.height = 3000;
  drawing.textHeight = 100;
  drawing.shapes = {LineShape{0, 0, 4800, 3000}, TextShape{100, 100, "TL 1"}};
  report.Draw(drawing);
  report.StartPage();
  report.Columns({"MEMBER", "TYPE", "AREA"}, 1);
  report.StartPage();
  report.Line("END");
  return report;
}

class ReportPrinterTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QPrinterInfo::defaultPrinter().isNull())
        << "this test is for a system without a printer";
    ASSERT_TRUE(directory_.isValid());
  }
  std::string Path(const char* name) const { return FromQt(directory_.filePath(name)); }

  QTemporaryDir directory_;
  SessionState session_;
};

TEST_F(ReportPrinterTest, WritesAPdfWithEachPage) {
  FilePlatform platform(session_, Path("report.pdf"));
  platform.PrintReport(ThreePages());
  EXPECT_EQ(platform.filters, std::vector<std::string>{"PDF(*.pdf)|*.pdf|"});
  QFile file(ToQt(Path("report.pdf")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray content = file.readAll();
  EXPECT_TRUE(content.startsWith("%PDF"));
  EXPECT_EQ(content.count("/Type /Page\n"), 3);
  EXPECT_TRUE(platform.texts.empty());
  EXPECT_EQ(platform.notes, std::vector<std::string>{"Saved to " + Path("report.pdf")});
}

TEST_F(ReportPrinterTest, GivesThePdfItsTitle) {
  FilePlatform platform(session_, Path("titled.pdf"));
  platform.PrintReport(ThreePages());
  QFile file(ToQt(Path("titled.pdf")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray content = file.readAll();
  const qsizetype at = content.indexOf("/Title (");
  ASSERT_GE(at, 0);
  // Written as 16-bit letters behind a mark of their order.
  EXPECT_EQ(content.mid(at + 8, 16), QByteArray("\xfe\xff\0L\0i\0g\0n\0a\0r\0a", 16));
}

TEST_F(ReportPrinterTest, BreaksAPageThatIsFull) {
  Report report;
  for (int i = 0; i < 200; ++i) report.Line("line");
  FilePlatform platform(session_, Path("long.pdf"));
  platform.PrintReport(report);
  QFile file(ToQt(Path("long.pdf")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_GE(file.readAll().count("/Type /Page\n"), 3);
}

TEST_F(ReportPrinterTest, CancelPrintsNothing) {
  FilePlatform platform(session_, std::nullopt);
  platform.PrintReport(ThreePages());
  EXPECT_EQ(platform.filters.size(), 1u);
  EXPECT_TRUE(platform.texts.empty());
}

using Texts = std::vector<std::string>;

TEST_F(ReportPrinterTest, AFolderThatIsNotThereIsToldWithThePath) {
  const std::string path = Path("no such folder/report.pdf");
  FilePlatform platform(session_, path);
  platform.PrintReport(ThreePages());
  EXPECT_EQ(platform.texts, Texts{path + ": No such file or directory"});
  EXPECT_TRUE(platform.notes.empty());
}

TEST_F(ReportPrinterTest, AFullDiskIsTold) {
  FilePlatform platform(session_, "/dev/full");
  platform.PrintReport(ThreePages());
  EXPECT_EQ(platform.texts, Texts{"/dev/full: No space left on device"});
  EXPECT_TRUE(platform.notes.empty());
}

TEST_F(ReportPrinterTest, APdfThatDoesNotFitIsToldAndLeavesNoHalfFile) {
  const std::string path = Path("half.pdf");
  FilePlatform platform(session_, path);
  {
    const FileSizeLimit limit(1000);
    platform.PrintReport(ThreePages());
  }
  EXPECT_EQ(platform.texts, Texts{path + ": File too large"});
  EXPECT_TRUE(platform.notes.empty());
  EXPECT_FALSE(QFileInfo::exists(ToQt(path)));
}

}  // namespace
}  // namespace lignara
