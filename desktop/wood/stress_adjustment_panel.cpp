#include "desktop/wood/stress_adjustment_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/kit/exclusive_button.h"
#include "desktop/kit/form.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "wood/adjustment_tables.h"
#include "wood/wood_data_base_window.h"

namespace lignara {
namespace {

struct FactorBox {
  const char* caption;
  std::string FactorPanel::*text;
};

// "Wet Use Factor" and "Size Factor" are worked out; these four may be typed over.
constexpr FactorBox kFactorBoxes[] = {
    {"&Repetative Use Factor", &FactorPanel::repetitive},
    {"Load &Duration Factor", &FactorPanel::loadDuration},
    {"Shear Condi&tion Factor", &FactorPanel::shearCondition},
    {"Flat &Use Factor", &FactorPanel::flatUse},
};

/// A list with its caption above it, wide enough for a text and high enough for its rows.
QListWidget* AddList(QVBoxLayout* column, const char* caption, std::size_t rows,
                     const QString& widest) {
  constexpr int kFrame = 14;
  auto* label = new QLabel(caption);
  QListWidget* list = MakeList(caption, static_cast<int>(rows));
  list->setMinimumWidth(std::max(list->fontMetrics().horizontalAdvance(widest),
                                 list->fontMetrics().horizontalAdvance(label->text())) +
                        kFrame);
  list->setFixedHeight(list->minimumHeight());
  column->addWidget(label);
  column->addWidget(list);
  return list;
}

template <typename Rows>
QString WidestRow(const Rows& rows) {
  const auto widest = std::max_element(rows.begin(), rows.end(), [](auto* a, auto* b) {
    return std::string_view(a).size() < std::string_view(b).size();
  });
  return *widest;
}

/// Parts side by side; in two rows where letters are so large that a small screen has no room for
/// all of them in one.
QLayout* InRows(const std::vector<QLayout*>& parts, int gap) {
  constexpr int kUsual = 100, kLarge = 130;
  const bool large = InLetters(kUsual) > kLarge;
  const std::size_t most = large ? (parts.size() + 1) / 2 : parts.size();
  auto* rows = new QVBoxLayout;
  QHBoxLayout* row = nullptr;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i % most == 0) {
      row = new QHBoxLayout;
      row->setSpacing(gap);
      rows->addLayout(row);
    }
    row->addLayout(parts[i]);
  }
  return rows;
}

/// Conditions of use first, then the factors that follow from them, then the multipliers and what
/// to do with them.
class FactorPanelForm : public QGroupBox {
 public:
  FactorPanelForm(WoodDataBaseWindow& window, Binding& binding, SessionState& session,
                  Platform& platform)
      : QGroupBox("Stress Adjustment Factors"),
        window_(window),
        binding_(binding),
        session_(session),
        platform_(platform) {
    setAccessibleName(title());
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(Conditions());
    rows->addLayout(Factors());
    rows->addLayout(Results());
    rows->addStretch();
    binding_.Shown(this, &window_.panel.open);
  }

  QPushButton* calculate() const { return calculate_; }
  QPushButton* cancel() const { return cancel_; }

 private:
  /// The five lists side by side. A pair stands below the list that it goes with: flat use follows
  /// width and thickness.
  QLayout* Conditions() {
    QVBoxLayout* width = Choice(FactorList::Width, kWidthRows);
    QVBoxLayout* thickness = Choice(FactorList::Thickness, kThicknessRows);
    thickness->addWidget(Pair(FactorPair::FlatUse));
    QVBoxLayout* grade = Choice(FactorList::Grade, kGradeRows);
    QVBoxLayout* duration = Choice(FactorList::LoadDuration, kLoadDurationRows);
    QVBoxLayout* shear = Choice(FactorList::ShearCondition, kShearConditionRows);
    shear->addWidget(Pair(FactorPair::RepetitiveUse));
    for (QVBoxLayout* column : {width, thickness, grade, duration, shear}) column->addStretch();
    return InRows({width, thickness, grade, duration, shear}, kGap);
  }

  template <typename Rows>
  QVBoxLayout* Choice(FactorList list, const Rows& rows) {
    auto* column = new QVBoxLayout;
    QListWidget* shown = AddList(column, kFactorListCaptions[static_cast<std::size_t>(list)],
                                 rows.size(), WidestRow(rows));
    binding_.List(shown, &window_.panel.List(list).rows, &window_.panel.List(list).row,
                  [this, list](int row) { ChooseFactorRow(window_, platform_, list, row); });
    return column;
  }

  QGroupBox* Pair(FactorPair pair) {
    QGroupBox* frame = MakePanel(kFactorPairCaptions[static_cast<std::size_t>(pair)]);
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(6, 2, 6, 4);
    std::vector<QPushButton*> buttons;
    for (const bool yes : {true, false}) {
      buttons.push_back(MakeExclusiveButton(
          binding_, yes ? "Yes" : "No",
          [this, pair, yes] { return window_.panel.Yes(pair) == yes; },
          [this, pair, yes] { AnswerFactorPair(window_, platform_, pair, yes); }));
      row->addWidget(buttons.back());
    }
    MakeOneTabStop(binding_, buttons);
    return frame;
  }

  QLayout* Factors() {
    QLayout* fields = Fields();
    QLayout* sizes = FactorRows("Size Factor", 4, &window_.panel.sizeRows);
    auto* moisture = new QVBoxLayout;
    moisture->addWidget(Pair(FactorPair::Moisture));
    moisture->addStretch();
    QLayout* wet = FactorRows("Wet Use Factor", 7, &window_.panel.wetRows);
    return InRows({fields, sizes, moisture, wet}, kWideGap);
  }

  QLayout* Fields() {
    auto* rows = new QVBoxLayout;
    auto* grid = new QGridLayout;
    for (const FactorBox& box : kFactorBoxes) {
      binding_.Field(AddField(grid, box.caption, 64), &(window_.panel.*box.text));
    }
    rows->addLayout(grid);
    rows->addStretch();
    return rows;
  }

  QLayout* FactorRows(const char* caption, std::size_t count,
                      const std::vector<std::string>* rows) {
    auto* column = new QVBoxLayout;
    binding_.List(AddList(column, caption, count, "Fc perp = 0.00"), rows);
    column->addStretch();
    return column;
  }

  /// "Calculate Factors", what comes of it, and the way out.
  QLayout* Results() {
    auto* first = new QHBoxLayout;
    auto* row = new QHBoxLayout;
    calculate_ = new QPushButton("Ca&lculate Factors");
    binding_.Press(calculate_, [this] { CalculateFactors(window_, platform_); });
    first->addWidget(calculate_, 0, Qt::AlignBottom);
    first->addWidget(Multipliers(), 1);
    row->addStretch();
    auto* ok = new QPushButton("OK");
    binding_.Press(ok, [this] { AcceptFactors(window_, session_, platform_); });
    cancel_ = new QPushButton("Cancel");
    binding_.Press(cancel_, [this] { CancelFactors(window_); });
    row->addWidget(ok, 0, Qt::AlignBottom);
    row->addWidget(cancel_, 0, Qt::AlignBottom);
    return InRows({first, row}, kGap);
  }

  QGroupBox* Multipliers() {
    QGroupBox* panel = MakePanel("Final Stress Multipliers");
    auto* grid = new QGridLayout(panel);
    for (int i = 0; i < kStressKinds; ++i) {
      const char* caption = kMultiplierCaptions[static_cast<std::size_t>(i)];
      grid->addWidget(new QLabel(caption), 0, i);
      QLineEdit* field = MakeField(caption, 48);
      ShowOnly(field);
      binding_.Text(field, &window_.panel.multipliers[static_cast<std::size_t>(i)]);
      grid->addWidget(field, 1, i);
    }
    return panel;
  }

  static constexpr int kGap = 6, kWideGap = 12;

  WoodDataBaseWindow& window_;
  Binding& binding_;
  SessionState& session_;
  Platform& platform_;
  QPushButton* calculate_ = nullptr;
  QPushButton* cancel_ = nullptr;
};

}  // namespace

FactorPanelParts MakeFactorPanel(WoodDataBaseWindow& window, Binding& binding,
                                 SessionState& session, Platform& platform) {
  auto* panel = new FactorPanelForm(window, binding, session, platform);
  return {panel, panel->calculate(), panel->cancel()};
}

}  // namespace lignara
