#include "platform/qt/QtAlerts.h"

#include <functional>

#include <gmock/gmock.h>

#include <QApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include "platform/qt/AlertBox.h"

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

const Alert kOne{.messageText = "Done", .informativeText = "", .defaultButton = "OK"};
const Alert kTwo{.messageText = "Rate <b>it</b>",
                 .informativeText = "100 %",
                 .defaultButton = "Rate",
                 .alternateButton = "No thanks"};
const Alert kThree{.messageText = "Save?",
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
    EXPECT_EQ(QtAlerts().runModal(row.alert, [] {}), row.result) << row.name;
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
  QtAlerts().runModal(kTwo, [] {});
}

std::string textOf(std::size_t size, bool spaces) {
  std::string text(size, 'm');
  for (std::size_t i = 5; spaces && i < size; i += 6)
    text[i] = ' ';
  return text;
}

TEST(QtAlertsTest, KeepsToTheScreenHoweverLongItsTexts) {
  const struct {
    std::size_t message, informative;
    int scrolled;
  } rows[] = {{20, 20, 0}, {20, 3'000, 1}, {20, 15'000, 1}, {15'000, 20, 1}, {9'000, 200'000, 2}};
  for (const auto& row : rows)
    for (const bool spaces : {true, false}) {
      SCOPED_TRACE(testing::Message() << row.message << ' ' << row.informative << ' ' << spaces);
      const Alert alert{.messageText = textOf(row.message, spaces),
                        .informativeText = textOf(row.informative, spaces),
                        .defaultButton = "More",
                        .alternateButton = "Cancel"};
      AlertBox alertBox(alert);
      const QRect available = alertBox.screen()->availableGeometry();
      alertBox.move(available.bottomRight()); // as above a window in the corner
      alertBox.show();
      EXPECT_TRUE(available.contains(alertBox.geometry()));
      for (const auto* button : alertBox.buttons())
        EXPECT_TRUE(
            alertBox.rect().contains(QRect(button->mapTo(&alertBox, QPoint()), button->size())));
      EXPECT_EQ(alertBox.focusWidget(), alertBox.defaultButton());
      EXPECT_EQ(alertBox.findChildren<QPlainTextEdit*>().size(), row.scrolled);
      EXPECT_EQ(alertBox.informativeText().toStdString(), alert.informativeText);
    }
}

} // namespace
} // namespace wrenvale::platform
