#include "desktop/factor_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/choice_button.h"
#include "desktop/form.h"
#include "desktop/tool_window.h"
#include "wood/wood_data_base.h"

namespace lignara {
namespace {

struct FactorBox {
  const char* caption;
  std::string FactorPanel::*text;
};

constexpr FactorBox kFactorBoxes[] = {
    {"Repetative Use Factor", &FactorPanel::repetitive},
    {"Load Duration Factor", &FactorPanel::loadDuration},
    {"Shear Condition Factor", &FactorPanel::shearCondition},
    {"Flat Use Factor", &FactorPanel::flatUse},
};

/// Conditions of use first, then the factors that follow from
/// them, then the multipliers.
class FactorPanelForm : public QGroupBox {
 public:
  FactorPanelForm(WoodDataBaseWindow& window, Binding& binding, SessionState& session,
                  Platform& platform)
      : QGroupBox("Stress Adjustment Factors"),
        window_(window),
        binding_(binding),
        session_(session),
        platform_(platform) {
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(Lists());
    auto* middle = new QHBoxLayout;
    middle->addLayout(Pairs());
    middle->addLayout(Boxes(), 1);
    rows->addLayout(middle);
    rows->addLayout(FollowingFactors());
    rows->addWidget(Multipliers());
    rows->addLayout(Commands());
    binding_.Shown(this, &window_.panel.open);
  }

 private:
  QLayout* Lists() {
    auto* grid = new QGridLayout;
    for (int i = 0; i < kFactorLists; ++i) {
      const auto list = static_cast<FactorList>(i);
      const char* caption = kFactorListCaptions[static_cast<std::size_t>(i)];
      auto* column = new QVBoxLayout;
      column->addWidget(new QLabel(caption));
      QListWidget* rows = MakeList(caption, 7);
      rows->setMinimumWidth(150);
      rows->setMaximumHeight(150);
      binding_.List(rows, &window_.panel.List(list).rows, &window_.panel.List(list).row,
                    [this, list](int row) { ChooseFactorRow(window_, platform_, list, row); });
      column->addWidget(rows);
      grid->addLayout(column, i / 3, i % 3);
    }
    grid->addLayout(WetList(), 1, 2);
    return grid;
  }

  QLayout* WetList() { return ShownList("Wet Use Factor", &window_.panel.wetRows); }

  QLayout* ShownList(const char* caption, const std::vector<std::string>* rows) {
    auto* column = new QVBoxLayout;
    column->addWidget(new QLabel(caption));
    QListWidget* list = MakeList(caption, 4);
    list->setMinimumWidth(150);
    list->setMaximumHeight(150);
    binding_.List(list, rows);
    column->addWidget(list);
    return column;
  }

  QLayout* Pairs() {
    auto* rows = new QVBoxLayout;
    for (int i = 0; i < kFactorPairs; ++i) {
      const auto pair = static_cast<FactorPair>(i);
      QGroupBox* frame = MakePanel(kFactorPairCaptions[static_cast<std::size_t>(i)]);
      auto* row = new QHBoxLayout(frame);
      row->setContentsMargins(6, 2, 6, 4);
      for (const bool yes : {true, false}) {
        row->addWidget(MakeChoiceButton(
            binding_, yes ? "Yes" : "No",
            [this, pair, yes] { return window_.panel.Yes(pair) == yes; },
            [this, pair, yes] { AnswerFactorPair(window_, platform_, pair, yes); }));
      }
      rows->addWidget(frame);
    }
    return rows;
  }

  QLayout* Boxes() {
    auto* rows = new QVBoxLayout;
    auto* grid = new QGridLayout;
    for (const FactorBox& box : kFactorBoxes) {
      binding_.Field(AddField(grid, box.caption, 64), &(window_.panel.*box.text));
    }
    rows->addLayout(grid);
    rows->addStretch();
    return rows;
  }

  QLayout* FollowingFactors() {
    auto* row = new QHBoxLayout;
    row->addLayout(ShownList("Size Factor", &window_.panel.sizeRows));
    auto* calculate = new QPushButton("Calculate &Factors");
    binding_.Press(calculate, [this] { CalculateFactors(window_, platform_); });
    row->addWidget(calculate, 0, Qt::AlignBottom);
    row->addStretch();
    return row;
  }

  QGroupBox* Multipliers() {
    QGroupBox* panel = MakePanel("Final Stress Multipliers");
    auto* grid = new QGridLayout(panel);
    for (int i = 0; i < kStressKinds; ++i) {
      const char* caption = kMultiplierCaptions[static_cast<std::size_t>(i)];
      grid->addWidget(new QLabel(caption), 0, i);
      QLineEdit* box = MakeField(caption, 60);
      box->setReadOnly(true);
      binding_.Text(box, &window_.panel.multipliers[static_cast<std::size_t>(i)]);
      grid->addWidget(box, 1, i);
    }
    return panel;
  }

  QLayout* Commands() {
    auto* row = new QHBoxLayout;
    auto* ok = new QPushButton("OK");
    binding_.Press(ok, [this] { AcceptFactors(window_, session_, platform_); });
    auto* cancel = new QPushButton("Cancel");
    binding_.Press(cancel, [this] { CancelFactors(window_); });
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
  }

  WoodDataBaseWindow& window_;
  Binding& binding_;
  SessionState& session_;
  Platform& platform_;
};

}  // namespace

QGroupBox* MakeFactorPanel(WoodDataBaseWindow& window, Binding& binding, SessionState& session,
                           Platform& platform) {
  return new FactorPanelForm(window, binding, session, platform);
}

}  // namespace lignara
