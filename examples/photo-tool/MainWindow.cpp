#include "MainWindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>

#include <wrenvale/KVXWrenvale.h>

#include "PictureView.h"
#include "RatingMenu.h"
#include "SamplePicture.h"
#include "WelcomeStatus.h"

namespace {

QString applicationName() {
  return QString::fromStdString(KVXWrenvale::sharedInstance().appName());
}

} // namespace

MainWindow::MainWindow()
    : view_(new PictureView)
    , status_(new WelcomeStatus) {
  setCentralWidget(view_);
  status_->setMargin(3);
  statusBar()->addWidget(status_);
  fillFileMenu();
  fillViewMenu();
  menuBar()->addMenu(new RatingMenu(*this));
  fillHelpMenu();
  resize(960, 680);
  closePicture();
}

void MainWindow::fillFileMenu() {
  QMenu* menu = menuBar()->addMenu(tr("&File"));
  menu->addAction(tr("&Open\u2026"), QKeySequence::Open, this, &MainWindow::chooseAndOpen);
  close_ = menu->addAction(tr("&Close"), QKeySequence::Close, this, &MainWindow::closePicture);
  menu->addSeparator();
  menu->addAction(tr("&Quit"), QKeySequence::Quit, qApp, &QCoreApplication::quit);
}

void MainWindow::fillViewMenu() {
  QMenu* menu = menuBar()->addMenu(tr("&View"));
  menu->addAction(tr("Zoom &In"), QKeySequence::ZoomIn, view_, &PictureView::zoomIn);
  menu->addAction(tr("Zoom &Out"), QKeySequence::ZoomOut, view_, &PictureView::zoomOut);
  menu->addAction(tr("&Actual Size"), QKeySequence("Ctrl+0"), view_, &PictureView::actualSize);
}

void MainWindow::fillHelpMenu() {
  QMenu* menu = menuBar()->addMenu(tr("&Help"));
  menu->setObjectName("helpMenu");
  QAction* help = menu->addAction(tr("#app_name &Help"), QKeySequence::HelpContents, this,
                                  &MainWindow::showHelp);
  help->setObjectName("showHelp");
  QAction* about = menu->addAction(tr("&About #app_name"), this, &MainWindow::showAbout);
  about->setObjectName("showAbout");

  helpMenuController_.setMainMenu(menuBar());
  helpMenuController_.setHelpMenu(menu);
  helpMenuController_.awakeFromNib();
}

void MainWindow::open(const QString& file) {
  QImageReader reader(file);
  reader.setAutoTransform(true);
  const QImage picture = reader.read();
  if (picture.isNull()) {
    QMessageBox::warning(this, applicationName(),
                         tr("%1 cannot be opened: %2").arg(file, reader.errorString()));
    return;
  }
  view_->setPicture(picture);
  setWindowTitle(tr("%1 \u2013 %2").arg(QFileInfo(file).fileName(), applicationName()));
  close_->setEnabled(true);
}

void MainWindow::setWelcomeWindowDue(bool due) {
  status_->setDue(due);
}

void MainWindow::chooseAndOpen() {
  const QString file = QFileDialog::getOpenFileName(
      this, tr("Open"), QString(), tr("Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.svg)"));
  if (!file.isEmpty()) open(file);
}

void MainWindow::closePicture() {
  view_->setPicture(samplePicture());
  setWindowTitle(applicationName());
  close_->setEnabled(false);
}

void MainWindow::showHelp() {
  QMessageBox::information(
      this, tr("Help"), tr("File > Open\u2026 shows a picture; View makes it larger or smaller."));
}

void MainWindow::showAbout() {
  QMessageBox::about(this, applicationName(),
                     tr("%1, build %2\nAn example host of Wrenvale, by Brenmoor.")
                         .arg(applicationName())
                         .arg(KVXWrenvale::sharedInstance().bundleVersion()));
}
