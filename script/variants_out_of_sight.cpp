#include "script/variants_out_of_sight.h"

#include <QDir>
#include <iostream>
#include <iterator>

#include "app/fault.h"
#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/text.h"
#include "desktop/session/csv_line.h"
#include "desktop/session/variant_pipe.h"
#include "desktop/session/variant_table.h"
#include "script/exit_status.h"
#include "script/script_platform.h"

namespace lignara {
namespace {

void PrintRow(const QStringList& cells) { std::cout << FromQt(CsvLine(cells)) << std::endl; }

/// The program after its start, with windows that nobody sees.
class ProgramOutOfSight {
 public:
  ProgramOutOfSight() {
    platform_.PaintNothing();
    StartSession(session_, FromQt(QDir::currentPath()));
    platform_.OpenWindow(window_name::kLauncher);
  }

  VariantOutcome Play(const Variants& variants, const QString& value) {
    return PlayVariant(variants, value, session_, platform_);
  }

 private:
  SessionState session_;
  ScriptPlatform platform_{session_, [](const QString&) {}};
  FaultScope faults_{platform_};
};

}  // namespace

int PrintVariants(const Variants& variants) {
  ProgramOutOfSight program;
  PrintRow(VariantHeads(variants));
  int status = kDone;
  for (const QString& value : variants.values) {
    const VariantOutcome outcome = program.Play(variants, value);
    for (const QString& said : outcome.said) {
      std::cerr << FromQt(value + ": " + said.simplified()) << std::endl;
    }
    if (outcome.stop.isEmpty()) {
      PrintRow(QStringList(value) + outcome.read);
    } else {
      std::cerr << FromQt(outcome.stop) << std::endl;
      status = kStopped;
    }
  }
  return status;
}

int AnswerVariants(std::istream& request, std::ostream& answers) {
  const std::string text((std::istreambuf_iterator<char>(request)), {});
  const auto variants = ReadRequest(QByteArray::fromStdString(text));
  if (!variants) return kWrongUsage;
  ProgramOutOfSight program;
  for (const QString& value : variants->values) {
    answers << AnswerFor(program.Play(*variants, value)).toStdString() << std::endl;
  }
  return kDone;
}

}  // namespace lignara
