#include "platform/qt/QtAlerts.h"

#include <functional>

#include <gmock/gmock.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

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
    EXPECT_EQ(QtAlerts().runModal(row.alert), row.result) << row.name;
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
  QtAlerts().runModal(kTwo);
}

} // namespace
} // namespace wrenvale::platform
