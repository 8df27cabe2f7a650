#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <fstream>
#include <iostream>
#include <optional>

#include "app/fault.h"
#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"
#include "desktop/session/script_player.h"
#include "desktop/session/session_file.h"
#include "desktop/session/sessions.h"
#include "desktop/session/variant_values.h"
#include "script/exit_status.h"
#include "script/script_platform.h"
#include "script/unseen_style.h"
#include "script/variants_out_of_sight.h"

namespace lignara {
namespace {

void Print(const QString& line) { std::cout << FromQt(line) << std::endl; }

/// Standard error belongs to the script: of the toolkit's own remarks (the screenless platform has
/// many) only a fatal one is worth a line.
void DropRemarks(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) std::cerr << FromQt(text) << std::endl;
}

/// What the command line asks for.
struct Options {
  QString data;
  bool show = false;
  QString repeat;  ///< LINE=VALUES; empty: played once
  bool variants = false;
  QString file;  ///< empty: standard input
};

/// Reads the command line; an exit status where the program has to end at once.
std::optional<int> ReadOptions(const QStringList& arguments, Options& options) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Drives Lignara from a plain list of user actions.");
  const QCommandLineOption help = parser.addHelpOption();
  const QCommandLineOption data("data", "Start in this directory.", "DIR");
  const QCommandLineOption show("show", "Show the windows on the screen.");
  const QCommandLineOption repeat("repeat", "Play FILE for each of several values of one line.",
                                  "LINE=VALUES");
  const QCommandLineOption variants("variants", "Play what Lignara asks for on standard input.");
  parser.addOptions({data, show, repeat, variants});
  parser.addPositionalArgument("FILE", "The script; standard input without it.", "[FILE]");
  if (!parser.parse(arguments) || parser.positionalArguments().size() > 1) {
    const QString reason = parser.errorText();
    std::cerr << FromQt(reason.isEmpty() ? "more than one file" : reason) << "\n";
    return kWrongUsage;
  }
  if (parser.isSet(help)) {
    std::cout << FromQt(parser.helpText());
    return kDone;
  }
  options.data = parser.value(data);
  options.show = parser.isSet(show);
  options.repeat = parser.value(repeat);
  options.variants = parser.isSet(variants);
  options.file = parser.positionalArguments().value(0);
  if (parser.isSet(repeat) && options.repeat.isEmpty()) {
    std::cerr << "--repeat needs LINE=VALUES\n";
    return kWrongUsage;
  }
  if (parser.isSet(repeat) && options.file.isEmpty()) {
    std::cerr << "--repeat needs a file\n";
    return kWrongUsage;
  }
  return std::nullopt;
}

/// Plays the lines of a script, answer by answer. Returns the exit status.
int PlayScript(std::istream& lines, const QString& name, ScriptPlayer& player) {
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    try {
      player.Play(ToQt(line));
    } catch (const ScriptError& error) {
      std::cerr << FromQt(name) << ":" << number << ": " << FromQt(error.reason) << std::endl;
      return kStopped;
    }
  }
  return kDone;
}

/// The variants that the command line asks for; nothing, with a word on standard error, where it
/// asks for none that can be.
std::optional<Variants> ReadVariants(const Options& options) {
  Variants variants;
  QString refusal;
  variants.enterLine = options.repeat.section('=', 0, 0).toInt() - 1;
  variants.values = ParseValues(options.repeat.section('=', 1), refusal);
  if (refusal.isEmpty()) variants.lines = ReadSessionFile(options.file, refusal);
  if (refusal.isEmpty()) refusal = WhyNoVariants(variants.lines, variants.enterLine);
  if (refusal.isEmpty()) return variants;
  std::cerr << FromQt(refusal) << "\n";
  return std::nullopt;
}

int Run(std::istream& lines, const QString& name, bool show) {
  SessionState session;
  ScriptPlatform platform(session, Print);
  const FaultScope faults(platform);
  if (!show) platform.PaintNothing();
  Sessions sessions(session, platform);
  StartSession(session, FromQt(QDir::currentPath()));
  platform.OpenWindow(window_name::kLauncher);
  QApplication::processEvents();
  ScriptPlayer player(platform, platform.answers(), Print);
  return PlayScript(lines, name, player);
}

}  // namespace

int Main(int argc, char* argv[]) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
  Options options;
  if (const auto status = ReadOptions(arguments, options)) return *status;
  qInstallMessageHandler(DropRemarks);
  if (!options.show) qputenv("QT_QPA_PLATFORM", "offscreen");
  int none = 1;
  QApplication application(none, argv);
  if (!options.show) QApplication::setStyle(new UnseenStyle);
  QApplication::setApplicationName(kProgramName);
  QApplication::setQuitOnLastWindowClosed(false);
  std::ifstream file;
  if (!options.file.isEmpty()) {
    file.open(FromQt(options.file));
    if (!file || QDir(options.file).exists()) {
      std::cerr << "cannot read " << FromQt(options.file) << "\n";
      return kWrongUsage;
    }
  }
  std::optional<Variants> variants;
  if (!options.repeat.isEmpty() && !(variants = ReadVariants(options))) return kWrongUsage;
  if (!options.data.isEmpty() && !QDir::setCurrent(options.data)) {
    std::cerr << "there is no directory " << FromQt(options.data) << "\n";
    return kWrongUsage;
  }
  if (variants) return PrintVariants(*variants);
  if (options.variants) return AnswerVariants(std::cin, std::cout);
  return options.file.isEmpty() ? Run(std::cin, "-", options.show)
                                : Run(file, options.file, options.show);
}

}  // namespace lignara

int main(int argc, char* argv[]) { return lignara::Main(argc, argv); }
