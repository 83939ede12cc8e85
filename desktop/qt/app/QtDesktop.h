// The host's translations and the desktop's handlers of addresses, through Qt.

#ifndef WRENVALE_DESKTOP_QT_APP_QTDESKTOP_H
#define WRENVALE_DESKTOP_QT_APP_QTDESKTOP_H

#include "desktop/qt/app/OpeningLimit.h"
#include "platform/MainBundle.h"
#include "platform/Workspace.h"

namespace wrenvale::platform {

/// The host's installed translators: Info values in the context "InfoPlist", a table in the context
/// of its name; the source text is the key.
class QtLocalization : public Localization {
public:
  std::optional<std::string> localizedInfoString(std::string_view key) const override;
  std::string localizedStringForKey(std::string_view key, std::string_view table) const override;
};

/// Opens http, https, mailto and the store's addresses; every other scheme is refused, since
/// addresses come from documents and pages and must not run or read anything local. More than five
/// within two seconds are refused as well.
class QtWorkspace : public Workspace {
public:
  bool openURL(std::string_view url) override;

private:
  OpeningLimit limit_;
};

} // namespace wrenvale::platform

#endif
