#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/data_directory.h"
#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/form.h"
#include "desktop/kit/text.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

class AboutForm : public ToolWindow {
 public:
  explicit AboutForm(WindowContext context) : ToolWindow(window_name::kAbout, context) {
    setWindowTitle("About Lignara");
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->setContentsMargins(40, 24, 40, 24);
    rows->setSpacing(8);
    rows->addWidget(NameLabel(), 0, Qt::AlignCenter);
    rows->addWidget(new QLabel("Wood Design Program"), 0, Qt::AlignCenter);
    rows->addWidget(new QLabel(QString("Version ") + ProgramVersion()), 0, Qt::AlignCenter);
    rows->addSpacing(12);
    rows->addWidget(Detail("Data Folder", "Data folder: " + DataFolder()));
    rows->addWidget(Detail("Toolkit", QString("Windows drawn by Qt ") + qVersion()));
    rows->addWidget(Detail("License", "No license terms are stated for Lignara"));
    rows->addSpacing(12);
    auto* ok = new QPushButton("&OK");
    binding().Press(ok, [this] { CloseControl(); });
    rows->addWidget(ok, 0, Qt::AlignCenter);
    SetReturnButton(area, ok);
    SetEscapeButton(area, ok);
  }

 private:
  QString DataFolder() const { return ToQt(FolderOf(session().DataDirectory)); }

  /// A line for whoever helps the user: it can be copied, and a long path takes several lines.
  static QLabel* Detail(const char* name, const QString& text) {
    auto* label = Named(name, new QLabel(text));
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMinimumWidth(InLetters(320));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
  }

  static QLabel* NameLabel() {
    auto* name = new QLabel(kProgramName);
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    font.setBold(true);
    name->setFont(font);
    return name;
  }
};

}  // namespace

ToolWindow* MakeAboutWindow(WindowContext context) { return new AboutForm(context); }

}  // namespace lignara
