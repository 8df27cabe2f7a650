#include "desktop/kit/dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QRegularExpression>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// "txt" of "Text (*.txt)"; none of "All (*)".
QString ExtensionOf(const QString& filter) {
  static const QRegularExpression extension("\\*\\.(\\w+)\\)");
  return extension.match(filter).captured(1);
}

}  // namespace

ArrowPointer::ArrowPointer() : set_(QApplication::overrideCursor() != nullptr) {
  if (set_) QApplication::setOverrideCursor(Qt::ArrowCursor);
}

ArrowPointer::~ArrowPointer() {
  if (set_) QApplication::restoreOverrideCursor();
}

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

QString QtFilter(const QString& filter) {
  const QStringList parts = filter.split('|', Qt::SkipEmptyParts);
  QStringList names;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString label = parts[i].section('(', 0, 0);
    names << label + " (" + (parts[i + 1] == "*.*" ? QString("*") : parts[i + 1]) + ")";
  }
  return names.join(";;");
}

QString FileNameOf(const QString& title) {
  constexpr int kLongest = 80;
  static const QRegularExpression barred("[\\x00-\\x1f/\\\\:*?\"<>|]");
  QString name = title;
  name = name.replace(barred, " ").simplified().left(kLongest);
  while (name.startsWith('.')) name.remove(0, 1);  // else the file would be a hidden one
  return name.simplified();
}

std::optional<QString> AskOpenFile(const QString& folder, const QString& filter) {
  const ArrowPointer arrow;
  const QString path =
      QFileDialog::getOpenFileName(QApplication::activeWindow(), "Open", folder, QtFilter(filter));
  return path.isEmpty() ? std::nullopt : std::optional(path);
}

std::optional<QString> AskSaveFile(const SaveProposal& proposal) {
  const ArrowPointer arrow;
  QFileDialog dialog(QApplication::activeWindow(), proposal.caption, proposal.folder,
                     QtFilter(proposal.filter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  const auto follow = [&dialog](const QString& kind) {
    dialog.setDefaultSuffix(ExtensionOf(kind));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
  follow(dialog.selectedNameFilter());
  const QString extension = dialog.defaultSuffix();
  dialog.selectFile(extension.isEmpty() ? proposal.name : proposal.name + "." + extension);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.selectedFiles().value(0);
}

}  // namespace lignara
