#include "script/script_platform.h"

#include <QApplication>
#include <QLayout>
#include <algorithm>

#include "app/report.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "script/script_line.h"

namespace lignara {
namespace {

using Kind = ScriptAnswer::Kind;

QString QuotedText(const std::string& text) { return Quoted(ToQt(text)); }

/// Prints a report page by page.
class PagePrinter {
 public:
  explicit PagePrinter(const ScriptOutput& output) : output_(output) { operator()(NewPage{}); }

  void operator()(const ReportLine& line) { output_("printed " + QuotedText(line.Text())); }
  void operator()(const NewPage&) { output_(QString("page %1").arg(++page_)); }
  void operator()(const Drawing& drawing) { PrintShapes(drawing, output_); }

 private:
  const ScriptOutput& output_;
  int page_ = 0;
};

}  // namespace

void ScriptPlatform::Place(ToolWindow* window) {
  if (paints_) {
    DesktopPlatform::Place(window);
    return;
  }
  window->setUpdatesEnabled(false);
  for (QLayout* layout : window->findChildren<QLayout*>()) layout->setEnabled(false);
}

void ScriptPlatform::LetBeSeen(ToolWindow* window) {
  if (window->updatesEnabled()) return;
  const QList<QLayout*> layouts = window->findChildren<QLayout*>();
  for (QLayout* layout : layouts) {
    layout->setEnabled(true);
    layout->invalidate();
  }
  DesktopPlatform::Place(window);
  // They have passed over the sizes that their widgets got meanwhile.
  for (QLayout* layout : layouts) layout->activate();
  window->setUpdatesEnabled(true);
  QApplication::processEvents();
}

void ScriptPlatform::ShowMessage(const Message& message) {
  output_("message " + QuotedText(message.title) + " " + QuotedText(message.text));
}

bool ScriptPlatform::AskYesNo(const std::string& title, const std::string& text) {
  output_("ask " + QuotedText(title) + " " + QuotedText(text));
  const auto answer = TakeAnswer("question", {Kind::Yes, Kind::No, Kind::Ok, Kind::Cancel});
  return answer && (answer->kind == Kind::Yes || answer->kind == Kind::Ok);
}

std::optional<std::string> ScriptPlatform::PromptText(const std::string& title,
                                                      const std::string& text,
                                                      const std::string& initial) {
  output_("prompt " + QuotedText(title) + " " + QuotedText(text) + " " + QuotedText(initial));
  const auto answer = TakeAnswer("prompt", {Kind::Text, Kind::Ok, Kind::Cancel});
  if (!answer || answer->kind == Kind::Cancel) return std::nullopt;
  return answer->kind == Kind::Text ? FromQt(answer->text) : initial;
}

std::optional<std::string> ScriptPlatform::ChooseSaveFile(const std::string& filter) {
  output_("dialog save " + QuotedText(filter));
  const auto answer = TakeAnswer("save dialog", {Kind::File, Kind::Cancel});
  if (!answer || answer->kind == Kind::Cancel) return std::nullopt;
  return FromQt(answer->text);
}

void ScriptPlatform::PrintReport(const Report& report) {
  PagePrinter printer(output_);
  for (const Report::Item& item : report.items()) std::visit(printer, item);
}

QRect ScriptPlatform::Screen(const ToolWindow& window) const {
  const bool shown = QGuiApplication::platformName() != "offscreen";
  return shown ? DesktopPlatform::Screen(window) : QRect(QPoint(0, 0), screen_);
}

QString ScriptPlatform::TakeFailure() { return std::exchange(failure_, QString()); }

std::optional<ScriptAnswer> ScriptPlatform::TakeAnswer(const QString& dialog,
                                                       std::initializer_list<Kind> fitting) {
  if (answers_.empty()) {
    failure_ = "there is no answer for the " + dialog;
    return std::nullopt;
  }
  const ScriptAnswer answer = answers_.front();
  answers_.pop_front();
  if (std::find(fitting.begin(), fitting.end(), answer.kind) == fitting.end()) {
    failure_ = "the answer does not fit the " + dialog;
    return std::nullopt;
  }
  return answer;
}

}  // namespace lignara
