#include <wrenvale/CompatMethods.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QColor>
#include <QCoreApplication>
#include <QMessageBox>
#include <QTest>

namespace wrenvale {
namespace {

struct Sheet {
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  std::unique_ptr<QMessageBox> alert = std::make_unique<QMessageBox>();
};

TEST(CompatMethodsTest, ASheetIsAnsweredOnceHoweverItEnds) {
  const struct {
    const char* name;
    std::function<void(Sheet&)> end;
    int code;
  } rows[] = {
      {"button", [](Sheet& sheet) { sheet.alert->button(QMessageBox::Yes)->click(); },
       QMessageBox::Yes},
      {"escape", [](Sheet& sheet) { QTest::keyClick(sheet.alert.get(), Qt::Key_Escape); },
       QMessageBox::Cancel},
      {"window closed", [](Sheet& sheet) { sheet.window->close(); }, 0},
      {"window deleted", [](Sheet& sheet) { sheet.window.reset(); }, 0},
      {"alert deleted", [](Sheet& sheet) { sheet.alert.reset(); }, 0},
      {"twice",
       [](Sheet& sheet) {
         sheet.alert->done(7);
         sheet.alert->show();
         sheet.alert->done(8);
       },
       7},
  };
  for (const auto& row : rows) {
    Sheet sheet;
    std::vector<int> codes;
    sheet.window->show();
    sheet.alert->setStandardButtons(QMessageBox::Yes | QMessageBox::Cancel);
    compatibleBeginSheetModalForWindow(*sheet.alert, sheet.window.get(), [&codes](int code) {
      codes.push_back(code);
      throw std::runtime_error("a handler's own");
    });
    EXPECT_TRUE(sheet.alert->isVisible()) << row.name;
    EXPECT_EQ(sheet.alert->windowModality(), Qt::WindowModal) << row.name;
    EXPECT_THAT(codes, testing::IsEmpty()) << row.name;
    row.end(sheet);
    EXPECT_TRUE(QTest::qWaitFor([&codes] { return !codes.empty(); })) << row.name;
    sheet = {};
    QCoreApplication::sendPostedEvents(nullptr, 0);
    EXPECT_THAT(codes, testing::ElementsAre(row.code)) << row.name;
  }
}

TEST(CompatMethodsTest, ASheetNeedsNeitherWindowNorHandler) {
  QMessageBox alert(QMessageBox::NoIcon, "", "Done", QMessageBox::Ok);
  compatibleBeginSheetModalForWindow(alert, nullptr, nullptr);
  EXPECT_EQ(alert.windowModality(), Qt::ApplicationModal);
  alert.done(0);
}

TEST(CompatMethodsTest, ColoursBecomeTheirComponents) {
  struct {
    QColor color;
    CGColor expected;
  } const rows[] = {
      {QColor(255, 0, 51, 102), {1, 0, 0.2f, 0.4f}},
      {QColor::fromHsvF(1 / 3.0f, 1, 1), {0, 1, 0, 1}},
      {QColor(), {0, 0, 0, 0}},
  };
  for (const auto& [color, expected] : rows) {
    const CGColor actual = compatibleCGColor(color);
    const std::string name = color.name(QColor::HexArgb).toStdString();
    EXPECT_NEAR(actual.red, expected.red, 0.001) << name;
    EXPECT_NEAR(actual.green, expected.green, 0.001) << name;
    EXPECT_NEAR(actual.blue, expected.blue, 0.001) << name;
    EXPECT_NEAR(actual.alpha, expected.alpha, 0.001) << name;
  }
}

} // namespace
} // namespace wrenvale
