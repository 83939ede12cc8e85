#include "rating/KVXRateWindowController.h"

#include <gmock/gmock.h>

#include "platform/fake/FakePlatform.h"

namespace wrenvale {
namespace {

using platform::RateButton;
using platform::RateView;

using Codes = std::vector<std::int64_t>;

class RateWindowController : public testing::Test {
protected:
  RateWindowController() { fake.info = {{"CFBundleName", "Photo Tool"}}; }

  /// Begins a session whose end lets go of its controller.
  platform::FakeRateWindow& begin() {
    controller = std::make_shared<KVXRateWindowController>(
        fake.platform, RateWindowLinks{.openAppstoreForApp = [this] { visit("store "); },
                                       .openSupportWebPage = [this] { visit("support "); }});
    controller->setCompletitionHandler([this](KVXRateWindowController& ended) {
      done += "end ";
      history = ended.rateHistory();
      controller = nullptr;
      if (atEnd) atEnd();
    });
    EXPECT_TRUE(controller->loadWindow());
    controller->window()->makeKeyAndOrderFront();
    return fake.windows.rateWindow();
  }

  /// One character a gesture: l(ike), d(islike), s(tore), c(ontact), x the close button.
  void perform(std::string_view gestures) {
    auto& window = fake.windows.rateWindow();
    for (const char gesture : gestures) {
      if (gesture == 'l') window.press(RateButton::kLike);
      if (gesture == 'd') window.press(RateButton::kDislike);
      if (gesture == 's') window.press(RateButton::kAppstore);
      if (gesture == 'c') window.press(RateButton::kContact);
      if (gesture == 'x') window.pressClose();
    }
  }

  void visit(const char* page) {
    done += page;
    if (atLink) atLink();
  }

  platform::FakePlatform fake;
  std::shared_ptr<KVXRateWindowController> controller;
  std::string done; ///< links followed and ends, in order
  Codes history;    ///< as the session ended
  std::function<void()> atLink;
  std::function<void()> atEnd;
};

TEST_F(RateWindowController, SessionsEndOnceWithWhatTheUserDid) {
  const struct {
    const char* gestures;
    Codes history;
    const char* done;
    RateView last;
  } rows[] = {
      {"ls", {1, 3}, "store end ", RateView::kAppstore},
      {"dc", {2, 4}, "support end ", RateView::kContact},
      // Buttons of a view that is on its way out or not there at all.
      {"ldlx", {1, 0}, "end ", RateView::kAppstore},
      {"dldc", {2, 4}, "support end ", RateView::kContact},
      {"scx", {0}, "end ", RateView::kRate},
      {"dsx", {2, 0}, "end ", RateView::kContact},
      // What comes after the end.
      {"lsxsl", {1, 3}, "store end ", RateView::kAppstore},
      {"xxld", {0}, "end ", RateView::kRate},
  };
  for (const auto& row : rows) {
    done.clear();
    history.clear();
    const auto& window = begin();
    perform(row.gestures);
    EXPECT_EQ(history, row.history) << row.gestures;
    EXPECT_EQ(done, row.done) << row.gestures;
    EXPECT_EQ(window.views.back(), std::pair(row.last, row.last != RateView::kRate))
        << row.gestures;
    EXPECT_FALSE(window.visible) << row.gestures;
    EXPECT_EQ(window.delegate, nullptr) << row.gestures;
  }
}

TEST_F(RateWindowController, TheEndIsNotDisturbedFromWithin) {
  atLink = [&] { perform("xsl"); }; // opening the page runs an event loop of its own
  begin();
  perform("ls");
  EXPECT_EQ(done, "store end ");
  EXPECT_EQ(history, Codes({1, 3}));

  done.clear();
  atLink = nullptr;
  atEnd = [&] { perform("xc"); };
  begin();
  perform("dc");
  EXPECT_EQ(done, "support end ");
  EXPECT_EQ(history, Codes({2, 4}));
}

TEST_F(RateWindowController, TheFaceFollowsThePointer) {
  auto& window = begin();
  std::string faces = window.face;
  const auto note = [&] { faces += " " + window.face; };
  window.hover(RateButton::kDislike), note();
  window.leave(RateButton::kDislike), note();
  window.hover(RateButton::kLike), note();
  window.hover(RateButton::kDislike), note(); // entered before the other is left
  window.leave(RateButton::kLike), note();
  window.leave(RateButton::kDislike), note();
  window.hover(RateButton::kAppstore), note(); // has no face of its own
  EXPECT_EQ(faces, "smile-0 smile-1 smile-0 smile-2 smile-1 smile-1 smile-0 smile-0");
}

TEST_F(RateWindowController, TextsCarryTheTranslatedName) {
  EXPECT_EQ(begin().appName, "Photo Tool");
  fake.application.strings[{"InfoPlist", "CFBundleName"}] = "Fotowerkzeug";
  EXPECT_EQ(begin().appName, "Fotowerkzeug");
  fake.application.strings.clear();
  fake.info.clear();
  EXPECT_EQ(begin().appName, "");
}

} // namespace
} // namespace wrenvale
