// The recommender window, as a Qt widget with a web view from the module.

#ifndef WRENVALE_DESKTOP_QT_RECOMMENDER_QTRECOMMENDERWINDOW_H
#define WRENVALE_DESKTOP_QT_RECOMMENDER_QTRECOMMENDERWINDOW_H

#include <memory>
#include <utility>
#include <vector>

#include <QPointer>
#include <QWidget>

#include "desktop/qt/app/WindowFrame.h"
#include "platform/RecommenderWindow.h"

namespace Ui {
class Recommender;
}

namespace wrenvale::platform {

class WebViewModuleLoader;

/// A top-level widget of its own, in the middle of its screen at first, white whatever the host's
/// palette and style sheet, and of no influence on when the host quits. The engine, which takes a
/// moment to start, is left to a later turn of the event loop than loadRequest().
///
/// However the window goes away once it has been shown, be it closed by the user, hidden or
/// destroyed by the host, it counts as closed. A host that quits does not close it.
class QtRecommenderWindow final : public QObject, public RecommenderWindow {
public:
  /// There is a QApplication. Both outlive the window.
  QtRecommenderWindow(RecommenderWindowDelegate& delegate, WebViewModuleLoader& loader);
  ~QtRecommenderWindow() override;

  void setTitle(std::string_view title) override;
  void loadRequest(const PageRequest& request) override;
  WebView* webView() const override { return webView_.get(); }
  void revealWebView() override;

  bool isVisible() const override;
  Frame frame() const override;
  Frame frameForContentSize(double width, double height) const override;
  void setFrame(const Frame& frame, bool animate) override;
  void makeKeyAndOrderFront() override;

  /// A sheet of a hidden window comes up with the window.
  void beginSheet(const Alert& alert, std::function<void(int)> handler) override;
  void close() override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  using Sheet = std::pair<Alert, std::function<void(int)>>;

  void load(const PageRequest& request);
  void insertWebView(QWidget& view);
  void raiseSheet(Sheet sheet);
  void checkLater();
  void check();

  RecommenderWindowDelegate* delegate_; // null once the window is closed
  WebViewModuleLoader& loader_;
  const std::unique_ptr<Ui::Recommender> ui_;
  QPointer<QWidget> window_; // the host may destroy it
  WindowFrame frame_;
  std::unique_ptr<WebView> webView_;
  bool revealed_ = false;
  bool shown_ = false;
  std::vector<Sheet> waiting_; // until the window is shown
};

} // namespace wrenvale::platform

#endif
