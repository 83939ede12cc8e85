#include "RateWindowFixture.h"

#include <QFontInfo>
#include <QLabel>
#include <QTranslator>

namespace wrenvale::platform {
namespace {

class QtRateWindowLooksTest : public RateWindowFixture {
protected:
  QImage picture() { return widget()->grab().toImage(); }
  QImage face() { return widget()->grab(outlet("imageView").geometry()).toImage(); }
};

TEST_F(QtRateWindowLooksTest, EachMoodHasAFaceAndAMissingOneShowsNothing) {
  open();
  const QImage neutral = face();
  window_->showImage("smile-1");
  const QImage dislike = face();
  window_->showImage("smile-2");
  const QImage like = face();
  EXPECT_TRUE(neutral != dislike && dislike != like && like != neutral);
  EXPECT_EQ(outlet("imageView").accessibleName(), "Happy face");

  window_->showImage("smile-5");
  const QImage blank = face();
  QImage white = blank;
  white.fill(Qt::white);
  EXPECT_EQ(blank, white);
  EXPECT_EQ(outlet("imageView").accessibleName(), "");
}

TEST_F(QtRateWindowLooksTest, NoPaletteOrStyleSheetOfTheHostsChangesAnything) {
  QWidget parent;
  openOver(parent);
  const QImage without = picture();
  const QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(50, 50, 54), QColor(30, 30, 32)));
  EXPECT_EQ(picture(), without);
  QApplication::setPalette(before);
  for (const char* sheet :
       {"QPushButton { min-width: 80px; text-decoration: underline; }",
        "* { padding: 9px; font: bold 20pt; min-height: 50px; max-width: 90px; }",
        "QLabel { background: red; } QWidget { border: 3px solid red; margin: 8px; }"}) {
    qApp->setStyleSheet(sheet);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(picture(), without) << sheet;
    qApp->setStyleSheet({});
  }
}

TEST_F(QtRateWindowLooksTest, TextsAreInItsFontAndGrowWithTheHosts) {
  open();
  EXPECT_EQ(QFontInfo(outlet("likeButton").font()).family(), "Droid Sans");
  const QFont usual = QApplication::font();
  const QSize size = widget()->size();
  QFont larger = usual;
  for (const auto& [points, grows] : {std::pair{8.0, false}, {22.0, true}, {500.0, true}}) {
    larger.setPointSizeF(points);
    QApplication::setFont(larger);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(widget()->height() > size.height() + 100, grows) << points;
    EXPECT_LT(widget()->height(), 2 * size.height()) << points;
  }
  QApplication::setFont(usual);
}

TEST_F(QtRateWindowLooksTest, ItsBorderIsEvenAtEveryScale) {
  QWidget parent;
  openOver(parent);
  for (const double scale : {1.0, 1.5, 2.0}) {
    QImage image((QSizeF(widget()->size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget()->render(&image);
    const QSize last = image.size() - QSize(1, 1);
    for (int inside = 0; inside < 4; ++inside) {
      const QRgb left = image.pixel(inside, last.height() / 2);
      EXPECT_EQ(left, image.pixel(last.width() - inside, last.height() / 2)) << scale;
      EXPECT_EQ(left, image.pixel(last.width() / 3, inside)) << scale;
      EXPECT_EQ(left, image.pixel(last.width() / 3, last.height() - inside)) << scale;
    }
    EXPECT_NE(image.pixel(0, 9), image.pixel(4, 9)) << scale;
  }
}

TEST_F(QtRateWindowLooksTest, EveryStateOfAButtonLooksDifferent) {
  const std::pair<const char*, std::function<void(QPushButton&)>> states[] = {
      {"hover", [](QPushButton& button) { button.setAttribute(Qt::WA_UnderMouse); }},
      {"pressed", [](QPushButton& button) { button.setDown(true); }},
      {"focus", [](QPushButton& button) { button.setFocus(Qt::TabFocusReason); }},
      {"disabled", [](QPushButton& button) { button.setEnabled(false); }},
  };
  open();
  for (const char* name : {"likeButton", "dislikeButton"}) {
    auto& button = static_cast<QPushButton&>(outlet(name));
    std::vector<QImage> seen = {button.grab().toImage()};
    for (const auto& [state, enter] : states) {
      enter(button);
      const auto image = button.grab().toImage();
      EXPECT_EQ(std::count(seen.begin(), seen.end(), image), 0) << name << ' ' << state;
      seen.push_back(image);
      button.setAttribute(Qt::WA_UnderMouse, false);
      button.setDown(false);
      button.setEnabled(true);
      widget()->setFocus();
    }
  }
}

// A language that says everything three times.
class LongTranslator final : public QTranslator {
public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char*, int) const override {
    const bool ours = QLatin1String(context) == "Wrenvale";
    return ours ? QString(source + QLatin1Char(' ')).repeated(3) : "";
  }
};

TEST_F(QtRateWindowLooksTest, GrowsWithItsTexts) {
  LongTranslator translator;
  QWidget parent;
  openOver(parent);
  const QSize english = widget()->size();
  QCoreApplication::installTranslator(&translator);
  QCoreApplication::sendPostedEvents();
  QTest::qWait(0);
  EXPECT_GT(widget()->width(), english.width());
  EXPECT_EQ(widget()->windowTitle().trimmed(), "Rate Photo Tool Rate Photo Tool Rate Photo Tool");
  for (const auto view : {RateView::kRate, RateView::kAppstore, RateView::kContact}) {
    window_->setView(view, false);
    for (const auto* text : widget()->findChildren<QWidget*>()) {
      if (!text->isVisible()) continue;
      const std::string name = text->objectName().toStdString();
      if (qobject_cast<const QPushButton*>(text)) {
        EXPECT_GE(text->width(), text->sizeHint().width()) << name;
      }
      if (qobject_cast<const QLabel*>(text)) {
        EXPECT_GE(text->height(), text->heightForWidth(text->width())) << name;
      }
    }
  }
  QCoreApplication::removeTranslator(&translator);
}

} // namespace
} // namespace wrenvale::platform
