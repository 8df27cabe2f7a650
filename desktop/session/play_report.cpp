#include "desktop/session/play_report.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHash>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/kit/form.h"
#include "desktop/kit/mouse_pointer.h"
#include "desktop/kit/row_copy.h"

namespace lignara {
namespace {

constexpr const char* kWhatStands = "What was built so far is on the screen.";
constexpr qsizetype kMostLines = 20;  // of a text

void AddGroup(QListWidget* list, const QString& caption, const QStringList& lines) {
  if (lines.isEmpty()) return;
  auto* head = new QListWidgetItem(caption, list);
  QFont bold = list->font();
  bold.setBold(true);
  head->setFont(bold);
  for (const QString& line : Folded(lines)) list->addItem("    " + line);
}

QListWidget* ListOf(const SessionPlay& play) {
  QListWidget* list = MakeList("Said and left out", 12);
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list->setWordWrap(true);
  list->setLayoutMode(QListView::Batched);  // there may be thousands
  list->setMinimumWidth(InLetters(600));
  AddGroup(list, "Said", play.said);
  AddGroup(list, "Left out", play.leftOut);
  MakeCopyable(list);
  return list;
}

QLabel* HeadOf(const SessionPlay& play, const QString& name) {
  auto* head = new QLabel(HowItEnded(play, name));
  head->setTextFormat(Qt::PlainText);
  head->setWordWrap(true);
  head->setTextInteractionFlags(Qt::TextSelectableByMouse);
  head->setToolTip(name);
  head->setMinimumWidth(InLetters(400));
  return head;
}

/// The sign of a warning, where a play did not come to its end.
QLabel* SignOf(const QWidget* dialog) {
  auto* sign = new QLabel;
  const int size = dialog->style()->pixelMetric(QStyle::PM_LargeIconSize);
  sign->setPixmap(dialog->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
  return sign;
}

}  // namespace

QString PlayAsText(const SessionPlay& play) {
  QStringList lines;
  if (!play.stop.isEmpty()) lines << play.stop << kWhatStands;
  if (play.cancelled) lines << QString("Cancelled. ") + kWhatStands;
  lines += play.said;
  for (const QString& what : play.leftOut) lines << "Left out: " + what;
  const qsizetype more = lines.size() - kMostLines;
  if (more > 0) lines = lines.mid(0, kMostLines) << QString("and %1 more").arg(more);
  return lines.join('\n');
}

QString HowItEnded(const SessionPlay& play, const QString& name) {
  QString file = QFileInfo(name).fileName();
  if (!play.stop.isEmpty()) {
    return QString("Stopped at %1.\n%2").arg(file + play.stop.mid(name.size()), kWhatStands);
  }
  // The user knows nothing of the name of a journal.
  if (file.endsWith(".journal")) file = "the session";
  const QString lines = QString(play.done == 1 ? "%1 line" : "%1 lines").arg(play.done);
  if (play.cancelled) {
    return QString("Cancelled after %1 of %2.\n%3").arg(lines, file, kWhatStands);
  }
  return QString("Played %1 of %2").arg(lines, file);
}

QStringList Folded(const QStringList& lines) {
  QHash<QString, int> times;
  QStringList folded;
  for (const QString& line : lines) {
    if (++times[line] == 1) folded << line;
  }
  for (QString& line : folded) {
    if (const int count = times[line]; count > 1) line += QString(" (%1 times)").arg(count);
  }
  return folded;
}

void ShowPlay(const SessionPlay& play, const QString& name, const QString& title, QWidget* parent) {
  const ArrowPointer arrow;
  QDialog dialog(parent);
  dialog.setWindowTitle(title);
  auto* rows = new QVBoxLayout(&dialog);
  auto* head = new QHBoxLayout;
  const bool whole = play.stop.isEmpty() && !play.cancelled;
  if (!whole) head->addWidget(SignOf(&dialog), 0, Qt::AlignTop);
  head->addWidget(HeadOf(play, name), 1);
  rows->addLayout(head);
  if (!play.said.isEmpty() || !play.leftOut.isEmpty()) rows->addWidget(ListOf(play), 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  rows->addWidget(buttons);
  buttons->button(QDialogButtonBox::Ok)->setFocus();
  dialog.exec();
}

}  // namespace lignara
