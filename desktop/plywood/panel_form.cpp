#include "desktop/plywood/panel_form.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/kit/form.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "plywood/ply_report.h"

namespace lignara {
namespace {

/// Room for the widest of some texts in a list.
int WidthFor(const QWidget* list, const Texts& texts) {
  constexpr int kFrame = 28;  // with a scroll bar
  int width = 0;
  for (const std::string& text : texts) {
    width = std::max(width, list->fontMetrics().horizontalAdvance(ToQt(text)));
  }
  return width + kFrame;
}

/// Short options stand in a row: so many letters, all together, are read at one glance.
Qt::Orientation OrientationFor(const std::vector<QString>& options) {
  constexpr qsizetype kLetters = 32;
  qsizetype letters = 0;
  for (const QString& option : options) letters += option.size();
  return letters <= kLetters ? Qt::Horizontal : Qt::Vertical;
}

/// Notes or a picture beside the fields leave them less room.
int WidthOfValues(const PlyPanelKind& kind) {
  constexpr int kNarrow = 120;
  constexpr int kMiddle = 190;
  constexpr int kWide = 280;  // for nails described in words
  if (!kind.linesCaption.empty()) return kNarrow;
  return kind.pictureName.empty() ? kWide : kMiddle;
}

}  // namespace

PlyPanelForm::PlyPanelForm(PlyPanelWindow& window, PlyPanel panel, Binding& binding,
                           DesktopPlatform& platform)
    : QGroupBox(ToQt(PlyPanelKindOf(panel).caption)),
      window_(window),
      panel_(panel),
      kind_(PlyPanelKindOf(panel)),
      state_(window.Panel(panel)),
      binding_(binding),
      platform_(platform) {
  setAccessibleName(title());
  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(12);
  rows->addLayout(Keys(), 1);
  rows->addLayout(Results());
  if (!kind_.note.empty()) {
    auto* note = new QLabel(ToQt(kind_.note));
    note->setWordWrap(true);
    rows->addWidget(note);
  }
  rows->addLayout(Commands());
}

/// The keys in their order, side by side; frames of options that follow each other share a column.
QLayout* PlyPanelForm::Keys() {
  auto* columns = new QHBoxLayout;
  columns->setSpacing(12);
  QVBoxLayout* frames = nullptr;
  for (std::size_t key = 0; key < kind_.keys.size(); ++key) {
    if (kind_.keys[key].form == PlyKeyForm::List) {
      columns->addWidget(List(key), 1);
      frames = nullptr;
      continue;
    }
    if (frames == nullptr) columns->addLayout(frames = new QVBoxLayout);
    frames->addWidget(Options(key));
    frames->setAlignment(Qt::AlignTop);
  }
  if (kind_.results.empty()) {
    columns->addWidget(Lines(), 4);
  } else {
    columns->addStretch(1);
  }
  return columns;
}

QWidget* PlyPanelForm::List(std::size_t key) {
  constexpr std::size_t kMostRows = 10;
  PlyKey& state = state_.keys[key];
  QListWidget* list = MakeList(ToQt(state.caption),
                               static_cast<int>(std::min(kMostRows, state.choice.rows.size())));
  list->setMinimumWidth(WidthFor(list, state.choice.rows));
  binding_.List(list, &state.choice.rows, &state.choice.row,
                [this, key](int row) { ChoosePlyRow(window_, panel_, key, row); });
  QWidget* captioned = MakeCaptionedList(ToQt(state.caption), list);
  FollowCaption(captioned->findChild<QLabel*>(), list, &state.caption);
  return captioned;
}

QWidget* PlyPanelForm::Options(std::size_t key) {
  const PlyKey& state = state_.keys[key];
  std::vector<QString> options;
  for (const std::string& option : state.choice.rows) options.push_back(ToQt(option));
  QGroupBox* frame = MakeOptionFrame(
      binding_, ToQt(state.caption), options, [&state] { return state.choice.row; },
      [this, key](int row) { ChoosePlyRow(window_, panel_, key, row); }, OrientationFor(options));
  KeepRoom(frame);
  binding_.Shown(frame, &state.shown);
  const auto buttons = frame->findChildren<QRadioButton*>();
  binding_.Follow([buttons, &state] {
    for (qsizetype i = 0; i < buttons.size(); ++i) {
      buttons[i]->setText(ToQt(state.choice.rows[static_cast<std::size_t>(i)]));
    }
  });
  return frame;
}

QWidget* PlyPanelForm::Stamp() {
  auto* picture = new Picture;
  picture->setAccessibleName(ToQt(kind_.pictureName));
  // As high as the results, and as wide as they leave room.
  picture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  picture->setMinimumWidth(InLetters(240));
  LetUserSave(picture, platform_);
  binding_.Show(picture, &state_.picture);
  return picture;
}

/// The fields, and beside them the notes or the picture where the panel has such.
QLayout* PlyPanelForm::Results() {
  auto* columns = new QHBoxLayout;
  if (kind_.results.empty()) return columns;
  const bool hasLines = !kind_.linesCaption.empty();
  const bool hasPicture = !kind_.pictureName.empty();
  auto* grid = new QGridLayout;
  for (PlyResult& result : state_.results) {
    QLineEdit* value = AddValue(grid, ToQt(result.caption), WidthOfValues(kind_));
    value->setAlignment(Qt::AlignLeft);
    binding_.Text(value, &result.value);
    FollowCaption(static_cast<QLabel*>(CaptionBeside(grid, value)), value, &result.caption);
  }
  grid->setRowStretch(grid->rowCount(), 1);
  columns->addLayout(grid);
  columns->addSpacing(12);
  if (hasLines) columns->addWidget(Lines(), 1);
  if (hasPicture) columns->addWidget(Stamp(), 1);
  if (!hasLines && !hasPicture) columns->addStretch(1);
  return columns;
}

QWidget* PlyPanelForm::Lines() {
  constexpr int kRows = 8;
  constexpr int kLetters = 68;
  QListWidget* list = MakeList(ToQt(kind_.linesCaption), kRows);
  list->setMinimumWidth(list->fontMetrics().averageCharWidth() * kLetters);
  list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as high as those rows
  binding_.List(list, &state_.lines);
  if (kind_.results.empty()) binding_.WhyEmpty(list, [] { return "Choose a row on the left."; });
  return MakeCaptionedList(ToQt(kind_.linesCaption), list);
}

QLayout* PlyPanelForm::Commands() {
  auto* row = new QHBoxLayout;
  row->addStretch();
  const auto add = [&](const char* caption, Binding::Command command) {
    auto* button = new QPushButton(caption);
    binding_.Press(button, std::move(command));
    row->addWidget(button);
    return button;
  };
  add("&Print", [this] { PrintPlyReport(window_, panel_, platform_); });
  add("&Save Output to Text File", [this] { SavePlyReport(window_, panel_, platform_); });
  SetEscapeButton(this, add("&Close", [this] { ClosePanel(window_); }));
  return row;
}

/// A caption that changes with a key; the widget beside it is known by it.
void PlyPanelForm::FollowCaption(QLabel* label, QWidget* named, const std::string* caption) {
  binding_.Text(label, caption);
  binding_.Follow([named, caption] { named->setAccessibleName(PlainCaption(ToQt(*caption))); });
}

}  // namespace lignara
