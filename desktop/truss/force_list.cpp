#include "desktop/truss/force_list.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include "desktop/kit/form.h"
#include "desktop/truss/side_list.h"
#include "truss/force_and_length_lists.h"

namespace lignara {
namespace {

QLayout* MemberHit(TrussWindow& window, Binding& binding) {
  auto* rows = new QVBoxLayout;
  rows->addWidget(new QLabel("Click in red circle on member!"));
  QLineEdit* member = MakeField("Click in red circle on member!");
  ShowOnly(member);
  binding.Text(member, &window.hitMember);
  rows->addWidget(member);
  auto* grid = new QGridLayout;
  binding.Text(AddValue(grid, "Axial Load (lbs)"), &window.hitLoad);
  QLineEdit* sense = MakeField("Tension or compression", 24);
  sense->setMaximumWidth(sense->minimumWidth());
  ShowOnly(sense);
  binding.Text(sense, &window.hitSense);
  grid->addWidget(sense, grid->rowCount() - 1, 2);
  rows->addLayout(grid);
  return rows;
}

}  // namespace

QWidget* MakeForces(TrussWindow& window, Binding& binding) {
  auto* rows = new QVBoxLayout;
  rows->addWidget(MakeHeading("Axial Load (lbs)"));
  QListWidget* list = MakeSideList("Axial Load (lbs)");
  binding.List(list, &window.axialRows, &window.axialRow,
               [&window](int row) { SelectAxialRow(window, row); });
  // The row that lights its member is one of the rows that may be marked to be copied.
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  binding.Notes(list, &window.axialNotes);
  binding.WhyEmpty(list, [&window] { return window.whyNoForces; });
  rows->addWidget(list, 1);
  rows->addLayout(MemberHit(window, binding));
  QGroupBox* reactions = MakePanel("End Reactions (lbs)");
  auto* grid = new QGridLayout(reactions);
  QLineEdit* left = AddValue(grid, "Left Side");
  binding.Text(left, &window.leftReaction);
  QLineEdit* right = AddValue(grid, "Right Side");
  binding.Text(right, &window.rightReaction);
  rows->addWidget(reactions);
  for (QWidget* result : std::initializer_list<QWidget*>{list, left, right}) {
    binding.OutOfDate(result, [&window] { return window.outOfDate; });
  }
  return InWidget(rows);
}

}  // namespace lignara
