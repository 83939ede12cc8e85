#include "Steps.h"

#include <cstdio>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>

#include "Screen.h"

namespace {

/// A way of doing something with what is named. The deed is empty while it cannot be done; finding
/// it changes nothing.
using Way = Deed (*)(const QString& named);

template <typename Widget>
Widget* visibleWindow(const char* name = nullptr) {
  for (auto* window : QApplication::topLevelWidgets())
    if (auto* found = qobject_cast<Widget*>(window);
        found && found->isVisible() && (!name || found->objectName() == name))
      return found;
  return nullptr;
}

screen::Spot rateWindowSpot(const QString& name) {
  const auto* window = visibleWindow<QWidget>("Rate Window");
  const auto* widget = window ? window->findChild<QWidget*>(name) : nullptr;
  return widget ? screen::spotOf(*widget) : screen::Spot();
}

Deed choose(const QString& action) {
  auto* window = visibleWindow<QMainWindow>();
  auto* found = window ? window->findChild<QAction*>(action) : nullptr;
  if (!found || !found->isEnabled() || !screen::isWithinReach(*window)) return {};
  return [found] { found->trigger(); };
}

Deed clickOn(const QString& button) {
  const auto spot = rateWindowSpot(button);
  if (!spot.window) return {};
  return [spot] { screen::click(spot); };
}

Deed hoverOver(const QString& button) {
  const auto spot = rateWindowSpot(button);
  if (!spot.window) return {};
  return [spot] { screen::hover(spot); };
}

// What a user sees of a window that is up; the welcome window's page may still be on its way.
Deed lookAt(const QString& window) {
  const auto* found = visibleWindow<QWidget>(qPrintable(window));
  const auto* progress = found ? found->findChild<QWidget*>("progressIndicator") : nullptr;
  if (!found || (progress && progress->isVisible())) return {};
  return [] {};
}

Deed closeNamed(const QString& window) {
  QPointer found = visibleWindow<QWidget>(qPrintable(window));
  if (!found || !screen::isWithinReach(*found)) return {};
  return [found] {
    if (found) found->close();
  };
}

// A window without a frame has a close button of its own.
Deed closeRateWindow(const QString& button) {
  if (auto click = clickOn(button)) return click;
  return closeNamed("Rate Window");
}

Deed answer(const QString& label) {
  const auto* alert = visibleWindow<QMessageBox>();
  if (!alert) return {};
  for (const auto* button : alert->buttons())
    if (const auto spot = screen::spotOf(*button); spot.window && button->text() == label)
      return [spot] { screen::click(spot); };
  return {};
}

Deed seeAlert(const QString&) {
  const auto* alert = visibleWindow<QMessageBox>();
  return alert ? [] {} : Deed();
}

Deed acceptAlert(const QString&) {
  const auto* alert = visibleWindow<QMessageBox>();
  const auto* button = alert ? alert->defaultButton() : nullptr;
  return button ? answer(button->text()) : Deed();
}

// The page's keys: its field for the e-mail address has the access key E.
Deed inPage(std::function<void(QWidget& page)> todo) {
  const auto* window = visibleWindow<QWidget>("Recommender");
  auto* view = window ? window->findChild<QWidget*>("webView") : nullptr;
  QPointer page = view && view->focusProxy() ? view->focusProxy() : view;
  if (!page || !screen::isWithinReach(*window)) return {};
  return [page, todo = std::move(todo)] {
    if (page) todo(*page);
  };
}

Deed typeAddress(const QString& address) {
  return inPage([address](QWidget& page) {
    screen::press(page, Qt::Key_E, Qt::AltModifier);
    screen::press(page, Qt::Key_A, Qt::ControlModifier);
    screen::type(page, address);
  });
}

Deed submit(const QString&) {
  return inPage([](QWidget& page) { screen::press(page, Qt::Key_Return); });
}

void save(const QString& file) {
  if (screen::picture().save(file, "PNG")) return;
  std::fprintf(stderr, "photo-tool: cannot save %s\n", qUtf8Printable(file));
  QCoreApplication::exit(1);
}

Deed savePicture(const QString& file) {
  return [file] { save(file); };
}

Deed saveHelpMenuPicture(const QString& file) {
  auto* window = visibleWindow<QMainWindow>();
  auto* menu = window ? window->findChild<QMenu*>("helpMenu") : nullptr;
  if (!menu || !screen::isWithinReach(*window)) return {};
  return [file, window, menu] {
    window->menuBar()->setActiveAction(menu->menuAction());
    save(file);
    menu->close();
  };
}

Deed printStatus(const QString& label) {
  const auto* window = visibleWindow<QMainWindow>();
  QPointer status = window ? window->findChild<QLabel*>(label) : nullptr;
  if (!status) return {};
  return [status] { std::printf("%s\n", qUtf8Printable(status->text())); };
}

Deed quit(const QString&) {
  return [] { QCoreApplication::quit(); };
}

struct Step {
  const char* name; ///< what stands after "=" is the step's own: a file, say
  Way way;
  const char* named;
};

constexpr Step kSteps[] = {
    {"export", choose, "askOnThirdExport"},
    {"ask-over-window", choose, "askOverThisWindow"},
    {"ask", choose, "askForRating"},
    {"ask-with-alert", choose, "askWithAlert"},
    {"rate", choose, "rateApplication"},
    {"hover-like", hoverOver, "likeButton"},
    {"hover-dislike", hoverOver, "dislikeButton"},
    {"like", clickOn, "likeButton"},
    {"dislike", clickOn, "dislikeButton"},
    {"store", clickOn, "appstoreButton"},
    {"contact", clickOn, "contactButton"},
    {"close", closeRateWindow, "closeButton"},
    {"alert-yes", answer, "Rate Photo Tool on Appstore"},
    {"alert-no", answer, "No thanks"},
    {"see-alert", seeAlert, nullptr},
    {"accept", acceptAlert, nullptr},
    {"decline", answer, "Cancel"},
    {"newsletter", choose, "subscribeToNewsLetterAction"},
    {"welcome", lookAt, "Recommender"},
    {"type=ADDRESS", typeAddress, nullptr},
    {"submit", submit, nullptr},
    {"close-welcome", closeNamed, "Recommender"},
    {"help-menu=ITEM", choose, nullptr},
    {"picture=FILE", savePicture, nullptr},
    {"picture-menu=FILE", saveHelpMenuPicture, nullptr},
    {"status", printStatus, "ratingStatus"},
    {"quit", quit, nullptr},
};

const Step* stepNamed(const QString& text) {
  const auto isSame = [&](const QString& name) {
    const auto equals = name.indexOf('=') + 1;
    return equals > 0 ? text.startsWith(name.left(equals)) : text == name;
  };
  for (const auto& step : kSteps)
    if (isSame(step.name)) return &step;
  return nullptr;
}

} // namespace

bool isStep(const QString& text) {
  return stepNamed(text) != nullptr;
}

Deed deedOf(const QString& step) {
  const auto* known = stepNamed(step);
  return known->way(known->named ? known->named : step.mid(step.indexOf('=') + 1));
}

QStringList stepNames() {
  QStringList names;
  for (const auto& step : kSteps)
    names += step.name;
  return names;
}
