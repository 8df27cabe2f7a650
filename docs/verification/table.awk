# Reads what a script printed, then the cases of the script, and prints a row of the manual for each.

# The texts in quotes of a line, from `texts[1]` on.
function split_texts(line, texts,    count, rest) {
  count = 0
  rest = line
  while (match(rest, /"[^"]*"/)) {
    texts[++count] = substr(rest, RSTART + 1, RLENGTH - 2)
    rest = substr(rest, RSTART + RLENGTH)
  }
  return count
}

# The value that a case reads: of a field, of a row "HEAD = VALUE", or of a column of a row HEAD.
function value_of(number, head,    column, i, count, texts) {
  column = 2
  if (match(head, /:[0-9]+$/)) {
    column = substr(head, RSTART + 1)
    head = substr(head, 1, RSTART - 1)
  }
  for (i = 1; i <= lines[number]; ++i) {
    count = split_texts(printed[number, i], texts)
    if (head == "" && count == 1) return texts[1]
    if (index(texts[1], head " = ") == 1) return substr(texts[1], length(head) + 4)
    if (texts[1] == head && count >= column) return texts[column]
  }
  return "nothing"
}

# What rounding to the decimals of the value may take.
function rounding(value,    decimals) {
  decimals = index(value, ".") ? length(value) - index(value, ".") : 0
  return 0.5 * 10 ^ -decimals
}

function judgement(value, expected, departs,    apart, percent, agrees) {
  if (value !~ /^ *-?[0-9.]+ *$/) return "WRONG"
  apart = value - expected
  percent = expected == 0 ? (apart == 0 ? 0 : 100) : 100 * apart / (expected < 0 ? -expected : expected)
  agrees = (percent <= 0.1 && percent >= -0.1) || (apart <= rounding(value) && -apart <= rounding(value))
  if (agrees == (departs != "")) return "WRONG"
  return sprintf(agrees ? "%.2f %%" : "**%+.0f %%**", agrees && percent < 0 && percent > -0.005 ? 0 : percent)
}

FNR == NR && $0 == "case" { ++read; next }
FNR == NR { printed[read, ++lines[read]] = $0; next }
{
  value = value_of(FNR, $4)
  printf "| %s | [%s](verification/%s.lig) | %s | %s | %s | %s |\n", $2, $1, $1, $5, value,
         judgement(value, $5, $7), $6
}
