#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <wrenvale/KVXWrenvale.h>
#include <wrenvale/KVXWrenvaleController.h>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  KVXWrenvaleController menus;
  menus.setMainMenu(window.menuBar());
  menus.setHelpMenu(window.menuBar()->addMenu("&Help"));
  menus.awakeFromNib();
  window.show();
  KVXWrenvale::sharedInstance().triggerWelcomeWindow();
  return application.exec();
}
