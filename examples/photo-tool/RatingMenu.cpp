#include "RatingMenu.h"

#include <utility>

#include <QLabel>
#include <QPointer>
#include <QStatusBar>

#include <wrenvale/KVXWrenvale.h>

namespace {

constexpr std::int64_t kExportsBefore = 2;

KVXWrenvale& service() {
  return KVXWrenvale::sharedInstance();
}

} // namespace

RatingMenu::RatingMenu(QMainWindow& window)
    : QMenu(tr("&Ratings"), &window)
    , status_(new QLabel) {
  status_->setObjectName("ratingStatus");
  status_->setMargin(3);
  window.statusBar()->addPermanentWidget(status_);
  fill(window);
}

void RatingMenu::fill(QMainWindow& window) {
  add(tr("Ask on the Third &Export"), "askOnThirdExport", [this, &window] {
    return service().triggerRatingWithWindow(&window, kExportsBefore, handler());
  });
  add(tr("Ask Over &This Window"), "askOverThisWindow",
      [this, &window] { return service().triggerRatingWithWindow(&window, handler()); });
  add(tr("&Ask for a Rating"), "askForRating",
      [this] { return service().triggerRatingWithCompletitionHandler(handler()); });
  add(tr("Ask With an A&lert"), "askWithAlert",
      [] { return service().triggerRatingWithModalAlert(); });
  addSeparator();
  const QString name = QString::fromStdString(service().appName());
  add(tr("&Rate %1").arg(name), "rateApplication", [] {
    service().rateApp();
    return true;
  });
}

void RatingMenu::add(const QString& text, const char* name, std::function<bool()> ask) {
  QAction* action = addAction(text);
  action->setObjectName(name);
  // Over a window the call returns when the user is done, by which time all of this may be gone.
  connect(action, &QAction::triggered, this,
          [self = QPointer(this), title = QString(text).remove('&'), ask = std::move(ask)] {
            const bool asked = ask();
            if (!self) return;
            self->last_ = asked ? tr("%1: asked").arg(title) : tr("%1: not asked").arg(title);
            self->tell();
          });
}

std::function<void()> RatingMenu::handler() {
  return [self = QPointer(this)] {
    if (!self) return;
    ++self->handled_;
    self->tell();
  };
}

void RatingMenu::tell() {
  QStringList parts;
  if (!last_.isEmpty()) parts += last_;
  if (handled_ > 0) parts += tr("completion handler called: %1").arg(handled_);
  status_->setText(parts.join(" \u00b7 "));
}
