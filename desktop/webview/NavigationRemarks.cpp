#include "desktop/webview/NavigationRemarks.h"

#include "desktop/QtText.h"

extern "C" {
extern const unsigned char wrenvale_manners[];
extern const unsigned long wrenvale_manners_size;
extern const unsigned char wrenvale_detached_links[];
extern const unsigned long wrenvale_detached_links_size;
}

namespace wrenvale::platform {

namespace {

// A remark that no navigation followed, such as of a link whose click the page handled itself, is
// not about one that comes later.
constexpr qint64 kLifetime = 1000; // milliseconds

NavigationType typeNamed(QStringView word) {
  if (word == QLatin1String("reload")) return NavigationType::kReload;
  if (word == QLatin1String("traverse")) return NavigationType::kBackForward;
  if (word == QLatin1String("script")) return NavigationType::kOther;
  return NavigationType::kLinkClicked;
}

// Forms that get something have their data in the query.
QUrl withoutData(const QUrl& url) {
  return url.adjusted(QUrl::RemoveQuery);
}

} // namespace

QString NavigationRemarks::source() const {
  return fromUTF8(wrenvale_manners, wrenvale_manners_size).trimmed() + "(\"" + secret_ + "\");";
}

QString NavigationRemarks::pagesSource() {
  return fromUTF8(wrenvale_detached_links, wrenvale_detached_links_size);
}

std::optional<QUrl> NavigationRemarks::note(const QString& consoleMessage) {
  if (!consoleMessage.startsWith(secret_)) return std::nullopt;
  const auto remark = QStringView(consoleMessage).mid(secret_.size());
  const auto space = remark.indexOf(' ');
  const auto word = remark.left(space);
  const QUrl url = QUrl::fromEncoded(remark.mid(space + 1).toUtf8());
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

bool NavigationRemarks::isAbout(const QUrl& url) const {
  return age_.isValid() && !age_.hasExpired(kLifetime) && url_ == url;
}

bool NavigationRemarks::isClickedLink(const QUrl& url) {
  return isAbout(url) && type_ == NavigationType::kLinkClicked;
}

// A form is sent once for a remark; what goes to the same place later is something else.
bool NavigationRemarks::takeForm(const QUrl& url) {
  if (form_.isEmpty() || formAge_.hasExpired(kLifetime) || form_ != withoutData(url)) return false;
  form_.clear();
  return true;
}

NavigationType NavigationRemarks::typeOfNewWindow(const QUrl& url, bool isUsers) {
  if (takeForm(url)) return NavigationType::kFormSubmitted;
  return isUsers || isClickedLink(url) ? NavigationType::kLinkClicked : NavigationType::kOther;
}

NavigationType NavigationRemarks::typeOf(const QUrl& url, QWebEnginePage::NavigationType engines) {
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
