#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lignara::published {

using Texts = std::vector<std::string>;

/// Lines of texts, each led by its head.
using Rows = std::vector<std::pair<std::string, Texts>>;

/// A table as it is printed: heads of the columns, then the rows.
struct Table {
  Texts columns;
  Rows rows;

  Texts RowHeads() const {
    Texts heads;
    for (const auto& row : rows) heads.push_back(row.first);
    return heads;
  }
};

}  // namespace lignara::published
