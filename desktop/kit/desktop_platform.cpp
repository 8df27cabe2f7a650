#include "desktop/kit/desktop_platform.h"

#include <QApplication>
#include <QFileInfo>
#include <QScreen>
#include <algorithm>
#include <cassert>
#include <utility>

#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/form.h"
#include "desktop/kit/help_window.h"
#include "desktop/kit/message_box.h"
#include "desktop/kit/mouse_pointer.h"
#include "desktop/kit/program_icon.h"
#include "desktop/kit/proposed_file_name.h"
#include "desktop/kit/report_printer.h"
#include "desktop/kit/respondent.h"
#include "desktop/kit/screen_readers.h"
#include "desktop/kit/scroll_page.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "desktop/kit/window_kind.h"

namespace lignara {
namespace {

ToolWindow* FindIn(const std::vector<ToolWindow*>& windows, const QString& name) {
  const auto found = std::find_if(windows.begin(), windows.end(),
                                  [&](const ToolWindow* w) { return w->name() == name; });
  return found == windows.end() ? nullptr : *found;
}

bool IsAside(const ToolWindow* window) {
  const WindowKind* kind = FindWindowKind(FromQt(window->name()));
  return kind != nullptr && kind->aside;
}

/// Reading the help is no work elsewhere: who comes back from it finds all that was typed.
bool IsNoWork(const ToolWindow* window) {
  return window->name() == window_name::kHelp || IsAside(window);
}

}  // namespace

DesktopPlatform::DesktopPlatform(SessionState& session) : session_(session) {
  QApplication::setWindowIcon(ProgramIcon());
  TellReadersOfPictures();
}

DesktopPlatform::~DesktopPlatform() {
  // Windows that were closed a moment ago know the platform still.
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  windows_.insert(windows_.begin(), hidden_.begin(), hidden_.end());
  while (!windows_.empty()) {
    ToolWindow* newest = windows_.back();
    windows_.pop_back();
    newest->CloseForGood();
    delete newest;
  }
}

void DesktopPlatform::BeginCommand(ToolWindow* window, const UserAction& action) {
  const bool told = listener_ != nullptr && !repeated_.InCommand() && !IsAside(window);
  if (told) listener_->Begin(window, action);
  repeated_.BeginCommand();
  if (!commandWindow_) commandWindow_ = window;
}

void DesktopPlatform::EndCommand() {
  repeated_.EndCommand();
  if (repeated_.InCommand()) return;
  commandWindow_ = nullptr;
  if (listener_ != nullptr) listener_->End();
}

QString DesktopPlatform::DocumentName() const {
  return commandWindow_ ? commandWindow_->DocumentName() : QString(kProgramName);
}

void DesktopPlatform::ShowMessage(const Message& message) {
  if (listener_ != nullptr) listener_->BoxShown();
  if (respondent_ != nullptr) return respondent_->ShowMessage(message);
  const RepeatedMessages::Box box = repeated_.Next(message);
  if (box == RepeatedMessages::Box::None) return;
  const bool noMore = ShowMessageBox(message, box == RepeatedMessages::Box::WithOffer);
  if (noMore) repeated_.Silence(message);
}

void DesktopPlatform::Answered(const QString& answer) {
  if (listener_ != nullptr) listener_->Answered(answer);
}

bool DesktopPlatform::AskYesNo(const std::string& title, const std::string& text) {
  const bool yes =
      respondent_ != nullptr ? respondent_->AskYesNo(title, text) : UserSaysYes(title, text);
  Answered(yes ? "yes" : "no");
  return yes;
}

std::optional<std::string> DesktopPlatform::PromptText(const std::string& title,
                                                       const std::string& text,
                                                       const std::string& initial) {
  const auto answer = respondent_ != nullptr ? respondent_->PromptText(title, text, initial)
                                             : UsersText(title, text, initial);
  Answered(answer ? "text " + Quoted(ToQt(*answer)) : "cancel");
  return answer;
}

std::optional<std::string> DesktopPlatform::ChooseSaveFile(const std::string& filter) {
  const auto path =
      respondent_ != nullptr ? respondent_->ChooseSaveFile(filter) : UsersFile(filter);
  Answered(path ? "file " + Quoted(ToQt(*path)) : "cancel");
  return path;
}

std::optional<std::string> DesktopPlatform::ChooseOpenFile(const std::string& filter) {
  if (respondent_ != nullptr) return respondent_->ChooseOpenFile(filter);
  const std::optional<QString> path = fileDialogs_.AskOpen(ToQt(filter));
  return path ? std::optional(FromQt(*path)) : std::nullopt;
}

bool DesktopPlatform::MayWriteFiles() {
  return respondent_ == nullptr || respondent_->MayWriteFiles();
}

bool DesktopPlatform::UserSaysYes(const std::string& title, const std::string& text) {
  return ShowQuestionBox(title, text);
}

std::optional<std::string> DesktopPlatform::UsersText(const std::string& title,
                                                      const std::string& text,
                                                      const std::string& initial) {
  return ShowPromptBox(title, text, initial);
}

std::optional<std::string> DesktopPlatform::UsersFile(const std::string& filter) {
  const bool pdf = filter == kPdfFilter;
  SaveProposal proposal;
  proposal.caption = pdf ? kPdfCaption : "Save As";
  proposal.name = FileNameOf(DocumentName());
  proposal.filter = ToQt(filter);
  const std::optional<QString> path = fileDialogs_.AskSave(proposal);
  return path ? std::optional(FromQt(*path)) : std::nullopt;
}

void DesktopPlatform::OpenWindow(const std::string& name) {
  assert(IsWindowName(name));
  ToolWindow* window = FindWindow(ToQt(name));
  if (window == nullptr) {
    window = FindIn(hidden_, ToQt(name));
    std::erase(hidden_, window);
    if (window == nullptr) window = MakeWindow(name);
    if (window == nullptr) return;
    windows_.push_back(window);
    window->Refresh();
    window->show();
  }
  Activate(window);
}

ToolWindow* DesktopPlatform::MakeWindow(const std::string& name) {
  const WindowKind* kind = FindWindowKind(name);
  if (kind == nullptr) return nullptr;
  ToolWindow* window = kind->make({session_, *this});
  // A window opened from a modal one belongs to it, so that it is not locked out with the rest.
  if (ToolWindow* modal = NewestModal()) window->setParent(modal, window->windowFlags());
  if (kind->modal) window->setWindowModality(Qt::ApplicationModal);
  window->Furnish(Screen(*window).size());
  Place(window);
  if (!IsNoWork(window)) lastActive_ = window;  // opening it is no coming back
  return window;
}

void DesktopPlatform::HideWindow(const std::string& name) {
  assert(IsWindowName(name));
  ToolWindow* window = FindWindow(ToQt(name));
  if (window == nullptr) return;
  std::erase(windows_, window);
  hidden_.push_back(window);
  AdoptChildren(window);
  // Its owner may be gone when it is shown again.
  if (window->parentWidget() != nullptr) window->setParent(nullptr, window->windowFlags());
  window->hide();
  if (lastActive_ == window) lastActive_ = nullptr;
}

void DesktopPlatform::Activate(ToolWindow* window) {
  // The lines of a session name a window often: the desktop would be busy with it for long.
  if (played_ && lastActive_ == window) return;
  window->raise();
  window->activateWindow();
  NoteActive(window);
}

void DesktopPlatform::NoteActive(ToolWindow* window) {
  if (lastActive_ == window || FindIn(windows_, window->name()) != window) return;
  if (IsNoWork(window)) return;
  lastActive_ = window;
  window->CameBack();
}

void DesktopPlatform::Place(ToolWindow* window) {
  TakeInContents(window);
  const QRect screen = Screen(*window);
  // A window may name a size of its own, for letters of usual size; any other gets what it wants.
  // None is larger than the screen.
  const bool named = window->testAttribute(Qt::WA_Resized);
  const QSize size(InLetters(window->width()), InLetters(window->height()));
  const QSize wish = named ? size.expandedTo(window->minimumSizeHint()) : window->sizeHint();
  QRect place(QPoint(), wish.boundedTo(screen.size()));
  place.moveCenter(screen.center());
  places_.Put(window, place, screen);
}

QRect DesktopPlatform::Screen(const ToolWindow& window) const {
  // The frame that the desktop draws around a window.
  constexpr int kSides = 8;
  constexpr int kTitle = 36;
  const QRect all = window.screen()->geometry();
  const QSize free = window.screen()->availableSize() - QSize(kSides, kTitle);
  return {all.topLeft() + QPoint(all.width() - free.width(), all.height() - free.height()) / 2,
          free};
}

void DesktopPlatform::CloseWindow(const std::string& name) {
  assert(IsWindowName(name));
  ToolWindow* window = FindWindow(ToQt(name));
  if (window == nullptr) window = FindIn(hidden_, ToQt(name));
  if (window == nullptr) return;
  std::erase(windows_, window);
  std::erase(hidden_, window);
  if (lastActive_ == window) lastActive_ = nullptr;
  places_.Remember(window);
  AdoptChildren(window);
  window->CloseForGood();
  window->deleteLater();
  const std::vector<ToolWindow*> left = windows_;
  for (ToolWindow* other : left) other->WindowClosed(ToQt(name));
}

void DesktopPlatform::AdoptChildren(ToolWindow* closing) {
  for (ToolWindow* window : windows_) {
    if (window->parentWidget() != closing) continue;
    window->setParent(closing->parentWidget(), window->windowFlags());
    window->show();
  }
}

bool DesktopPlatform::HasWindow(const std::string& name) const {
  assert(IsWindowName(name));
  return FindWindowKind(name) != nullptr;
}

void DesktopPlatform::PrintReport(const Report& report) {
  if (respondent_ != nullptr) return respondent_->PrintReport(report);
  // The file that stands in for a printer is no answer that a script without one would ask for.
  ActionListener* listener = std::exchange(listener_, nullptr);
  PrintOnPaper(report, *this);
  listener_ = listener;
}

void DesktopPlatform::ShowHelp(const std::string& path, const std::string& section) {
  if (!QFileInfo(ToQt(path)).isReadable()) return;
  // One that was opened before a modal window came up could not be reached.
  if (ToolWindow* open = FindWindow(window_name::kHelp); open != nullptr && IsBlocked(open)) {
    CloseWindow(window_name::kHelp);
  }
  OpenWindow(window_name::kHelp);
  ShowHelpDocument(FindWindow(window_name::kHelp), ToQt(path), ToQt(section));
}

void DesktopPlatform::SetBusyPointer(bool busy) { SetWaitingPointer(busy); }

void DesktopPlatform::ShowNote(const std::string& text) {
  if (ToolWindow* front = Front()) front->ShowNote(ToQt(text));
}

ToolWindow* DesktopPlatform::Front() const {
  if (windows_.empty()) return nullptr;
  const auto active = std::find(windows_.begin(), windows_.end(), lastActive_);
  return active == windows_.end() ? windows_.back() : *active;
}

ToolWindow* DesktopPlatform::FindWindow(const QString& name) const {
  return FindIn(windows_, name);
}

QStringList DesktopPlatform::OpenWindows() const {
  QStringList names;
  for (const ToolWindow* window : windows_) names << window->name();
  return names;
}

bool DesktopPlatform::IsBlocked(const ToolWindow* window) const {
  const auto at = std::find(windows_.begin(), windows_.end(), window);
  return std::any_of(at == windows_.end() ? at : at + 1, windows_.end(),
                     [](const ToolWindow* w) { return w->isModal(); });
}

void DesktopPlatform::RefreshWindows() {
  const std::vector<ToolWindow*> windows = windows_;
  for (ToolWindow* window : windows) window->Refresh();
}

ToolWindow* DesktopPlatform::NewestModal() const {
  const auto found = std::find_if(windows_.rbegin(), windows_.rend(),
                                  [](const ToolWindow* w) { return w->isModal(); });
  return found == windows_.rend() ? nullptr : *found;
}

}  // namespace lignara
