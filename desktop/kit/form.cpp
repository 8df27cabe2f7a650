#include "desktop/kit/form.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/kit/text.h"

namespace lignara {

int InLetters(int size) {
  constexpr int kUsualDigit = 8;
  const int digit = QFontMetrics(QApplication::font()).horizontalAdvance('0');
  return std::max(size, size * digit / kUsualDigit);
}

QLineEdit* MakeField(const QString& name, int width) {
  auto* field = new QLineEdit;
  field->setAccessibleName(PlainCaption(name));
  field->setAlignment(Qt::AlignRight);
  field->setMinimumWidth(InLetters(width));
  return field;
}

QLineEdit* PutField(QGridLayout* grid, int row, int column, const QString& caption, int width) {
  QLineEdit* field = MakeField(caption, width);
  auto* label = new QLabel(caption);
  label->setBuddy(field);
  grid->addWidget(label, row, column);
  grid->addWidget(field, row, column + 1);
  return field;
}

QWidget* CaptionBeside(const QGridLayout* grid, const QLineEdit* field) {
  int row = 0, column = 0, rows = 0, columns = 0;
  grid->getItemPosition(grid->indexOf(field), &row, &column, &rows, &columns);
  return grid->itemAtPosition(row, column - 1)->widget();
}

void ShowOnly(QLineEdit* field) {
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::ClickFocus);
  QPalette palette = field->palette();
  palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  field->setPalette(palette);
}

QLineEdit* AddField(QGridLayout* grid, const QString& caption, int width) {
  return PutField(grid, grid->rowCount(), 0, caption, width);
}

QLineEdit* PutValue(QGridLayout* grid, int row, int column, const QString& caption, int width) {
  QLineEdit* field = PutField(grid, row, column, caption, width);
  ShowOnly(field);
  return field;
}

QLineEdit* AddValue(QGridLayout* grid, const QString& caption, int width) {
  return PutValue(grid, grid->rowCount(), 0, caption, width);
}

QListWidget* MakeList(const QString& name, int rows) {
  auto* list = new QListWidget;
  list->setAccessibleName(PlainCaption(name));
  list->addItem("0");        // for its height in the style at hand
  constexpr int kSlack = 2;  // a scaled screen rounds the rows up
  list->setMinimumHeight(list->sizeHintForRow(0) * rows + 2 * list->frameWidth() + kSlack);
  list->clear();
  list->setMinimumWidth(InLetters(160));
  return list;
}

void KeepRoom(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
}

QWidget* MakeCaptionedList(const QString& caption, QListWidget* list) {
  auto* area = new QWidget;
  auto* rows = new QVBoxLayout(area);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(caption);
  label->setBuddy(list);
  rows->addWidget(label);
  rows->addWidget(list, 1);
  return area;
}

QWidget* InWidget(QLayout* layout) {
  auto* widget = new QWidget;
  layout->setContentsMargins(0, 0, 0, 0);
  widget->setLayout(layout);
  return widget;
}

QLabel* MakeHeading(const QString& text) {
  auto* label = new QLabel(text);
  QFont font = label->font();
  font.setBold(true);
  label->setFont(font);
  return label;
}

QGroupBox* MakePanel(const QString& caption) {
  auto* panel = new QGroupBox(caption);
  panel->setAccessibleName(PlainCaption(caption));
  return panel;
}

}  // namespace lignara
