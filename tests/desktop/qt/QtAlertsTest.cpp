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
  const struct {
    const char* name;
    Alert alert;
    std::function<void()> answer;
    int result;
  } rows[] = {
      {"the only button, escape", kOne, escape, kAlertDefaultReturn},
      {"default", kTwo, pressing("Rate"), kAlertDefaultReturn},
      {"return", kTwo, [] { QTest::keyClick(box(), Qt::Key_Return); }, kAlertDefaultReturn},
      {"escape", kTwo, escape, kAlertAlternateReturn},
      {"closed", kTwo, [] { box()->close(); }, kAlertAlternateReturn},
      {"destroyed by the host", kTwo, [] { delete box(); }, kAlertAlternateReturn},
      {"other", kThree, pressing("Discard"), kAlertOtherReturn},
  };
  for (const auto& row : rows) {
    QTimer::singleShot(0, qApp, row.answer);
    EXPECT_EQ(QtWindows("").runModal(row.alert, [] {}), row.result) << row.name;
  }
}

TEST(QtAlertsTest, ShowsTheTextsAsTheyAreWhereTheWindowBegins) {
  AlertBox alertBox(kTwo);
  alertBox.show();
  EXPECT_EQ(alertBox.windowTitle(), "Photo Tool");
  EXPECT_EQ(alertBox.text(), "Rate <b>it</b>");
  EXPECT_EQ(alertBox.defaultButton()->text(), "Rate");
  for (const auto* label : alertBox.findChildren<QLabel*>())
    if (!label->text().isEmpty()) {
      EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
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
