#include "desktop/session/row_finder.h"

#include <QListWidget>

#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"

namespace lignara {

int RowOf(const QListWidget* list, const ScriptWord& word) {
  if (!word.quoted) {
    const int row = ToWhole(word);
    if (row < 0 || row >= list->count()) throw ScriptError{"the list has no row " + word.text};
    return row;
  }
  for (int row = 0; row < list->count(); ++row) {
    if (list->item(row)->text() == word.text) return row;
  }
  throw ScriptError{"the list has no row " + Quoted(word.text)};
}

}  // namespace lignara
