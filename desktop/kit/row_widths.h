#pragma once

#include <QStyledItemDelegate>

namespace lignara {

/// Paints the rows of a list, all as wide as the widest: where the list is narrower it scrolls, and
/// no text is cut short. The list asks for the size of one row and takes it for all. Where nothing
/// is painted nothing is measured: see `MeasureLists`.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// To be called when a window paints that did not: gives its lists the width of their rows.
void MeasureLists(const QWidget* window);

}  // namespace lignara
