#include "desktop/kit/table.h"

#include <QHeaderView>
#include <QTableWidget>

#include "desktop/kit/text.h"

namespace lignara {

QTableWidget* MakeTable(const QString& name, const QStringList& captions) {
  auto* table = new QTableWidget(0, static_cast<int>(captions.size()));
  table->setAccessibleName(PlainCaption(name));
  table->setHorizontalHeaderLabels(captions);
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  table->verticalHeader()->hide();
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setTabKeyNavigation(false);
  return table;
}

}  // namespace lignara
