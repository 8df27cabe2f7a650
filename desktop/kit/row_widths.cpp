#include "desktop/kit/row_widths.h"

#include <QListView>
#include <algorithm>

namespace lignara {
namespace {

/// Rows are compared by their letters first: of thousands, only those are measured that may be the
/// widest.
constexpr int kMostMeasured = 40;
constexpr qsizetype kLettersLess = 4;

QString TextOf(const QAbstractItemModel* rows, int row) {
  return rows->index(row, 0).data().toString();
}

qsizetype MostLetters(const QAbstractItemModel* rows) {
  qsizetype most = 0;
  for (int row = 0; row < rows->rowCount(); ++row) most = std::max(most, TextOf(rows, row).size());
  return most;
}

int WidestText(const QAbstractItemModel* rows, const QFontMetrics& letters) {
  const qsizetype enough = MostLetters(rows) - kLettersLess;
  int widest = 0, measured = 0;
  for (int row = 0; row < rows->rowCount() && measured < kMostMeasured; ++row) {
    const QString text = TextOf(rows, row);
    if (text.size() < enough) continue;
    widest = std::max(widest, letters.horizontalAdvance(text));
    ++measured;
  }
  return widest;
}

}  // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize one = QStyledItemDelegate::sizeHint(option, index);
  if (option.widget != nullptr && !option.widget->updatesEnabled()) return one;
  const int own = option.fontMetrics.horizontalAdvance(index.data().toString());
  const int widest = WidestText(index.model(), option.fontMetrics);
  return {one.width() + std::max(0, widest - own), one.height()};
}

void MeasureLists(const QWidget* window) {
  for (QListView* list : window->findChildren<QListView*>()) list->doItemsLayout();
}

}  // namespace lignara
