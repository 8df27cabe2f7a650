#include "script/script_platform.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QLayout>

#include "app/report.h"
#include "desktop/kit/row_widths.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"

namespace lignara {
namespace {

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

std::optional<std::string> FromQt(const std::optional<QString>& text) {
  return text ? std::optional(lignara::FromQt(*text)) : std::nullopt;
}

/// Marks a window that is not laid out.
constexpr const char* kNotLaidOut = "notLaidOut";

/// What an action opened or closed moves the rest of its window area by area, from inside out, one
/// in each round of events.
void Settle() {
  constexpr int kAreasWithinEachOther = 4;
  for (int round = 0; round < kAreasWithinEachOther; ++round) QApplication::processEvents();
}

}  // namespace

ScriptPlatform::ScriptPlatform(SessionState& session, ScriptOutput output)
    : DesktopPlatform(session), user_(std::move(output)) {
  SetRespondent(&user_);
}

void ScriptPlatform::Place(ToolWindow* window) {
  if (paints_) {
    DesktopPlatform::Place(window);
    return;
  }
  window->setProperty(kNotLaidOut, true);
  window->setUpdatesEnabled(false);
  for (QLayout* layout : window->findChildren<QLayout*>()) layout->setEnabled(false);
  // No finger moves what stands on no screen, and the look-out for it has a part in every event.
  for (QAbstractScrollArea* area : window->findChildren<QAbstractScrollArea*>()) {
    area->viewport()->ungrabGesture(Qt::PanGesture);
  }
}

void ScriptPlatform::LayOut(ToolWindow* window) {
  if (!window->property(kNotLaidOut).toBool()) return;
  window->setProperty(kNotLaidOut, false);
  const QList<QLayout*> layouts = window->findChildren<QLayout*>();
  for (QLayout* layout : layouts) {
    layout->setEnabled(true);
    layout->invalidate();
  }
  DesktopPlatform::Place(window);
  // They have passed over the sizes that their widgets got meanwhile.
  for (QLayout* layout : layouts) layout->activate();
}

void ScriptPlatform::LetBeLaidOut(ToolWindow* window) {
  LayOut(window);
  Settle();
}

void ScriptPlatform::LetBeSeen(ToolWindow* window) {
  LayOut(window);
  if (!window->updatesEnabled()) {
    window->setUpdatesEnabled(true);
    MeasureLists(window);
  }
  Settle();
}

void ScriptPlatform::PrintingUser::ShowMessage(const Message& message) {
  output("message " + QuotedText(message.title) + " " + QuotedText(message.text));
}

bool ScriptPlatform::PrintingUser::AskYesNo(const std::string& title, const std::string& text) {
  output("ask " + QuotedText(title) + " " + QuotedText(text));
  return answers.Question();
}

std::optional<std::string> ScriptPlatform::PrintingUser::PromptText(const std::string& title,
                                                                    const std::string& text,
                                                                    const std::string& initial) {
  output("prompt " + QuotedText(title) + " " + QuotedText(text) + " " + QuotedText(initial));
  return FromQt(answers.Prompt(ToQt(initial)));
}

std::optional<std::string> ScriptPlatform::PrintingUser::ChooseSaveFile(const std::string& filter) {
  output("dialog save " + QuotedText(filter));
  return FromQt(answers.File("save dialog"));
}

std::optional<std::string> ScriptPlatform::PrintingUser::ChooseOpenFile(const std::string& filter) {
  output("dialog open " + QuotedText(filter));
  return FromQt(answers.File("open dialog"));
}

void ScriptPlatform::PrintingUser::PrintReport(const Report& report) {
  PagePrinter printer(output);
  for (const Report::Item& item : report.items()) std::visit(printer, item);
}

QRect ScriptPlatform::Screen(const ToolWindow& window) const {
  const bool shown = QGuiApplication::platformName() != "offscreen";
  return shown ? DesktopPlatform::Screen(window) : QRect(QPoint(0, 0), screen_);
}

}  // namespace lignara
