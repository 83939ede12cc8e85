// Fills a host's Help menu with the maker's items, and the host's name into its menus.
//
// A host makes one controller beside its main window, as a value or a subclass, hands it its menus
// and calls awakeFromNib() once they are complete:
//
//     controller.setMainMenu(menuBar());
//     controller.setHelpMenu(helpMenu);
//     controller.awakeFromNib();
//
// Main thread only, but for the two images. The host keeps owning its menus and may delete them
// before or after the controller. Nothing is reported: a menu that is missing or gone is left out.
//
// Titles are looked up in the host's translations, context "Wrenvale", with the English text as the
// source; "&" in a translation marks an access key, as in any title of Qt's. The name of the host
// is "CFBundleName", translated in the context "InfoPlist".

#ifndef WRENVALE_KVXWRENVALECONTROLLER_H
#define WRENVALE_KVXWRENVALECONTROLLER_H

#include <memory>
#include <mutex>

#include <wrenvale/Export.h>

class QImage;
class QMenu;
class QMenuBar;
class QObject;

namespace wrenvale {

class Service;

class WRENVALE_EXPORT KVXWrenvaleController {
public:
  KVXWrenvaleController();
  /// The items that it added stay, and go on doing what the actions below do by themselves.
  virtual ~KVXWrenvaleController();

  KVXWrenvaleController(const KVXWrenvaleController&) = delete;
  KVXWrenvaleController& operator=(const KVXWrenvaleController&) = delete;

  /// The menu bar in whose menus "#app_name" stands for the host's name; null for none.
  void setMainMenu(QMenuBar* mainMenu);
  /// The Help menu, as a rule one of the menu bar's; null for none.
  void setHelpMenu(QMenu* helpMenu);

  /// Appends to the Help menu, each group after a separator: "Rate on Mac App Store"; "Subscribe to
  /// Newsletter", "Follow on Twitter", "More Apps by Brenmoor"; "Support"; "Visit" with the name of
  /// the maker's web site. Before them comes "<host> Help" with the key Ctrl+?, unless the menu has
  /// an item for the host's own help: one with the object name "showHelp", or with the desktop's
  /// standard key for help.
  ///
  /// Then replaces "#app_name" by the host's name in the titles of all items of the menu bar's
  /// menus, not in menus inside of those; nothing else about the host's items changes. In a host
  /// without a name nothing takes its place.
  ///
  /// To be called once: every call adds all items.
  virtual void awakeFromNib();

  // What the items do; `sender` is the item chosen, and may be null. The items' object names are
  // these names. In a subclass the items call what it overrides. What such a function throws is
  // dropped when an item calls it.

  virtual void rateOnMacAppStoreAction(QObject* sender);     ///< KVXWrenvale::rateApp()
  virtual void openSupportWebPageAction(QObject* sender);    ///< openSupportWebPage()
  virtual void openKVXWebPageAction(QObject* sender);        ///< openKVXWebPage()
  virtual void openGeneralSupportAction(QObject* sender);    ///< openGeneralSupport()
  virtual void followOnTwitterAction(QObject* sender);       ///< followOnTwitter()
  virtual void subscribeToNewsLetterAction(QObject* sender); ///< subscribeToNewsletter()
  virtual void moreAppsAction(QObject* sender);              ///< moreApps()

  // Two images for the host's own use; the controller shows neither. Null at first. Any thread.

  QImage twitterIcon() const;
  void setTwitterIcon(const QImage& twitterIcon);
  QImage kvxLogo() const;
  void setKvxLogo(const QImage& kvxLogo);

protected:
  /// The framework's own: over another service than the shared one.
  explicit KVXWrenvaleController(Service& service)
      : _service(service) {}

private:
  struct Menus;

  Service& _service;
  std::shared_ptr<Menus> _menus; ///< once there is one

  mutable std::mutex _imagesMutex;
  std::shared_ptr<const QImage> _twitterIcon;
  std::shared_ptr<const QImage> _kvxLogo;
};

} // namespace wrenvale

using wrenvale::KVXWrenvaleController;

#endif
