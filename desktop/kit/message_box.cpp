#include "desktop/kit/message_box.h"

#include <QApplication>
#include <QCheckBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

#include "desktop/kit/mouse_pointer.h"
#include "desktop/kit/text.h"

namespace lignara {

bool ShowMessageBox(const Message& message, bool offer) {
  const ArrowPointer arrow;
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(ToQt(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(message.text));
  box.setIcon(message.icon == MessageIcon::Stop ? QMessageBox::Critical : QMessageBox::NoIcon);
  auto* tick = new QCheckBox("&Do not show again during this command", &box);
  if (offer) box.setCheckBox(tick);
  tick->setVisible(offer);
  box.exec();
  return tick->isChecked();
}

bool ShowQuestionBox(const std::string& title, const std::string& text) {
  const ArrowPointer arrow;
  return QMessageBox::question(QApplication::activeWindow(), ToQt(title), ToQt(text)) ==
         QMessageBox::Yes;
}

std::optional<std::string> ShowPromptBox(const std::string& title, const std::string& text,
                                         const std::string& initial) {
  const ArrowPointer arrow;
  bool accepted = false;
  const QString answer =
      QInputDialog::getText(QApplication::activeWindow(), ToQt(title), ToQt(text),
                            QLineEdit::Normal, ToQt(initial), &accepted);
  return accepted ? std::optional(FromQt(answer)) : std::nullopt;
}

}  // namespace lignara
