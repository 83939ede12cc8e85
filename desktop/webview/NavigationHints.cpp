#include "desktop/webview/NavigationHints.h"

#include "desktop/QtText.h"

extern "C" {
extern const unsigned char wrenvale_page_rules[];
extern const unsigned long wrenvale_page_rules_size;
extern const unsigned char wrenvale_detached_links[];
extern const unsigned long wrenvale_detached_links_size;
}

namespace wrenvale::platform {

namespace {

// How long a hint holds. Without a limit, a link whose click the page handled itself would pass for
// the reason of a later navigation.
constexpr qint64 kLifetime = 1000; // milliseconds

NavigationType typeNamed(QStringView word) {
  if (word == QLatin1String("reload")) return NavigationType::kReload;
  if (word == QLatin1String("traverse")) return NavigationType::kBackForward;
  if (word == QLatin1String("script")) return NavigationType::kOther;
  return NavigationType::kLinkClicked;
}

// A GET form has its data in the query.
QUrl withoutData(const QUrl& url) {
  return url.adjusted(QUrl::RemoveQuery);
}

} // namespace

QString NavigationHints::source() const {
  return fromUTF8(wrenvale_page_rules, wrenvale_page_rules_size).trimmed() + "(\"" + secret_ +
         "\");";
}

QString NavigationHints::pagesSource() {
  return fromUTF8(wrenvale_detached_links, wrenvale_detached_links_size);
}

std::optional<QUrl> NavigationHints::note(const QString& consoleMessage) {
  if (!consoleMessage.startsWith(secret_)) return std::nullopt;
  const auto hint = QStringView(consoleMessage).mid(secret_.size());
  const auto space = hint.indexOf(' ');
  const auto word = hint.left(space);
  const QUrl url = QUrl::fromEncoded(hint.mid(space + 1).toUtf8());
  if (word == QLatin1String("unasked")) return url;
  if (word == QLatin1String("form")) {
    form_ = withoutData(url);
    formAge_.start();
    return std::nullopt;
  }
  form_.clear();
  type_ = typeNamed(word);
  url_ = url;
  age_.start();
  return std::nullopt;
}

bool NavigationHints::isAbout(const QUrl& url) const {
  return age_.isValid() && !age_.hasExpired(kLifetime) && url_ == url;
}

bool NavigationHints::isClickedLink(const QUrl& url) {
  return isAbout(url) && type_ == NavigationType::kLinkClicked;
}

// One hint stands for one sending of the form; later navigations to the same address are something
// else.
bool NavigationHints::takeForm(const QUrl& url) {
  if (form_.isEmpty() || formAge_.hasExpired(kLifetime) || form_ != withoutData(url)) return false;
  form_.clear();
  return true;
}

NavigationType NavigationHints::typeOfNewWindow(const QUrl& url, bool isUsers) {
  if (takeForm(url)) return NavigationType::kFormSubmitted;
  return isUsers || isClickedLink(url) ? NavigationType::kLinkClicked : NavigationType::kOther;
}

NavigationType NavigationHints::typeOf(const QUrl& url, QWebEnginePage::NavigationType engines) {
  switch (engines) {
  case QWebEnginePage::NavigationTypeFormSubmitted:
    return NavigationType::kFormSubmitted;
  case QWebEnginePage::NavigationTypeBackForward:
    return NavigationType::kBackForward;
  case QWebEnginePage::NavigationTypeReload:
    return NavigationType::kReload;
  default:
    return isAbout(url) ? type_ : NavigationType::kOther;
  }
}

} // namespace wrenvale::platform
