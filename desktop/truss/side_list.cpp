#include "desktop/truss/side_list.h"

#include <QListWidget>

#include "desktop/kit/form.h"

namespace lignara {

QListWidget* MakeSideList(const char* name) {
  QListWidget* list = MakeList(name, 6);
  list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
  return list;
}

}  // namespace lignara
