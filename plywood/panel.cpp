#include "plywood/panel.h"

#include <utility>

namespace lignara {

PlyKeyKind ListKey(std::string caption, Texts entries) {
  return {PlyKeyForm::List, std::move(caption), std::move(entries), -1};
}

PlyKeyKind OptionKey(std::string caption, Texts entries, int chosenAtOpening) {
  return {PlyKeyForm::Options, std::move(caption), std::move(entries), chosenAtOpening};
}

void SetEntries(PlyKey& key, const Texts& entries) {
  if (key.choice.rows == entries) return;
  key.choice.rows = entries;
  if (key.form == PlyKeyForm::List) key.choice.row = -1;
}

}  // namespace lignara
