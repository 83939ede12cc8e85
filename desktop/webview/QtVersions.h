// What the releases of Qt, from 6.4 on, have each in a way of its own. No other file of this folder
// asks which release it is.

#ifndef WRENVALE_DESKTOP_WEBVIEW_QTVERSIONS_H
#define WRENVALE_DESKTOP_WEBVIEW_QTVERSIONS_H

#include <QWebEnginePage>

#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0)
#include <QWebEngineQuotaRequest>
#endif
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include <QWebEnginePermission>
#endif

namespace wrenvale::platform {

/// Denies the page all that needs a permission: the camera, the place, notifications and such.
inline void denyPermissions(QWebEnginePage& page) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QObject::connect(&page, &QWebEnginePage::permissionRequested, &page,
                   [](const QWebEnginePermission& request) { request.deny(); });
#else
  QObject::connect(&page, &QWebEnginePage::featurePermissionRequested, &page,
                   [&page](const QUrl& origin, QWebEnginePage::Feature feature) {
                     page.setFeaturePermission(origin, feature,
                                               QWebEnginePage::PermissionDeniedByUser);
                   });
#endif
#if QT_VERSION < QT_VERSION_CHECK(6, 5, 0) // later engines give no page more room
  QObject::connect(&page, &QWebEnginePage::quotaRequested, &page,
                   [](QWebEngineQuotaRequest request) { request.reject(); });
#endif
}

} // namespace wrenvale::platform

#endif
