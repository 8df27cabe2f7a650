#include "connections/fastener_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/exclusive_button.h"
#include "desktop/kit/form.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/text.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

/// The mnemonics of the kinds' buttons, in their order.
constexpr std::array<const char*, kFastenerKinds> kKindMnemonics = {"&Nails", "S&pikes",
                                                                    "&Wood Screws", "&Lag Screws"};

/// Strengths of nails, spikes, wood screws and lag screws.
class FastenerForm : public ToolWindow {
 public:
  explicit FastenerForm(WindowContext context) : ToolWindow(window_name::kFasteners, context) {
    setWindowTitle("Fastener Data Base");
    OpenFastenerDataBase(record_);
    AddMenus();
    AddStatusLine();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->setSpacing(12);
    rows->addLayout(Kinds());
    auto* columns = new QHBoxLayout;
    columns->setSpacing(12);
    columns->addWidget(Sizes(), 1);
    columns->addWidget(Embedments(), 1);
    columns->addLayout(Strengths(), 1);
    rows->addLayout(columns, 1);
    rows->addLayout(Commands(area));
  }

  /// The kind and the size chosen.
  QString DocumentName() const override {
    const QString kind = PlainCaption(EntryOf(record_.kind).caption);
    return (kind + " " + ToQt(record_.sizes.Chosen())).simplified();
  }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    binding().Menu(files->addAction("&Print"),
                   [this] { PrintFastenerReport(record_, platform()); });
    binding().Menu(files->addAction("&Save Output to Text File..."),
                   [this] { SaveFastenerReport(record_, platform()); });
    binding().Menu(files->addAction("&Exit"), [this] { CloseControl(); });
    AddHelpMenu();
  }

  QLayout* Kinds() {
    auto* row = new QHBoxLayout;
    std::vector<QPushButton*> buttons;
    for (std::size_t i = 0; i < kFastenerKindTable.size(); ++i) {
      const FastenerKind kind = kFastenerKindTable[i].kind;
      buttons.push_back(MakeExclusiveButton(
          binding(), kKindMnemonics[i], [this, kind] { return record_.kind == kind; },
          [this, kind] { ChooseFastenerKind(record_, kind); }));
      row->addWidget(buttons.back());
    }
    MakeOneTabStop(binding(), buttons);
    buttons.front()->setFocus();
    return row;
  }

  QWidget* Sizes() {
    constexpr int kRows = 12;
    QListWidget* list = MakeList("Size", kRows);
    binding().List(list, &record_.sizes.rows, &record_.sizes.row,
                   [this](int row) { ChooseFastenerSize(record_, row); });
    return MakeCaptionedList("Si&ze", list);
  }

  /// Its room is kept where a kind has no embedments, so that nothing moves from kind to kind.
  QWidget* Embedments() {
    constexpr int kRows = 14;
    QListWidget* list = MakeList("Embedment Length of Lag Screw (in)", kRows);
    binding().List(list, &record_.embedments.rows, &record_.embedments.row,
                   [this](int row) { ChooseEmbedment(record_, row); });
    QWidget* box = MakeCaptionedList("&Embedment Length of Lag Screw (in)", list);
    KeepRoom(box);
    binding().Shown(box, [this] { return EntryOf(record_.kind).showsEmbedment; });
    return box;
  }

  QLayout* Strengths() {
    auto* rows = new QVBoxLayout;
    rows->addWidget(MakeOptionFrame(
        binding(), "Wood", {"&Douglas Fir", "&Southern Pine"},
        [this] { return static_cast<int>(record_.wood); },
        [this](int wood) { ChooseFastenerWood(record_, static_cast<FastenerWood>(wood)); }));
    rows->addWidget(Values());
    rows->addWidget(Note("Note 1", &record_.firstNote));
    rows->addWidget(Note("Note 2", &record_.secondNote));
    rows->addStretch();
    return rows;
  }

  /// As wide for all kinds as for the one with the longest captions.
  QGroupBox* Values() {
    constexpr int kValueWidth = 80;
    QGroupBox* panel = MakePanel("Values");
    int width = 0;
    for (const char* caption : kFastenerFieldCaptions) {
      width = std::max(width, panel->fontMetrics().horizontalAdvance(caption));
    }
    constexpr int kMargins = 48;
    panel->setMinimumWidth(width + InLetters(kValueWidth) + kMargins);
    auto* grid = new QGridLayout(panel);
    for (std::size_t i = 0; i < kFastenerFields; ++i) {
      QLineEdit* value = AddValue(grid, kFastenerFieldCaptions[i], kValueWidth);
      binding().Text(value, &record_.fields[i]);
      const auto shown = [this, i] { return EntryOf(record_.kind).shows[i]; };
      binding().Shown(value, shown);
      binding().Shown(CaptionBeside(grid, value), shown);
    }
    return panel;
  }

  /// Keeps its line where it is empty.
  QLabel* Note(const char* name, const std::string* text) {
    auto* note = Named(name, new QLabel);
    note->setWordWrap(true);
    note->setMinimumHeight(note->fontMetrics().height());
    binding().Text(note, text);
    return note;
  }

  QLayout* Commands(QWidget* area) {
    auto* row = new QHBoxLayout;
    auto* bolts = new QPushButton("&Bolts");
    binding().Press(bolts, [this] { platform().OpenWindow(window_name::kBolts); });
    auto* close = new QPushButton("&CLOSE");
    binding().Press(close, [this] { CloseControl(); });
    row->addWidget(bolts);
    row->addStretch();
    row->addWidget(close);
    SetEscapeButton(area, close);
    return row;
  }

  FastenerWindow record_;
};

}  // namespace

ToolWindow* MakeFastenerWindow(WindowContext context) { return new FastenerForm(context); }

}  // namespace lignara
