#include "desktop/session/variant_table.h"

#include <QRegularExpression>
#include <algorithm>

#include "app/platform.h"
#include "app/replace_file.h"
#include "desktop/kit/text.h"
#include "desktop/session/csv_line.h"
#include "desktop/session/script_line.h"

namespace lignara {
namespace {

constexpr const char* kCsvFilter = "CSV(*.csv)|*.csv|All(*.*)|*.*|";
constexpr const char* kJoin = " | ";
constexpr const char* kNameEnd = " = ";

/// A part of a row of a list: a value under its name, or without a name a heading or a blank.
struct Part {
  QString name;
  QString text;

  /// The same part, of another outcome: only the value of a name may differ.
  bool IsLike(const Part& other) const {
    return name == other.name && (!name.isEmpty() || text == other.text);
  }
};

/// A column of the table. The brief head serves where no other column has it.
struct Column {
  QString brief;
  QString full;
  QStringList cells;
};

Part PartOf(const QString& row) {
  const qsizetype end = row.indexOf(kNameEnd);
  if (end <= 0) return {QString(), row};
  return {row.left(end).trimmed(), row.mid(end + QString(kNameEnd).size())};
}

/// A table's row is named by its first text; where that is a number, its caption tells of what.
QString RowName(const QString& first, const QString& caption) {
  bool number = false;
  first.toDouble(&number);
  return number && !caption.isEmpty() ? caption + " " + first : first;
}

std::vector<Part> PartsOf(const RowTexts& rows, const QStringList& columns) {
  std::vector<Part> parts;
  for (const QStringList& row : rows) {
    if (row.size() == 1) parts.push_back(PartOf(row[0]));
    for (int i = 1; i < row.size(); ++i) {
      const QString name = RowName(row[0], columns.value(0));
      parts.push_back({name.isEmpty() ? QString() : name + ", " + columns.value(i), row[i]});
    }
  }
  return parts;
}

bool HasName(const Part& part) { return !part.name.isEmpty(); }

/// True where the rows of all outcomes have the same names, and some have any.
bool CanSplit(const std::vector<std::vector<Part>>& outcomes) {
  const std::vector<Part>* first = nullptr;
  for (const std::vector<Part>& parts : outcomes) {
    if (parts.empty()) continue;  // it could not be read
    if (first == nullptr) first = &parts;
    const bool like = std::equal(parts.begin(), parts.end(), first->begin(), first->end(),
                                 [](const Part& a, const Part& b) { return a.IsLike(b); });
    if (!like) return false;
  }
  return first != nullptr && std::any_of(first->begin(), first->end(), HasName);
}

/// Names of their own for the parts of a list: with the heading above where a name occurs again.
QStringList NamesOf(const std::vector<Part>& parts) {
  QStringList plain;
  for (const Part& part : parts) plain << part.name;
  QStringList names;
  QString heading;
  for (const Part& part : parts) {
    if (!HasName(part) && !part.text.trimmed().isEmpty()) heading = part.text.trimmed();
    const bool again = HasName(part) && plain.count(part.name) > 1;
    QString name = again && !heading.isEmpty() ? heading + ", " + part.name : part.name;
    if (again && names.contains(name)) name += QString(" (row %1)").arg(names.size() + 1);
    names << name;
  }
  return names;
}

/// The unit that a caption ends with, such as " (lbs)"; empty where it ends with none.
QString UnitOf(const QString& caption) {
  static const QRegularExpression unit("( \\([^()]*\\))\\s*$");
  return unit.match(caption).captured(1);
}

QString Joined(const RowTexts& rows) {
  QStringList texts;
  for (const QStringList& row : rows) texts += row;
  return texts.join(kJoin);
}

RowTexts RowsOf(const VariantOutcome& outcome, std::size_t reading) {
  return reading < outcome.readings.size() ? outcome.readings[reading] : RowTexts();
}

void AddSplit(const Reading& reading, const std::vector<std::vector<Part>>& outcomes,
              std::vector<Column>& columns) {
  const auto whole = std::find_if(outcomes.begin(), outcomes.end(),
                                  [](const auto& parts) { return !parts.empty(); });
  const QStringList names = NamesOf(*whole);
  for (int i = 0; i < names.size(); ++i) {
    if (names[i].isEmpty()) continue;
    Column column{names[i] + UnitOf(reading.path.last()), reading.path.join(' ') + ", " + names[i]};
    for (const std::vector<Part>& parts : outcomes) {
      column.cells << (parts.empty() ? QString() : parts[static_cast<std::size_t>(i)].text);
    }
    columns.push_back(std::move(column));
  }
}

void AddReading(const Variants& variants, std::size_t at,
                const std::vector<VariantOutcome>& outcomes, std::vector<Column>& columns) {
  const Reading& reading = variants.readings[at];
  std::vector<std::vector<Part>> parts;
  QStringList joined;
  for (const VariantOutcome& outcome : outcomes) {
    const RowTexts rows = RowsOf(outcome, at);
    parts.push_back(PartsOf(rows, reading.columns));
    joined << Joined(rows);
  }
  if (reading.rows && CanSplit(parts)) {
    AddSplit(reading, parts, columns);
  } else {
    columns.push_back(
        {reading.path.join(' '), reading.window + ": " + reading.path.join(' '), joined});
  }
}

/// Why an outcome is not whole, with the line that could not be carried out.
QString Stopped(const Variants& variants, const VariantOutcome& outcome) {
  if (outcome.stopLine == 0) return outcome.reason;
  return variants.lines.value(outcome.stopLine - 1) + ": " + outcome.reason;
}

/// Adds a column where any of its cells tells something.
void AddWhereTold(Column column, std::vector<Column>& columns) {
  if (!column.cells.join("").isEmpty()) columns.push_back(std::move(column));
}

QStringList HeadsOf(const std::vector<Column>& columns) {
  QStringList briefs;
  for (const Column& column : columns) briefs << column.brief;
  QStringList heads;
  for (const Column& column : columns) {
    heads << (briefs.count(column.brief) == 1 ? column.brief : column.full);
  }
  return heads;
}

bool Reads(const std::vector<ScriptWord>& words) {
  return words.size() > 1 && (words[0].text == "read" || words[0].text == "rows");
}

}  // namespace

QStringList VariantHeads(const Variants& variants) {
  QStringList heads(Captions(WordsOf(variants.lines[variants.enterLine]), 1));
  for (const QString& line : variants.lines) {
    const std::vector<ScriptWord> words = WordsOf(line);
    if (Reads(words)) heads << Captions(words, 0);
  }
  return heads;
}

VariantTable TableOf(const Variants& variants, const std::vector<VariantOutcome>& outcomes) {
  const QString field = VariantHeads(variants).first();
  Column said{"Said", "Said"}, stopped{"Not carried out", "Not carried out"};
  std::vector<Column> columns = {{field, "Value of " + field}};
  columns[0].cells = variants.values.mid(0, static_cast<qsizetype>(outcomes.size()));
  for (const VariantOutcome& outcome : outcomes) {
    said.cells << outcome.said.join(kJoin).simplified();
    stopped.cells << Stopped(variants, outcome);
  }
  for (std::size_t i = 0; i < variants.readings.size(); ++i) {
    AddReading(variants, i, outcomes, columns);
  }
  AddWhereTold(said, columns);
  AddWhereTold(stopped, columns);
  VariantTable table{HeadsOf(columns), {}};
  for (qsizetype row = 0; row < columns[0].cells.size(); ++row) {
    QStringList cells;
    for (const Column& column : columns) cells << column.cells[row];
    table.rows << cells;
  }
  return table;
}

QString CsvOf(const VariantTable& table) {
  QString text = CsvLine(table.heads) + "\n";
  for (const QStringList& row : table.rows) text += CsvLine(row) + "\n";
  return text;
}

void SaveTable(const VariantTable& table, std::string& status, Platform& platform) {
  const auto path = platform.ChooseSaveFile(kCsvFilter);
  if (!path) return;
  if (ReplaceFile(*path, FromQt(CsvOf(table)))) {
    status = "Saved to " + *path;
  } else {
    platform.ShowMessage({"Cannot write " + *path});
  }
}

}  // namespace lignara
