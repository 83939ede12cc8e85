// Photo Tool's one window: a picture, the menus, and a status bar.

#ifndef PHOTO_TOOL_MAINWINDOW_H
#define PHOTO_TOOL_MAINWINDOW_H

#include <QCoreApplication>
#include <QMainWindow>

#include <wrenvale/KVXWrenvaleController.h>

class PictureView;
class WelcomeStatus;

class MainWindow : public QMainWindow {
  Q_DECLARE_TR_FUNCTIONS(MainWindow)

public:
  MainWindow();

  /// Opens the picture; shows an alert and keeps the present one when it cannot be read.
  void open(const QString& file);

  /// Says in the status bar whether the welcome window is due.
  void setWelcomeWindowDue(bool due);

private:
  void fillFileMenu();
  void fillViewMenu();
  void fillHelpMenu();
  void chooseAndOpen();
  void closePicture();
  void showHelp();
  void showAbout();

  PictureView* view_;
  WelcomeStatus* status_;
  KVXWrenvaleController helpMenuController_;
  QAction* close_ = nullptr;
};

#endif
