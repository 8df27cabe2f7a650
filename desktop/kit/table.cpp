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
  // Rows as close as those of a list, so that many spans are seen at once.
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setTabKeyNavigation(false);
  return table;
}

}  // namespace lignara
