#include "multispan/multi_span_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include "app/window_names.h"
#include "desktop/kit/command_button.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/header_panel.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/kit/screen_readers.h"
#include "desktop/kit/text.h"
#include "desktop/multispan/arrow_button.h"
#include "desktop/windows.h"
#include "multispan/descriptions.h"
#include "multispan/integrations.h"

namespace lignara {
namespace {

/// The fields of a span, column by column in the order of work.
constexpr SpanField kFirstColumn[] = {SpanField::Length, SpanField::Unbraced, SpanField::Uniform,
                                      SpanField::B,      SpanField::D,        SpanField::Area};
constexpr SpanField kSecondColumn[] = {
    SpanField::Modulus,   SpanField::Inertia, SpanField::SectionModulus,
    SpanField::ShearArea, SpanField::Fb,      SpanField::Fv};

/// The far supports in the order of their options.
constexpr EndSupport kSupports[] = {EndSupport::Fixed, EndSupport::Pinned, EndSupport::None};

/// Spans, loads and far supports of a continuous beam.
class MultiSpanForm : public ToolWindow {
 public:
  explicit MultiSpanForm(WindowContext context) : ToolWindow(window_name::kMultiSpan, context) {
    setWindowTitle("Multi Span Beams");
    OpenMultiSpan(record_, session(), platform());
    AddMenus();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->setSpacing(10);
    rows->addWidget(BeamPicture(), 1);
    auto* panels = new QHBoxLayout;
    panels->setSpacing(10);
    panels->addWidget(SpanPanel(), 1);
    auto* side = new QVBoxLayout;
    side->addLayout(Supports());
    side->addWidget(LoadPanel());
    side->addStretch();
    side->addLayout(RunRow());
    panels->addLayout(side);
    rows->addLayout(panels);
    AddStatusLine();
    resize(930, 640);
    length_->setFocus();
  }

  void Refresh() override {
    RefreshSpanNote(record_, session());
    ToolWindow::Refresh();
  }

  QString DocumentName() const override { return TitleOr(windowTitle(), session()); }

 protected:
  void Returned() override { ActivateMultiSpan(record_, session(), platform()); }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    binding().Menu(files->addAction("E&xit"), [this] { CloseControl(); });
    QMenu* options = menuBar()->addMenu("&Options");
    binding().Menu(options->addAction("&Member Data Base..."),
                   [this] { OpenSpanMemberDataBase(record_, session(), platform()); });
    QAction* glulam = options->addAction("&Glu-Lam Data Base...");
    binding().Menu(glulam, [this] { OpenSpanGlulamDataBase(record_, session(), platform()); });
    glulam->setEnabled(platform().HasWindow(window_name::kGlulam));
    binding().Menu(options->addAction("&Integrations..."),
                   [this] { OpenIntegrations(platform()); });
    AddHelpMenu();
  }

  QPushButton* Arrow(const QString& caption, const QString& tip, Binding::Command command) {
    QPushButton* button = MakeButton(binding(), caption, std::move(command));
    MakeArrow(button, tip);
    return button;
  }

  Picture* BeamPicture() {
    auto* picture = Named("Beam", new Picture);
    picture->setMinimumHeight(InLetters(150));
    binding().Show(picture, &record_.picture);
    binding().Follow(
        [this, picture] { Describe(picture, ToQt(DescribeBeam(session().MultiSpan))); });
    LetUserSave(picture, platform());
    return picture;
  }

  /// A number with an arrow on either side and a count behind.
  QLayout* Walk(const char* number, const std::string* at, const char* count, const std::string* of,
                QPushButton* back, QPushButton* on) {
    auto* row = new QHBoxLayout;
    row->addWidget(back);
    auto* grid = new QGridLayout;
    binding().Text(PutValue(grid, 0, 0, number, 44), at);
    row->addLayout(grid);
    row->addWidget(on);
    row->addSpacing(12);
    auto* counted = new QGridLayout;
    binding().Text(PutValue(counted, 0, 0, count, 44), of);
    row->addLayout(counted);
    row->addStretch();
    return row;
  }

  QGroupBox* SpanPanel() {
    QGroupBox* panel = MakePanel("Span");
    auto* rows = new QVBoxLayout(panel);
    rows->addLayout(
        Walk("Span No.", &record_.spanNumber, "No. of Spans", &record_.spanCount,
             Arrow("<", "Previous span", [this] { ShowPreviousSpan(record_, session()); }),
             Arrow(">", "Next span", [this] { ShowNextSpan(record_, session()); })));
    rows->addLayout(SpanFields());
    rows->addLayout(MemberRow());
    rows->addWidget(Axes());
    rows->addLayout(SpanCommands(panel));
    return panel;
  }

  QLayout* SpanFields() {
    auto* grid = new QGridLayout;
    grid->setColumnMinimumWidth(2, 14);
    AddFields(grid, 0, kFirstColumn);
    AddFields(grid, 3, kSecondColumn);
    return grid;
  }

  template <std::size_t N>
  void AddFields(QGridLayout* grid, int column, const SpanField (&fields)[N]) {
    int row = 0;
    for (const SpanField field : fields) {
      QLineEdit* edit =
          PutField(grid, row++, column, SpanFieldCaption(field, session().unitSystem.value()), 84);
      binding().Field(edit, &record_.Field(field),
                      [this, field] { EditSpanField(record_, session(), platform(), field); });
      if (field == SpanField::Length) length_ = edit;
    }
  }

  QLayout* MemberRow() {
    auto* grid = new QGridLayout;
    QLineEdit* member = PutValue(grid, 0, 0, "Member:", 180);
    member->setAlignment(Qt::AlignLeft);
    binding().Text(member, &record_.member);
    QLineEdit* type = PutValue(grid, 0, 2, "Type", 70);
    type->setAlignment(Qt::AlignLeft);
    type->setMaximumWidth(90);
    binding().Text(type, &record_.type);
    return grid;
  }

  QGroupBox* Axes() {
    QGroupBox* axes = MakeOptionFrame(
        binding(), "Axis", {"Stron&g Axis", "&Weak Axis"},
        [this] { return record_.weakAxis ? 1 : 0; },
        [this](int axis) { ChooseSpanAxis(record_, session(), platform(), axis == 1); },
        Qt::Horizontal);
    binding().Enabled(axes, [this] { return record_.spanAccepted; });
    return axes;
  }

  QLayout* SpanCommands(QGroupBox* panel) {
    auto* row = new QHBoxLayout;
    QPushButton* update = MakeButton(binding(), "&Update Span",
                                     [this] { UpdateSpan(record_, session(), platform()); });
    row->addWidget(update);
    row->addWidget(
        MakeButton(binding(), "Load &Same ", [this] { LoadSameSpan(record_, session()); }));
    auto* note = Named("Span Note", new QLabel);
    binding().Text(note, &record_.note);
    row->addWidget(note, 1);
    SetReturnButton(panel, update);
    return row;
  }

  QGroupBox* LoadPanel() {
    QGroupBox* panel = MakePanel("Load");
    auto* rows = new QVBoxLayout(panel);
    rows->addLayout(
        Walk("Load No.", &record_.loadNumber, "# of Point Loads", &record_.loadCount,
             Arrow("<", "Previous load", [this] { ShowPreviousLoad(record_, session()); }),
             Arrow(">", "Next load", [this] { ShowNextLoad(record_, session()); })));
    const LoadCaptions& captions = LoadCaptionsOf(session().unitSystem.value());
    auto* grid = new QGridLayout;
    binding().Field(PutField(grid, 0, 0, captions.place, 70), &record_.pointX);
    binding().Field(PutField(grid, 0, 2, captions.load, 70), &record_.pointLoad);
    rows->addLayout(grid);
    QPushButton* update = MakeButton(binding(), "Update &Load",
                                     [this] { UpdatePointLoad(record_, session(), platform()); });
    binding().Enabled(update, [this] { return record_.spanAccepted; });
    rows->addWidget(update, 0, Qt::AlignLeft);
    rows->addWidget(new QLabel("Note, X is the distance from the left side of the span."));
    SetReturnButton(panel, update);
    return panel;
  }

  QLayout* Supports() {
    auto* row = new QHBoxLayout;
    row->addWidget(SupportPanel("Far Left Support", FarEnd::Left));
    row->addWidget(SupportPanel("Far Right Support", FarEnd::Right));
    return row;
  }

  QGroupBox* SupportPanel(const char* caption, FarEnd end) {
    const auto chosen = [this, end] {
      const MultiSpanModel& model = session().MultiSpan;
      const EndSupport now = end == FarEnd::Left ? model.farLeftSupport : model.farRightSupport;
      return static_cast<int>(std::find(std::begin(kSupports), std::end(kSupports), now) -
                              std::begin(kSupports));
    };
    return MakeOptionFrame(
        binding(), caption, {"Fixed", "Pinned", "None"}, chosen,
        [this, end](int at) { SetFarSupport(record_, session(), end, kSupports[at]); });
  }

  QLayout* RunRow() {
    auto* row = new QHBoxLayout;
    row->addStretch();
    QPushButton* run =
        MakeButton(binding(), "&Run", [this] { RunMultiSpan(session(), platform()); });
    run->setMinimumWidth(140);
    row->addWidget(run);
    return row;
  }

  MultiSpanWindow record_;
  QLineEdit* length_ = nullptr;
};

}  // namespace

ToolWindow* MakeMultiSpanWindow(WindowContext context) { return new MultiSpanForm(context); }

}  // namespace lignara
