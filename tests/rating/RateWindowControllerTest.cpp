#include "rating/KVXRateWindowController.h"

#include <gmock/gmock.h>

#include "platform/fake/FakePlatform.h"

namespace wrenvale {
namespace {

using platform::RateButton;
using platform::RateView;
using testing::ElementsAre;
using testing::Pair;

using Codes = std::vector<std::int64_t>;

class RateWindowController : public testing::Test {
protected:
  /// Begins a session whose end lets go of its controller.
  platform::FakeRateWindow& begin() {
    done.clear();
    controller = std::make_shared<KVXRateWindowController>(
        fake.platform, RateWindowLinks{.openAppstoreForApp = [this] { note("store "); },
                                       .openSupportWebPage = [this] { note("support "); }});
    controller->setCompletitionHandler([this](KVXRateWindowController& ended) {
      history = ended.rateHistory();
      controller = nullptr;
      note("end ");
    });
    EXPECT_TRUE(controller->loadWindow());
    controller->window()->makeKeyAndOrderFront();
    return fake.windows.rateWindow();
  }

  /// One character a gesture: l(ike), d(islike), s(tore), c(ontact), x the close button.
  void perform(std::string_view gestures) {
    const std::map<char, RateButton> buttons = {{'l', RateButton::kLike},
                                                {'d', RateButton::kDislike},
                                                {'s', RateButton::kAppstore},
                                                {'c', RateButton::kContact}};
    auto& window = fake.windows.rateWindow();
    for (const char gesture : gestures)
      gesture == 'x' ? window.pressClose() : window.press(buttons.at(gesture));
  }

  void note(const char* what) {
    done += what;
    if (meanwhile) meanwhile();
  }

  platform::FakePlatform fake;
  std::shared_ptr<KVXRateWindowController> controller;
  std::string done;                ///< links followed and ends, in order
  Codes history;                   ///< as the session ended
  std::function<void()> meanwhile; ///< within a link or the end
};

TEST_F(RateWindowController, SessionsEndOnceWithWhatTheUserDid) {
  const struct {
    const char* gestures;
    Codes history;
    const char* done;
    RateView last;
  } rows[] = {
      {"lx", {1, 0}, "end ", RateView::kAppstore},
      // Buttons of a view that is on its way out or not there at all.
      {"dldc", {2, 4}, "support end ", RateView::kContact},
      {"scx", {0}, "end ", RateView::kRate},
      {"lcds", {1, 3}, "store end ", RateView::kAppstore},
      {"dsx", {2, 0}, "end ", RateView::kContact},
      // What comes after the end.
      {"lsxsl", {1, 3}, "store end ", RateView::kAppstore},
      {"xxld", {0}, "end ", RateView::kRate},
  };
  for (const auto& row : rows) {
    const auto& window = begin();
    perform(row.gestures);
    EXPECT_EQ(history, row.history) << row.gestures;
    EXPECT_EQ(done, row.done) << row.gestures;
    EXPECT_EQ(window.views.back().first, row.last) << row.gestures;
    EXPECT_FALSE(window.visible) << row.gestures;
    EXPECT_EQ(window.delegate, nullptr) << row.gestures;
  }
}

TEST_F(RateWindowController, TheEndIsNotDisturbedFromWithin) {
  meanwhile = [&] { perform("xsl"); }; // in an event loop of the link's or the handler's own
  begin();
  perform("ls");
  EXPECT_EQ(done, "store end ");
  EXPECT_EQ(history, Codes({1, 3}));
}

TEST_F(RateWindowController, TheFaceFollowsThePointer) {
  auto& window = begin();
  std::string faces;
  const auto note = [&] { faces += window.face.back(); };
  note();
  window.hover(RateButton::kDislike), note();
  window.leave(RateButton::kDislike), note();
  window.hover(RateButton::kLike), note();
  window.hover(RateButton::kDislike), note(); // entered before the other is left
  window.leave(RateButton::kLike), note();
  window.leave(RateButton::kDislike), note();
  EXPECT_EQ(faces, "0102110");
}

TEST_F(RateWindowController, PushesLaterViewsAndKeepsTheDateOfItsBegin) {
  EXPECT_EQ(begin().appName, "");
  fake.application.strings[{"InfoPlist", "CFBundleName"}] = "Fotowerkzeug";
  const auto& window = begin();
  const auto begun = fake.system.time;
  fake.system.advance(std::chrono::hours(1));
  perform("l");
  EXPECT_EQ(window.appName, "Fotowerkzeug");
  EXPECT_THAT(window.views,
              ElementsAre(Pair(RateView::kRate, false), Pair(RateView::kAppstore, true)));
  EXPECT_EQ(controller->date(), begun);
}

} // namespace
} // namespace wrenvale
