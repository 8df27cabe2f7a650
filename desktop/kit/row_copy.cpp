#include "desktop/kit/row_copy.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>

namespace lignara {
namespace {

QString RowText(const QAbstractItemModel* model, int row) {
  QStringList cells;
  for (int column = 0; column < model->columnCount(); ++column) {
    cells << model->index(row, column).data().toString();
  }
  return cells.join('\t');
}

/// The captions of a table's columns; none for a list.
QStringList ColumnCaptions(const QAbstractItemModel* model) {
  QStringList captions;
  if (model->columnCount() < 2) return captions;
  for (int column = 0; column < model->columnCount(); ++column) {
    captions << model->headerData(column, Qt::Horizontal).toString();
  }
  return {captions.join('\t')};
}

bool IsMarked(const QAbstractItemView* view, int row) {
  const QItemSelectionModel* marks = view->selectionModel();
  return marks->rowIntersectsSelection(row, QModelIndex());
}

bool HasMarks(const QAbstractItemView* view) {
  return view->selectionMode() != QAbstractItemView::SingleSelection &&
         view->selectionModel()->hasSelection();
}

void Copy(const QAbstractItemView* view, bool markedOnly) {
  QGuiApplication::clipboard()->setText(RowsAsText(view, markedOnly));
}

/// Takes Ctrl+C before the list copies the one row on which the focus stands.
class CopyKey : public QObject {
 public:
  explicit CopyKey(QAbstractItemView* view) : QObject(view), view_(view) {
    view->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) return false;
    Copy(view_, HasMarks(view_));
    return true;
  }

 private:
  QAbstractItemView* view_;
};

void AddCommand(QAbstractItemView* view, const QString& caption, bool whole) {
  auto* command = new QAction(caption, view);
  QObject::connect(command, &QAction::triggered, view,
                   [view, whole] { Copy(view, !whole && HasMarks(view)); });
  view->addAction(command);
}

}  // namespace

QString RowsAsText(const QAbstractItemView* view, bool markedOnly) {
  const QAbstractItemModel* model = view->model();
  QStringList rows = ColumnCaptions(model);
  for (int row = 0; row < model->rowCount(); ++row) {
    if (!markedOnly || IsMarked(view, row)) rows << RowText(model, row);
  }
  return rows.join('\n');
}

void MakeCopyable(QAbstractItemView* view) {
  new CopyKey(view);
  AddCommand(view, "&Copy\tCtrl+C", false);
  AddCommand(view, "Copy &Whole List", true);
  view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

}  // namespace lignara
