#include "desktop/kit/file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include "desktop/kit/mouse_pointer.h"

namespace lignara {
namespace {

/// "txt" of "Text (*.txt)"; none of "All (*)".
QString ExtensionOf(const QString& filter) {
  static const QRegularExpression extension("\\*\\.(\\w+)\\)");
  return extension.match(filter).captured(1);
}

}  // namespace

QString QtFilter(const QString& filter) {
  const QStringList parts = filter.split('|', Qt::SkipEmptyParts);
  QStringList names;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString label = parts[i].section('(', 0, 0);
    names << label + " (" + (parts[i + 1] == "*.*" ? QString("*") : parts[i + 1]) + ")";
  }
  return names.join(";;");
}

FileDialogs::FileDialogs()
    : folder_(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)) {
  if (!QFileInfo(folder_).isDir()) folder_ = QDir::homePath();
}

std::optional<QString> FileDialogs::AskOpen(const QString& filter) {
  const ArrowPointer arrow;
  const QString path =
      QFileDialog::getOpenFileName(QApplication::activeWindow(), "Open", folder_, QtFilter(filter));
  return path.isEmpty() ? std::nullopt : std::optional(Used(path));
}

std::optional<QString> FileDialogs::AskSave(const SaveProposal& proposal) {
  const ArrowPointer arrow;
  QFileDialog dialog(QApplication::activeWindow(), proposal.caption, folder_,
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
  return Used(dialog.selectedFiles().value(0));
}

QString FileDialogs::Used(const QString& path) {
  folder_ = QFileInfo(path).absolutePath();
  return path;
}

}  // namespace lignara
