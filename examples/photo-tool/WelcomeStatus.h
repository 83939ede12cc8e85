// What Wrenvale knows, as a line for the status bar.

#ifndef PHOTO_TOOL_WELCOMESTATUS_H
#define PHOTO_TOOL_WELCOMESTATUS_H

#include <QCoreApplication>
#include <QLabel>

#include <wrenvale/UserDefaults.h>

/// Name, build, and whether the welcome window is due; follows the maker's server when it asks for
/// the window later in the run.
class WelcomeStatus : public QLabel {
  Q_DECLARE_TR_FUNCTIONS(WelcomeStatus)

public:
  explicit WelcomeStatus(QWidget* parent = nullptr);
  ~WelcomeStatus() override;

  void setDue(bool due);

private:
  UserDefaults::ObserverID observer_;
};

#endif
