// The recommender window, as a Qt widget with a web view from the module.

#ifndef WRENVALE_DESKTOP_QT_RECOMMENDER_QTRECOMMENDERWINDOW_H
#define WRENVALE_DESKTOP_QT_RECOMMENDER_QTRECOMMENDERWINDOW_H

#include "platform/RecommenderWindow.h"

namespace wrenvale::platform {

class WebViewModuleLoader;

/// A top-level widget of its own. The engine, which takes a moment to start, is left to a later
/// turn of the event loop than loadRequest().
///
/// However the window goes away once it has been shown, be it closed by the user, hidden or
/// destroyed by the host, it counts as closed. A host that quits does not close it.
class QtRecommenderWindow : public RecommenderWindow {
public:
  /// There is a QApplication. Both outlive the window.
  QtRecommenderWindow(RecommenderWindowDelegate& delegate, WebViewModuleLoader& loader);
  ~QtRecommenderWindow() override;

  void setTitle(std::string_view title) override;
  void setBackgroundWhite() override;
  void setWebViewHidden(bool hidden) override;
  void setProgressShown(bool shown) override;

  /// Each view has a cache of its own, which begins empty.
  void removeAllCachedResponses() override {}
  void setApplicationNameForUserAgent(std::string_view name) override;
  void loadRequest(std::string_view url, std::chrono::seconds timeout) override;

  void setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) override;
  bool hasScriptObject() const override;
  void callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) override;

  bool isVisible() const override;
  Frame frame() const override;
  Frame frameForContentSize(double width, double height) const override;
  void setFrame(const Frame& frame, bool animate) override;
  void showWindow() override;
  void makeKeyAndOrderFront() override;

  /// A sheet of a hidden window comes up with the window.
  void beginSheet(const Alert& alert, std::function<void(int)> handler) override;

  void close() override;
  void closeWebView() override;

private:
  class Session;

  // Shared with the widget and with what is on the stack, any of which may outlive the window.
  const std::shared_ptr<Session> session_;
};

} // namespace wrenvale::platform

#endif
