// The recommender window's widgets: the layout "Recommender" and how it behaves on its own.

#ifndef WRENVALE_DESKTOP_QT_RECOMMENDER_RECOMMENDERWINDOWWIDGET_H
#define WRENVALE_DESKTOP_QT_RECOMMENDER_RECOMMENDERWINDOWWIDGET_H

#include <functional>
#include <memory>

#include <QWidget>

#include "desktop/qt/app/WindowFrame.h"

namespace Ui {
class Recommender;
}

namespace wrenvale::platform {

/// Hidden at first, in the middle of its screen, and of no influence on when the host quits.
///
/// Main thread only. Destroy it with deleteWindowLater(): the events it reports come from within
/// its own.
class RecommenderWindowWidget final : public QWidget {
public:
  struct Events {
    std::function<void()> closed;    ///< by the user or the window system
    std::function<void()> hidden;    ///< by whomever
    std::function<void()> destroyed; ///< the widget is no longer to be used
  };

  explicit RecommenderWindowWidget(Events events);
  ~RecommenderWindowWidget() override;

  /// White whatever the host's palette and style sheet.
  void setBackgroundWhite();
  /// Puts a web view where the layout has room for one.
  void setWebView(QWidget* webView);
  void setWebViewHidden(bool hidden);
  void setProgressShown(bool shown);
  void bringToFront();
  WindowFrame& frame() { return frame_; }

protected:
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  const Events events_;
  const std::unique_ptr<Ui::Recommender> ui_;
  WindowFrame frame_{*this};
  bool isWhite_ = false;
  bool webViewHidden_ = false;
};

} // namespace wrenvale::platform

#endif
