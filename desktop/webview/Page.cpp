#include "desktop/webview/Page.h"

#include <utility>

#include <QAuthenticator>
#include <QColor>
#include <QCoreApplication>
#include <QWebEngineFileSystemAccessRequest>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include "base/Log.h"
#include "desktop/webview/QtVersions.h"

namespace wrenvale::platform {

namespace {

constexpr const char* kUnreachable = QT_TRANSLATE_NOOP("Wrenvale", "The server cannot be reached.");
constexpr const char* kSilent = QT_TRANSLATE_NOOP("Wrenvale", "The server does not answer.");
constexpr const char* kCheck =
    QT_TRANSLATE_NOOP("Wrenvale", "Check the connection to the Internet, and try again later.");
constexpr const char* kEnded = QT_TRANSLATE_NOOP("Wrenvale", "The page has ended unexpectedly.");

std::string text(const QUrl& url) {
  return url.toEncoded().toStdString();
}

// Whether a page may go there; other schemes lead to this machine or to other programs.
bool isOfTheWeb(const QUrl& url) {
  for (const char* scheme : {"http", "https", "about", "data", "blob", "javascript"})
    if (url.scheme() == QLatin1String(scheme)) return true;
  return false;
}

QWebEngineScript script(const QString& name, const QString& source, quint32 world, bool inFrames) {
  QWebEngineScript script;
  script.setName(name);
  script.setSourceCode(source);
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(world);
  script.setRunsOnSubFrames(inFrames);
  return script;
}

} // namespace

// Exists while a call of the delegate is under way.
class Page::Call {
public:
  explicit Call(Page& page)
      : page_(page) {
    ++page_.calls_;
  }
  ~Call() {
    if (--page_.calls_ == 0 && !page_.delegate_) page_.deleteLater();
  }
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;

private:
  Page& page_;
};

Page::Page(QWebEngineProfile& profile, WebViewDelegate& delegate)
    : QWebEnginePage(&profile)
    , delegate_(&delegate) {
  configure();
  refuseRequests();
  insertScripts();
  timeout_.setSingleShot(true);
  connect(&timeout_, &QTimer::timeout, this, [this] {
    fail(requestedUrl(), kSilent, kCheck);
    triggerAction(Stop);
  });
  connect(this, &QWebEnginePage::loadingChanged, this, &Page::onLoading);
  connect(this, &QWebEnginePage::newWindowRequested, this, &Page::onNewWindow);
  connect(this, &QWebEnginePage::renderProcessTerminated, this, [this] {
    scriptObject_.clear();
    fail(url(), kEnded, "");
  });
}

// What is destroyed with the page must report nothing any more.
Page::~Page() {
  delegate_ = nullptr;
  disconnect(this, nullptr, this, nullptr);
}

void Page::retire() {
  if (!std::exchange(delegate_, nullptr)) return;
  timeout_.stop();
  scriptObject_.clear();
  setAudioMuted(true);
  if (calls_ == 0) deleteLater();
}

// Most of these are defaults, but a later engine may change them.
void Page::configure() {
  using Settings = QWebEngineSettings;
  for (const auto attribute :
       {Settings::ErrorPageEnabled, Settings::PluginsEnabled, Settings::PdfViewerEnabled,
        Settings::FullScreenSupportEnabled, Settings::ScreenCaptureEnabled,
        Settings::JavascriptCanAccessClipboard, Settings::JavascriptCanPaste,
        Settings::LocalContentCanAccessRemoteUrls, Settings::LocalContentCanAccessFileUrls,
        Settings::AllowRunningInsecureContent, Settings::AllowGeolocationOnInsecureOrigins,
        Settings::AllowWindowActivationFromJavaScript, Settings::FocusOnNavigationEnabled,
        Settings::HyperlinkAuditingEnabled, Settings::DnsPrefetchEnabled,
        Settings::NavigateOnDropEnabled, Settings::WebGLEnabled, Settings::TouchIconsEnabled,
        Settings::AutoLoadIconsForPage})
    settings()->setAttribute(attribute, false);
  settings()->setAttribute(Settings::PlaybackRequiresUserGesture, true);
  settings()->setAttribute(Settings::WebRTCPublicInterfacesOnly, true);
  settings()->setUnknownUrlSchemePolicy(Settings::DisallowUnknownUrlSchemes);
  setBackgroundColor(QColor(Qt::white));
}

void Page::refuseRequests() {
  denyPermissions(*this);
  connect(this, &QWebEnginePage::fullScreenRequested, this,
          [](QWebEngineFullScreenRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
          [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
  connect(this, &QWebEnginePage::fileSystemAccessRequested, this,
          [](QWebEngineFileSystemAccessRequest request) { request.reject(); });
  // Without an answer, the engine would try again and again.
  connect(this, &QWebEnginePage::authenticationRequired, this,
          [](const QUrl&, QAuthenticator* answer) { *answer = QAuthenticator(); });
}

void Page::insertScripts() {
  scripts().insert(
      script("script object", scriptObject_.source(), QWebEngineScript::MainWorld, false));
  scripts().insert(
      script("detached links", NavigationHints::pagesSource(), QWebEngineScript::MainWorld, true));
  scripts().insert(script("page rules", hints_.source(), QWebEngineScript::ApplicationWorld, true));
}

void Page::start(const QUrl& url, std::chrono::milliseconds timeout) {
  if (url.scheme() != "http" && url.scheme() != "https") {
    QTimer::singleShot(0, this, [this, url] { fail(url, kUnreachable, kCheck); });
    return;
  }
  timeout_.setInterval(timeout);
  begin(url);
  load(url);
  setVisible(true); // or the page would be held back until its window shows it
}

bool Page::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
  if (!delegate_ || !isOfTheWeb(url)) return false;
  const bool use = decide(url, hints_.typeOf(url, type), isMainFrame) == PolicyDecision::kUse;
  if (use && isMainFrame) begin(url);
  return use;
}

// Redirections share the time that is left. A page that has begun may lead on to another page,
// which has a time-out of its own.
void Page::begin(const QUrl& url) {
  awaited_ = url;
  if (!delegate_ || timeout_.isActive()) return;
  hasDocument_ = hasFailed_ = false;
  timeout_.start();
}

PolicyDecision Page::decide(const QUrl& url, platform::NavigationType type, bool isMainFrame) {
  const Call call(*this);
  // A frame may ask before the engine has told the address of the page around it.
  const QUrl page = this->url().isEmpty() ? awaited_ : this->url();
  return delegate_->decidePolicyForNavigationAction(
      {.url = text(url), .mainDocumentURL = text(isMainFrame ? url : page), .type = type});
}

bool Page::javaScriptPrompt(const QUrl& origin, const QString& message, const QString&,
                            QString* result) {
  if (!delegate_) return false;
  const Call call(*this);
  return scriptObject_.isHandshake(message) ? answerHandshake(origin, *result)
                                            : perform(message, *result);
}

bool Page::answerHandshake(const QUrl& origin, QString& result) {
  timeout_.stop();
  hasDocument_ = hadDocument_ = true;
  scriptObject_.clear();
  delegate_->didClearWindowObject(text(origin));
  if (!scriptObject_.isPublished()) return false;
  result = scriptObject_.introduction();
  return true;
}

bool Page::perform(const QString& message, QString& result) {
  if (!scriptObject_.isCall(message)) return false;
  const auto call = scriptObject_.call(message);
  const auto answer =
      call ? delegate_->invokeScriptMethod(call->name, call->arguments) : std::nullopt;
  result = answer ? ScriptObject::encoded(*answer) : QString();
  return true;
}

// The host takes hints from the console and ignores the rest.
void Page::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message,
                                    int line, const QString& source) {
  if (level == ErrorMessageLevel)
    log::say("page", [&] {
      return text(QUrl(source)) + ":" + std::to_string(line) + ": " + message.toStdString();
    });
  const auto unasked = hints_.note(message);
  if (unasked && delegate_) decide(*unasked, platform::NavigationType::kLinkClicked, true);
}

void Page::onLoading(const QWebEngineLoadingInfo& info) {
  if (!delegate_) return;
  if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus)
    onLeaving(info.url());
  else
    onEnd(info);
}

// A page has arrived when its document has begun: neither a connection that breaks later nor a page
// that tells of an error is a failure. A load that turns into something else (a download, say) is a
// failure only while there is no page to see.
void Page::onEnd(const QWebEngineLoadingInfo& info) {
  using Info = QWebEngineLoadingInfo;
  const bool arrived = hasDocument_ || info.status() == Info::LoadSucceededStatus ||
                       info.errorDomain() == Info::HttpStatusCodeDomain;
  // From Qt 6.8 on, the end of a page may be reported after the next page has begun.
  if (arrived && timeout_.isActive() && info.url() != awaited_) return;
  timeout_.stop();
  if (arrived) {
    hadDocument_ = true;
  } else if (info.status() == Info::LoadFailedStatus || !hadDocument_) {
    fail(info.url(), kUnreachable, kCheck);
  }
}

// The engine does not ask acceptNavigationRequest() about addresses for other programs.
void Page::onLeaving(const QUrl& url) {
  if (!isOfTheWeb(url) && hints_.isClickedLink(url))
    decide(url, platform::NavigationType::kLinkClicked, true);
}

// Opens no window, whatever the answer.
void Page::onNewWindow(const QWebEngineNewWindowRequest& request) {
  if (!delegate_) return;
  const Call call(*this);
  const QUrl url = request.requestedUrl();
  delegate_->decidePolicyForNavigationAction(
      {.url = text(url),
       .mainDocumentURL = text(url),
       .type = hints_.typeOfNewWindow(url, request.isUserInitiated())});
}

void Page::fail(const QUrl& url, const char* reason, const char* advice) {
  const auto translated = [](const char* text) {
    return QCoreApplication::translate("Wrenvale", text).toStdString();
  };
  if (!delegate_ || std::exchange(hasFailed_, true)) return;
  const Call call(*this);
  timeout_.stop();
  delegate_->didFailProvisionalLoad(
      {.description = translated(reason), .advice = translated(advice), .url = text(url)}, true);
}

} // namespace wrenvale::platform
