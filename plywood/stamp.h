#pragma once

#include <string>

#include "app/drawing.h"

namespace lignara {

/// A sheet with the trademark of a rated panel: "APA", the class of the panel and its grade mark in
/// a border.
Drawing PanelStamp(const std::string& panelClass, const std::string& gradeMark);

/// The sheet alone.
Drawing UnstampedSheet();

}  // namespace lignara
