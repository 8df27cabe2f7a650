// The help document as the help window reads it.

#include <gtest/gtest.h>

#include <QFile>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>

#include "desktop/kit/text.h"
#include "desktop/kit/window_kind.h"

namespace lignara {
namespace {

class HelpDocument : public testing::Test {
 protected:
  HelpDocument() {
    QFile file(QString(LIGNARA_DATA_DIRECTORY) + "/LIGNARA.HLP");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    document_.setHtml(QString::fromUtf8(file.readAll()));
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        const QTextCharFormat format = part.fragment().charFormat();
        for (const QString& name : format.anchorNames()) anchors_ << name;
        if (!format.anchorHref().isEmpty()) links_ << format.anchorHref();
      }
    }
  }

  QTextDocument document_;
  QSet<QString> anchors_;
  QSet<QString> links_;
};

TEST_F(HelpDocument, HasASectionForEveryWindowOfTheProgram) {
  int sections = 0;
  for (const char* window :
       {"main", "QUESTION", "ABOUT", "TR_INPUT", "TRUSS", "WTYPETR", "wdb", "MLSP", "MS",
        "MDOUTPUT", "GL", "bolts", "FASTENER", "ply", "REPEAT"}) {
    if (FindWindowKind(window) == nullptr) continue;
    ++sections;
    EXPECT_TRUE(anchors_.contains(window)) << window;
  }
  EXPECT_GE(sections, 5);
}

TEST_F(HelpDocument, EveryLinkLeadsToASectionOfIt) {
  EXPECT_FALSE(links_.isEmpty());
  for (const QString& link : links_) {
    EXPECT_TRUE(link.startsWith('#') && anchors_.contains(link.mid(1))) << FromQt(link);
  }
}

TEST_F(HelpDocument, ShowsNoMarkup) {
  const QString text = document_.toPlainText();
  EXPECT_TRUE(text.contains("Member Size Data Calculator"));
  for (const QChar sign : {QChar('<'), QChar('>')}) EXPECT_FALSE(text.contains(sign));
}

}  // namespace
}  // namespace lignara
