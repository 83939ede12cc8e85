// The tests run beside the event loop of an application object, as background threads do in a host.

#include <gmock/gmock.h>

#include <thread>

#include <QCoreApplication>

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  testing::InitGoogleMock(&argc, argv);
  int result = 1;
  std::thread tests([&] {
    result = RUN_ALL_TESTS();
    QMetaObject::invokeMethod(&application, &QCoreApplication::quit, Qt::QueuedConnection);
  });
  QCoreApplication::exec();
  tests.join();
  return result;
}
