#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/drawing.h"
#include "app/list_rows.h"

namespace lignara {

using Texts = std::vector<std::string>;

enum class PlyKeyForm { List, Options };

/// A key of a panel as it stands: a list, or a frame of options.
struct PlyKey {
  PlyKeyForm form = PlyKeyForm::List;
  std::string caption;
  ListRows choice;  ///< the rows of the list or the captions of the options; the chosen one
  bool shown = true;
};

/// A result field.
struct PlyResult {
  std::string caption;
  std::string value;  ///< empty while a key has no choice
};

/// All that a panel holds and shows.
struct PlyPanelState {
  std::vector<PlyKey> keys;
  std::vector<PlyResult> results;
  Texts lines;      ///< "Description" or "Notes:"
  Drawing picture;  ///< the stamp
};

/// The chosen row of each key, in the order of the keys; -1 none.
using PlyChoices = std::vector<int>;

/// What a key of a panel is.
struct PlyKeyKind {
  PlyKeyForm form = PlyKeyForm::List;
  std::string caption;
  Texts entries;  ///< empty where they follow from other keys
  int chosenAtOpening = -1;
};

/// Writes what it has to say of a panel into a report: none, one or several lines.
using PlyReportLine = std::function<void(const PlyPanelState& panel, Texts& lines)>;

/// What is a panel's own. One piece of code shows all panels, one reports them.
struct PlyPanelKind {
  std::string opener;   ///< the button or menu item that opens it, with the mark of its letter
  std::string caption;  ///< of the panel
  std::vector<PlyKeyKind> keys;
  Texts results;             ///< captions of the result fields
  std::string linesCaption;  ///< of the list of lines; empty where the panel has none
  std::string note;          ///< stands on the panel as it is; may be empty
  std::string pictureName;   ///< empty where the panel has none

  /// Captions, entries and frames that follow from the choice of other keys; may be empty.
  std::function<void(PlyPanelState& panel)> arrange;
  /// The values of the result fields. Asked only when every key has a choice.
  std::function<Texts(const PlyChoices& at)> lookUp;
  /// The list of lines. Asked after each change, whether or not there are results.
  std::function<Texts(const PlyChoices& at, const Texts& results)> lines;
  std::function<Drawing(const PlyChoices& at)> picture;

  std::string fontName = "Times New Roman";  ///< of the printed report
  std::string title;                         ///< of the report
  std::vector<PlyReportLine> report;         ///< what stands below the title
};

// The keys of a description.

PlyKeyKind ListKey(std::string caption, Texts entries = {});
/// An option is always chosen: the first, unless another is told.
PlyKeyKind OptionKey(std::string caption, Texts entries, int chosenAtOpening = 0);

/// Gives a key other entries. A list whose entries change has no row chosen; options keep theirs.
void SetEntries(PlyKey& key, const Texts& entries);

}  // namespace lignara
