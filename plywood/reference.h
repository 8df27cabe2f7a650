#pragma once

#include "plywood/panel.h"

namespace lignara {

/// A key of a reference panel and the lines that tell what it means.
struct ReferenceEntry {
  std::string key;
  Texts lines;
};

/// A panel of a list of keys and a list that describes the chosen one.
PlyPanelKind ReferencePanel(const std::string& keyCaption,
                            const std::vector<ReferenceEntry>& entries);

}  // namespace lignara
