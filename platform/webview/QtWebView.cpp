#include "platform/webview/QtWebView.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace wrenvale::platform {

namespace {

struct Parts {
  QPointer<QWebEngineView> view;
  QPointer<Page> page;
  QPointer<QWebEngineProfile> profile;
};

// Of every view, until they are destroyed.
std::vector<Parts>& existing() {
  static auto& parts = *new std::vector<Parts>;
  return parts;
}

void remember(Parts parts) {
  auto& all = existing();
  all.erase(std::remove_if(all.begin(), all.end(), [](const Parts& each) { return !each.profile; }),
            all.end());
  all.push_back(std::move(parts));
}

QWebEngineProfile* makeProfile() {
  auto* profile = new QWebEngineProfile; // without a name it is off the record
  profile->setHttpCacheType(QWebEngineProfile::NoCache);
  profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
  profile->setSpellCheckEnabled(false);
  return profile;
}

QString fromUTF8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

QtWebView::QtWebView(WebViewDelegate& delegate)
    : profile_(makeProfile())
    , page_(new Page(*profile_, delegate))
    , view_(new QWebEngineView(page_.data())) {
  view_->setContextMenuPolicy(Qt::PreventContextMenu);
  view_->setAcceptDrops(false);
  QObject::connect(page_, &QObject::destroyed, profile_, &QObject::deleteLater);
  remember({.view = view_, .page = page_, .profile = profile_});
}

QtWebView::~QtWebView() {
  close();
}

void QtWebView::setApplicationNameForUserAgent(std::string_view name) {
  if (profile_) profile_->setHttpUserAgent(profile_->httpUserAgent() + ' ' + fromUTF8(name));
}

void QtWebView::loadRequest(std::string_view url, std::chrono::milliseconds timeout) {
  if (page_) page_->start(QUrl(fromUTF8(url)), timeout);
}

void QtWebView::setScriptObject(std::string_view name, const std::vector<ScriptMethod>& methods) {
  if (page_) page_->scriptObject().publish(name, methods);
}

bool QtWebView::hasScriptObject() const {
  return page_ && page_->scriptObject().isPublished();
}

void QtWebView::callWebScriptMethod(std::string_view name, const std::vector<Value>& arguments) {
  if (page_) page_->runJavaScript(scriptCalling(name, arguments));
}

// The view goes first: it has no use for a page that is on its way out.
void QtWebView::close() {
  if (view_) view_->deleteLater();
  if (page_) page_->retire();
}

void QtWebView::endAll() {
  for (const auto& parts : std::exchange(existing(), {})) {
    delete parts.view;
    delete parts.page;
    delete parts.profile;
  }
}

} // namespace wrenvale::platform
