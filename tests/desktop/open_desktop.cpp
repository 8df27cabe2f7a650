#include "tests/desktop/open_desktop.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWindow>
#include <stdexcept>

#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

bool CanBeUsed(const QWidget* widget) {
  return qobject_cast<const QAbstractButton*>(widget) != nullptr ||
         qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QListWidget*>(widget) != nullptr ||
         qobject_cast<const QScrollBar*>(widget) != nullptr ||
         dynamic_cast<const Picture*>(widget) != nullptr;
}

/// Bars and corner buttons that a list or a page makes for itself.
bool IsPartOfAList(const QWidget* widget) {
  for (const QWidget* at = widget->parentWidget(); at != nullptr; at = at->parentWidget()) {
    const bool page = qobject_cast<const QScrollArea*>(at) != nullptr;
    if (!page && qobject_cast<const QAbstractScrollArea*>(at) != nullptr) return true;
  }
  return widget->parentWidget()->objectName().startsWith("qt_scrollarea");
}

}  // namespace

const std::initializer_list<const char*> kOpenAllTrussPanels = {"window TRUSS",
                                                                "press \"Deflections\"",
                                                                "press \"Code Stress\"",
                                                                "press \"Statics Check\"",
                                                                "menu \"Files\" \"Headings...\"",
                                                                "menu \"Files\" \"Fonts...\"",
                                                                "press \"Area Load (lbs/sf)\""};

const std::initializer_list<const char*> kRunTwoSpans = {"window main",
                                                         "enter \"Enter No. of Spans\" 2",
                                                         "press \"Multi-Span Beam\"",
                                                         "window MS",
                                                         "enter \"Length(ft)\" 10",
                                                         "enter \"Unif. ld(lb/ft)\" 120",
                                                         "enter \"Mom. of Inertia(in^4)\" 100",
                                                         "press \"Update Span\"",
                                                         "press \"Span\" \">\"",
                                                         "press \"Load Same \"",
                                                         "press \"Run\"",
                                                         "window MDOUTPUT"};

const std::initializer_list<const char*> kOpenAllBeamResults = {
    "window MDOUTPUT", "menu \"Show Deflected Shape...\"",
    "menu \"Files\" \"Project Description...\""};

const std::initializer_list<const char*> kOpenAllSingleSpanPanels = {
    "window MLSP", "press \"View Diag.\"", "press \"More values reqd. for stress check\"",
    "menu \"Files\" \"Project Description...\""};

OpenDesktop::OpenDesktop() : OpenDesktop(QSize(1366, 900)) {}

OpenDesktop::OpenDesktop(const QSize& screen)
    : platform(session, [this](const QString& line) { printed << line; }),
      faults_(platform),
      player_(platform, platform.answers(), [this](const QString& line) { printed << line; }) {
  platform.SetScreen(screen);
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  platform.OpenWindow("main");
  QApplication::processEvents();
}

void OpenDesktop::Play(std::initializer_list<const char*> lines) {
  for (const char* line : lines) player_.Play(line);
}

void OpenDesktop::OpenKingPost() {
  Play({"window main", "press \"KINGPOST\"", "window TR_INPUT", "enter \"Total Length (ft)\" 24",
        "enter \"H (ft)\" 5", "press \"OK\"", "window TRUSS"});
}

ToolWindow* OpenDesktop::Window(const char* name) {
  ToolWindow* window = platform.FindWindow(name);
  if (window == nullptr) throw std::runtime_error(std::string("not open: ") + name);
  return window;
}

QString OpenDesktop::FocusIn(const char* window) {
  const QWidget* focus = Window(window)->focusWidget();
  return focus == nullptr ? QString() : CaptionOf(focus);
}

void OpenDesktop::PressKey(const char* window, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(ActiveHandle(window), key, modifiers);
  // A button under a mnemonic is seen going down before it acts.
  constexpr int kDown = 130;
  if (modifiers.testFlag(Qt::AltModifier)) QTest::qWait(kDown);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
}

QStringList OpenDesktop::Walk(const char* window, int stops) {
  QStringList path;
  for (int i = 0; i < stops; ++i) {
    PressKey(window, Qt::Key_Tab);
    path << FocusIn(window);
  }
  return path;
}

void OpenDesktop::Type(const char* window, const QString& text) {
  for (const QChar sign : text) QTest::keyClick(ActiveHandle(window), sign.toLatin1());
  QApplication::processEvents();
}

QWindow* OpenDesktop::ActiveHandle(const char* window) {
  ToolWindow* at = Window(window);
  if (!at->isActiveWindow()) at->activateWindow();
  QApplication::processEvents();
  return at->windowHandle();
}

std::vector<QWidget*> VisibleControls(ToolWindow* window) {
  std::vector<QWidget*> controls;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    if (widget->window() != window || !widget->isVisible()) continue;
    if (CanBeUsed(widget) && !IsPartOfAList(widget)) controls.push_back(widget);
  }
  return controls;
}

void ExpectNoCaptionCutOff(const ToolWindow* window) {
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    const bool caption = (label != nullptr && !label->wordWrap()) ||
                         qobject_cast<const QAbstractButton*>(widget) != nullptr;
    if (!caption || !widget->isVisible() || CaptionOf(widget).isEmpty()) continue;
    const QString shown = label != nullptr ? label->text() : CaptionOf(widget);
    const QSize text = widget->fontMetrics().size(Qt::TextShowMnemonic, shown);
    const std::string name = FromQt(window->name()) + ": " + FromQt(CaptionOf(widget));
    EXPECT_GE(widget->width(), text.width()) << name;
    EXPECT_GE(widget->height(), text.height()) << name;
  }
}

}  // namespace lignara
