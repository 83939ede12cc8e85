#include "desktop/webview/QtWebView.h"

#include <QChildEvent>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestInterceptor>

#include "desktop/QtText.h"
#include "desktop/webview/EngineEnd.h"

namespace wrenvale::platform {

namespace {

// The item in this tree that should have the keyboard's focus but has not.
QQuickItem* itemWithoutItsFocus(QQuickItem* item) {
  if (item->hasFocus() && !item->hasActiveFocus() && !item->isFocusScope()) return item;
  for (auto* child : item->childItems())
    if (auto* found = itemWithoutItsFocus(child)) return found;
  return nullptr;
}

// With OpenGL, a page's widget gets a new scene for its item as it is shown, unless the host has
// asked for shared contexts. The new scene does not know which item has its focus, and the page
// would have neither a caret nor a focus ring.
void restoreFocus(QQuickWidget& drawing) {
  if (!drawing.hasFocus()) return;
  if (auto* item = itemWithoutItsFocus(drawing.quickWindow()->contentItem())) {
    item->setFocus(false);
    item->forceActiveFocus();
  }
}

class View final : public QWebEngineView {
public:
  using QWebEngineView::QWebEngineView;

protected:
  // The engine draws each page in a child widget of its own, and deletes that later than the page,
  // which is too late at the end of the process.
  void childEvent(QChildEvent* event) override {
    QWebEngineView::childEvent(event);
    if (event->added()) destroyBeforeEngine({event->child()});
    endBeforeEngine();
    if (!event->added()) return;
    event->child()->installEventFilter(this);
    QMetaObject::invokeMethod(
        this, [this] { tellWindow(); }, Qt::QueuedConnection);
  }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ParentChange) {
      window()->installEventFilter(this);
      tellWindow();
    }
    return QWebEngineView::event(event);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* drawing = qobject_cast<QQuickWidget*>(watched);
    if (drawing && event->type() == QEvent::FocusIn) // once the widget has seen to its own focus
      QMetaObject::invokeMethod(
          drawing, [drawing] { restoreFocus(*drawing); }, Qt::QueuedConnection);
    if (watched == window() && event->type() == QEvent::Show) tellWindow();
    return QWebEngineView::eventFilter(watched, event);
  }

private:
  // A page learns the size of its window from that child widget's window. With Qt 6.8, that one is
  // not told of the window while the view is hidden.
  void tellWindow() {
    if (!window()->isVisible()) return;
    for (auto* drawing : findChildren<QQuickWidget*>())
      if (!drawing->isVisible()) drawing->quickWindow()->setGeometry(window()->frameGeometry());
  }
};

// Keeps pages from the resources compiled into the host. The engine refuses files by itself.
class OnlyTheWeb final : public QWebEngineUrlRequestInterceptor {
public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo& info) override {
    const QString scheme = info.requestUrl().scheme();
    for (const char* web : {"http", "https", "ws", "wss", "data", "blob", "about"})
      if (scheme == QLatin1String(web)) return;
    info.block(true);
  }
};

QWebEngineProfile* makeProfile() {
  auto* profile = new QWebEngineProfile; // without a name it is off the record
  profile->setHttpCacheType(QWebEngineProfile::NoCache);
  profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
  profile->setSpellCheckEnabled(false);
  profile->setUrlRequestInterceptor(new OnlyTheWeb(profile));
  return profile;
}

} // namespace

QtWebView::QtWebView(WebViewDelegate& delegate, const PageRequest& request)
    : profile_(makeProfile())
    , page_(new Page(*profile_, delegate))
    , view_(new View(page_.data())) {
  view_->setContextMenuPolicy(Qt::PreventContextMenu);
  view_->setAcceptDrops(false);
  QObject::connect(page_, &QObject::destroyed, profile_, &QObject::deleteLater);
  destroyBeforeEngine({view_, page_, profile_});
  endBeforeEngine();
  profile_->setHttpUserAgent(profile_->httpUserAgent() + ' ' + fromUTF8(request.applicationName));
  page_->start(QUrl(fromUTF8(request.url)), request.timeout);
}

// The view goes first, since it uses the page.
QtWebView::~QtWebView() {
  if (view_) view_->deleteLater();
  if (page_) page_->retire();
}

void QtWebView::setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) {
  if (page_) page_->scriptObject().publish(name, methods);
}

bool QtWebView::callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) {
  if (!page_ || !page_->scriptObject().isPublished()) return false;
  page_->runJavaScript(scriptCalling(name, arguments));
  return true;
}

} // namespace wrenvale::platform
