#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/data_directory.h"
#include "app/data_folder_status.h"
#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/picture_button.h"
#include "desktop/kit/screen_readers.h"
#include "desktop/kit/session_commands.h"
#include "desktop/kit/text.h"
#include "desktop/windows.h"
#include "truss/picture_in_words.h"
#include "truss/sketches.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

class LauncherForm : public ToolWindow {
 public:
  explicit LauncherForm(WindowContext context) : ToolWindow(window_name::kLauncher, context) {
    setWindowTitle("Ostrel's Lignara");
    AddMenus();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* columns = new QHBoxLayout(area);
    columns->addWidget(TrussPanel(), 1);
    auto* tools = new QVBoxLayout;
    columns->addLayout(tools);
    tools->addWidget(BeamPanel());
    tools->addWidget(DataBasePanel());
    tools->addStretch();
    ShowDataFolder();
  }

  void StartAgain() override { record_.spanText.clear(); }

  void CloseControl() override {
    if (platform().IsPlayed()) return;  // a session that is opened does not end the program
    platform().CloseWindow(window_name::kRepeat);
    CloseAllWindows(platform());
    platform().CloseWindow(window_name::kHelp);
    platform().CloseWindow(window_name::kLauncher);
  }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    AddSessionItems(files);
    files->addSeparator();
    QAction* exit = files->addAction("E&xit");
    exit->setShortcut(QKeySequence::Quit);
    binding().Menu(exit, [this] { CloseControl(); });
    QMenu* help = AddHelpMenu();
    binding().Menu(help->addAction("&About..."),
                   [this] { platform().OpenWindow(window_name::kAbout); });
  }

  /// They are no actions of the session.
  void AddSessionItems(QMenu* menu) {
    struct Item {
      const char* caption;
      QKeySequence key;
      void (SessionCommands::*command)();
    };
    const Item items[] = {
        {"&Save Session...", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
         &SessionCommands::Save},
        {"&Open Session...", QKeySequence(Qt::CTRL | Qt::Key_O), &SessionCommands::Open},
        {"&Undo", QKeySequence(Qt::CTRL | Qt::Key_Z), &SessionCommands::Undo},
        {"&Redo", QKeySequence(Qt::CTRL | Qt::Key_Y), &SessionCommands::Redo},
        {"Re&peat With...", QKeySequence(), &SessionCommands::Repeat}};
    for (const Item& item : items) {
      QAction* action = menu->addAction(item.caption);
      action->setShortcut(item.key);
      const auto command = item.command;
      connect(action, &QAction::triggered, this, [this, command] {
        if (platform().sessions() != nullptr) (platform().sessions()->*command)();
      });
    }
  }

  /// Says at the foot what is amiss with the data folder. Where nothing is, there is no foot.
  void ShowDataFolder() {
    const QFileInfo folder(ToQt(FolderOf(session().DataDirectory)));
    record_.status = DataFolderStatus(session().DataDirectory, folder.isWritable());
    if (record_.status.empty()) return;
    QLabel* status = AddStatusText("Status");
    status->setWordWrap(true);
    status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    status->setText(ToQt(record_.status));
    // A path may need several lines, of which the status bar knows nothing.
    const int frame = InLetters(40);
    status->setFixedHeight(status->heightForWidth(centralWidget()->sizeHint().width() - frame));
  }

  QGroupBox* TrussPanel() {
    QGroupBox* panel = MakePanel("Trusses");
    auto* grid = new QGridLayout(panel);
    grid->setSpacing(8);
    int place = 0;
    for (const TrussTypeInfo& type : TrussTypes()) {
      auto* button = new PictureButton(TypePicture(type.keyword), ToQt(type.title));
      SetSpokenName(button, ToQt(type.keyword), ToQt(TypeInWords(type.keyword)));
      binding().Press(button, [this, &type] { StartTruss(type.keyword, session(), platform()); });
      grid->addWidget(button, place / 2, place % 2);
      ++place;
    }
    return panel;
  }

  QGroupBox* BeamPanel() {
    QGroupBox* panel = MakePanel("Beams");
    auto* rows = new QVBoxLayout(panel);
    auto* count = new QHBoxLayout;
    auto* field = Named("Enter No. of Spans", new QLineEdit);
    field->setMaximumWidth(InLetters(64));
    auto* caption = new QLabel("&Enter No. of Spans");
    caption->setBuddy(field);
    count->addWidget(caption);
    count->addStretch();
    count->addWidget(field);
    rows->addLayout(count);
    binding().Field(field, &record_.spanText);
    rows->addWidget(MultiSpanButton());
    SetReturnButton(panel, multiSpan_);
    rows->addSpacing(8);
    rows->addWidget(ToolButton("&Single Span Beams", window_name::kBeam,
                               [this] { StartSingleSpanBeam(session(), platform()); }));
    return panel;
  }

  /// Refusing a count needs no beam window, so only a count that would open one waits for it.
  QPushButton* MultiSpanButton() {
    multiSpan_ = new QPushButton("&Multi-Span Beam");
    binding().Press(multiSpan_, [this] { StartMultiSpanBeam(record_, session(), platform()); });
    binding().Follow([this] {
      const bool able = platform().HasWindow(window_name::kMultiSpan) || !AcceptsSpanCount(record_);
      multiSpan_->setEnabled(able);
      multiSpan_->setToolTip(able ? "" : kNotInThisVersion);
    });
    return multiSpan_;
  }

  QGroupBox* DataBasePanel() {
    QGroupBox* panel = MakePanel("Data Bases");
    auto* rows = new QVBoxLayout(panel);
    rows->addWidget(ToolButton("&Pure Wood Data Base", window_name::kMemberSize,
                               [this] { platform().OpenWindow(window_name::kQuestion); }));
    rows->addWidget(ToolButton("&Glu-Lam Data Base", window_name::kGlulam,
                               [this] { platform().OpenWindow(window_name::kGlulam); }));
    rows->addWidget(ToolButton("F&astener Data Base", window_name::kFasteners,
                               [this] { platform().OpenWindow(window_name::kFasteners); }));
    rows->addWidget(ToolButton("Ply &Wood", window_name::kPlywood,
                               [this] { platform().OpenWindow(window_name::kPlywood); }));
    return panel;
  }

  /// A command that leads to a window; disabled where this version does not have it.
  QPushButton* ToolButton(const QString& caption, const char* window, Binding::Command command) {
    auto* button = new QPushButton(caption);
    binding().Press(button, std::move(command));
    if (!platform().HasWindow(window)) {
      button->setEnabled(false);
      button->setToolTip(kNotInThisVersion);
    }
    return button;
  }

  static constexpr const char* kNotInThisVersion = "This tool is not in this version yet";

  LauncherWindow record_;
  QPushButton* multiSpan_ = nullptr;
};

}  // namespace

ToolWindow* MakeLauncherWindow(WindowContext context) { return new LauncherForm(context); }

}  // namespace lignara
