#include "desktop/qt/app/QtWindows.h"

#include <functional>

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "desktop/qt/alerts/AlertBox.h"

namespace wrenvale::platform {
namespace {

QMessageBox* box() {
  return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

std::function<void()> pressing(const char* label) {
  return [label] {
    for (auto* button : box()->buttons())
      if (button->text() == label) button->click();
  };
}

struct Row {
  const char* name;
  Alert alert;
  std::function<void()> answer;
  int result;
};

const Alert kOne{
    .title = "Photo Tool", .messageText = "Done", .informativeText = "", .defaultButton = "OK"};
const Alert kTwo{.title = "Photo Tool",
                 .messageText = "Rate <b>it</b>",
                 .informativeText = "100 %",
                 .defaultButton = "Rate",
                 .alternateButton = "No thanks"};
const Alert kThree{.title = "Photo Tool",
                   .messageText = "Save?",
                   .informativeText = "",
                   .defaultButton = "Save",
                   .alternateButton = "Cancel",
                   .otherButton = "Discard"};

TEST(QtAlertsTest, AnswersWithTheButtonOrAsClosed) {
  const auto escape = [] { QTest::keyClick(box(), Qt::Key_Escape); };
  const Row rows[] = {
      {"the only button", kOne, pressing("OK"), kAlertDefaultReturn},
      {"the only button, escape", kOne, escape, kAlertDefaultReturn},
      {"default", kTwo, pressing("Rate"), kAlertDefaultReturn},
      {"return", kTwo, [] { QTest::keyClick(box(), Qt::Key_Return); }, kAlertDefaultReturn},
      {"alternate", kTwo, pressing("No thanks"), kAlertAlternateReturn},
      {"escape", kTwo, escape, kAlertAlternateReturn},
      {"closed", kTwo, [] { box()->close(); }, kAlertAlternateReturn},
      {"destroyed by the host", kTwo, [] { delete box(); }, kAlertAlternateReturn},
      {"other", kThree, pressing("Discard"), kAlertOtherReturn},
      {"three, escape", kThree, escape, kAlertAlternateReturn},
  };
  for (const Row& row : rows) {
    QTimer::singleShot(0, qApp, row.answer);
    EXPECT_EQ(QtWindows("").runModal(row.alert, [] {}), row.result) << row.name;
  }
}

TEST(QtAlertsTest, ShowsTheTextsAsTheyAre) {
  QTimer::singleShot(0, qApp, [] {
    EXPECT_EQ(box()->text(), "Rate <b>it</b>");
    EXPECT_EQ(box()->informativeText(), "100 %");
    EXPECT_EQ(box()->textFormat(), Qt::PlainText);
    EXPECT_EQ(box()->defaultButton()->text(), "Rate");
    EXPECT_FALSE(box()->testAttribute(Qt::WA_QuitOnClose));
    box()->close();
  });
  QtWindows("").runModal(kTwo, [] {});
}

TEST(QtAlertsTest, BearTheNameAndBeginWhereTheWindowDoes) {
  AlertBox alertBox(kTwo);
  alertBox.show();
  EXPECT_EQ(alertBox.windowTitle(), "Photo Tool");
  const auto& message = *alertBox.findChild<QLabel*>("qt_msgbox_label");
  EXPECT_TRUE(message.font().bold());
  EXPECT_EQ(message.x(), alertBox.layout()->contentsRect().x()) << "the tests have no icon";
}

TEST(QtAlertsTest, KeepsToTheScreenHoweverLongItsTexts) {
  for (const std::size_t message : {20, 990, 15'000})
    for (const std::size_t informative : {20, 3'000, 200'000})
      for (const char* piece : {"mmmmm ", "m", "\xE6\x97\xA5"}) {
        SCOPED_TRACE(testing::Message() << message << ' ' << informative << ' ' << piece);
        Alert alert = kTwo;
        for (std::size_t i = 0; i < message; ++i)
          alert.messageText += piece;
        for (std::size_t i = 0; i < informative; ++i)
          alert.informativeText += piece;
        AlertBox alertBox(alert);
        const QRect available = alertBox.screen()->availableGeometry();
        alertBox.move(available.bottomRight()); // as above a window in the corner
        alertBox.show();
        EXPECT_TRUE(available.contains(alertBox.geometry()));
        for (const auto* button : alertBox.buttons())
          EXPECT_TRUE(
              alertBox.rect().contains(QRect(button->mapTo(&alertBox, QPoint()), button->size())));
        EXPECT_LE(alertBox.text().size() + alertBox.informativeText().size(), 1'040);
        EXPECT_EQ(alertBox.focusWidget(), alertBox.defaultButton());
      }
}

} // namespace
} // namespace wrenvale::platform
