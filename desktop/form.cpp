#include "desktop/form.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "desktop/text.h"

namespace lignara {

QLineEdit* MakeField(const QString& name, int width) {
  auto* field = new QLineEdit;
  field->setAccessibleName(PlainCaption(name));
  field->setAlignment(Qt::AlignRight);
  field->setMinimumWidth(width);
  return field;
}

QLineEdit* AddField(QGridLayout* grid, const QString& caption, int width) {
  QLineEdit* field = MakeField(caption, width);
  auto* label = new QLabel(caption);
  label->setBuddy(field);
  const int row = grid->rowCount();
  grid->addWidget(label, row, 0);
  grid->addWidget(field, row, 1);
  return field;
}

QLineEdit* AddValue(QGridLayout* grid, const QString& caption, int width) {
  QLineEdit* field = AddField(grid, caption, width);
  field->setReadOnly(true);
  QPalette palette = field->palette();
  palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  field->setPalette(palette);
  return field;
}

QListWidget* MakeList(const QString& name, int rows) {
  auto* list = new QListWidget;
  list->setAccessibleName(PlainCaption(name));
  list->setMinimumHeight(list->fontMetrics().height() * rows + 8);
  list->setMinimumWidth(160);
  return list;
}

QLabel* MakeHeading(const QString& text) {
  auto* label = new QLabel(text);
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

}  // namespace lignara
