// Saves the program's icon as PNG files, each named after its size: lignara_save_icons
// DIR/16.png...

#include <QApplication>
#include <QFileInfo>
#include <cstdlib>

#include "desktop/kit/program_icon.h"

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QIcon icon = lignara::ProgramIcon();
  for (const QString& path : QApplication::arguments().mid(1)) {
    const int size = QFileInfo(path).baseName().toInt();
    const QPixmap picture = icon.pixmap(size);
    if (picture.width() != size || !picture.save(path)) return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
