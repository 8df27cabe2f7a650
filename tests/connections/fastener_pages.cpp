#include "tests/connections/fastener_pages.h"

#include <sstream>

namespace lignara {
namespace {

std::string WithoutBlanks(const std::string& cell) {
  const std::size_t start = cell.find_first_not_of(' ');
  if (start == std::string::npos) return "";
  return cell.substr(start, cell.find_last_not_of(' ') - start + 1);
}

}  // namespace

std::vector<std::vector<std::string>> PageRows(const std::string& page) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream lines(page);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) continue;
    std::vector<std::string> row;
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, '|');) row.push_back(WithoutBlanks(cell));
    rows.push_back(row);
  }
  return rows;
}

}  // namespace lignara
