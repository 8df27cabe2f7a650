#include "desktop/kit/list_notes.h"

#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/kit/row_widths.h"
#include "desktop/kit/text.h"
#include "desktop/kit/warning_colour.h"

namespace lignara {
namespace {

constexpr int kNoteRole = Qt::UserRole + 1;
constexpr int kWarnedRole = Qt::UserRole + 2;
constexpr int kNoteMargin = 6;

/// Where a row can be marked, the style draws the rim of the mark darker than the window: on a dark
/// ground nobody would see it.
QStyleOptionViewItem WithSeenMark(const QStyleOptionViewItem& option, const QModelIndex& index) {
  QStyleOptionViewItem seen = option;
  const bool dark = option.palette.color(QPalette::Base).lightness() < 128;
  if (dark && index.data(Qt::CheckStateRole).isValid()) {
    seen.palette.setColor(QPalette::Window, option.palette.color(QPalette::Text));
  }
  return seen;
}

/// Paints a row with its tint below and its note at its right end.
class NoteDelegate : public RowDelegate {
 public:
  using RowDelegate::RowDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (index.data(kWarnedRole).toBool() && !selected) {
      painter->fillRect(option.rect, Tint(AlarmColour(option.palette), option.palette));
    }
    QStyledItemDelegate::paint(painter, WithSeenMark(option, index), index);
    const QString note = index.data(kNoteRole).toString();
    if (note.isEmpty()) return;
    painter->save();
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(option.font);
    painter->drawText(option.rect.adjusted(0, 0, -kNoteMargin, 0),
                      Qt::AlignRight | Qt::AlignVCenter, note);
    painter->restore();
  }
};

/// Puts new data into a row where they differ, so that a list is not painted for nothing.
void SetData(QListWidgetItem* row, int role, const QVariant& data) {
  if (row->data(role) != data) row->setData(role, data);
}

}  // namespace

void ShowNotesOf(QListWidget* list) { list->setItemDelegate(new NoteDelegate(list)); }

void SetRowNote(QListWidgetItem* row, const RowNote& note) {
  SetData(row, kNoteRole, ToQt(note.note));
  SetData(row, kWarnedRole, note.warned);
  SetData(row, Qt::ToolTipRole, ToQt(note.spoken));
  SetData(row, Qt::AccessibleDescriptionRole, ToQt(note.spoken));
}

bool IsEmptyList(const QListWidget* list) {
  for (int row = 0; row < list->count(); ++row) {
    if (!list->item(row)->text().isEmpty()) return false;
  }
  return true;
}

QLabel* AddReasonLabel(QAbstractScrollArea* list) {
  auto* words = new QLabel;
  words->setWordWrap(true);
  words->setAlignment(Qt::AlignCenter);
  words->setForegroundRole(QPalette::PlaceholderText);
  words->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* room = new QVBoxLayout(list->viewport());
  room->setContentsMargins(kNoteMargin, kNoteMargin, kNoteMargin, kNoteMargin);
  room->addWidget(words);
  // The words take the room that the list has and ask for none of their own.
  words->setMinimumSize(1, 1);
  words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  words->hide();
  return words;
}

}  // namespace lignara
