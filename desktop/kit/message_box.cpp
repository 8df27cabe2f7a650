#include "desktop/kit/message_box.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>

#include "desktop/kit/arrow_pointer.h"
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

}  // namespace lignara
