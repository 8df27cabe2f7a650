#include "desktop/truss/node_loads.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/command_button.h"
#include "desktop/kit/form.h"
#include "desktop/truss/side_list.h"

namespace lignara {
namespace {

QLayout* NodeField(TrussWindow& window, Binding& binding, SessionState& session,
                   Platform& platform) {
  auto* rows = new QVBoxLayout;
  QLineEdit* field = MakeField("Top Node Loads (lbs)");
  binding.Field(field, &window.nodeLoad);
  rows->addWidget(field);
  auto* pair = new QHBoxLayout;
  pair->addWidget(MakeButton(binding, "&Enter", [&window, &session, &platform] {
    EnterNodeLoad(window, session, platform);
  }));
  pair->addWidget(MakeButton(binding, "A&ll", [&window, &session, &platform] {
    EnterAllNodeLoads(window, session, platform);
  }));
  rows->addLayout(pair);
  binding.OnReturn(field, [&window, &binding, &session, &platform, field] {
    EnterNodeLoadAndGoOn(window, session, platform);
    // The load of the next node is there to be typed over.
    binding.Refresh();
    field->selectAll();
  });
  return rows;
}

}  // namespace

NodeLoads MakeNodeLoads(TrussWindow& window, Binding& binding, SessionState& session,
                        Platform& platform) {
  auto* rows = new QVBoxLayout;
  rows->addWidget(MakeHeading("Top Node Loads (lbs)"));
  rows->addWidget(new QLabel("Click on list item to select"));
  QListWidget* nodes = MakeSideList("Top Node Loads (lbs)");
  binding.List(nodes, &window.nodeRows, &window.nodeRow, [&window, &session, &platform](int row) {
    SelectNode(window, session, platform, row);
  });
  rows->addWidget(nodes, 1);
  rows->addLayout(NodeField(window, binding, session, platform));
  rows->addWidget(MakeButton(binding, "&Unif. Load (lb/ft)", [&window] { OpenLineLoad(window); }));
  rows->addWidget(MakeButton(binding, "&Area Load (lbs/sf)", [&window] { OpenAreaLoad(window); }));
  return {InWidget(rows), nodes};
}

}  // namespace lignara
