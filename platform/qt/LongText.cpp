#include "platform/qt/LongText.h"

#include <algorithm>
#include <cmath>

#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextLayout>
#include <QVBoxLayout>

namespace wrenvale::platform {

namespace {

// Lines this wide read well; a box has them beside its icon without getting wider than it may.
constexpr int kLineWidth = 400;
// Longer than any screen shows, and as much as is measured without the user noticing.
constexpr int kMeasured = 5'000;
// A word's lines take time that grows with the square of its length: 0.1 s for one of this length.
constexpr int kShown = 50'000;
constexpr auto kWrapMode = QTextOption::WrapAtWordBoundaryOrAnywhere;

// Where a box will come up is known too late, so its texts fit any screen.
QSize smallestScreen() {
  QSize size(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  for (const auto* screen : QGuiApplication::screens())
    size = size.boundedTo(screen->availableSize());
  return size;
}

QSize wrapped(const QLabel& label, int width) {
  return QFontMetrics(label.font())
      .boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), Qt::TextWordWrap,
                    label.text().left(kMeasured))
      .size();
}

QString shown(const QString& text) {
  return text.size() > kShown ? text.left(kShown) + QChar(0x2026) : text;
}

// Whole lines of at most `height` pixels, and the one more without which a view of them scrolls.
int heightOfLines(const QLabel& label, int width, int height) {
  const QString text = label.text().left(kMeasured).replace('\n', QChar::LineSeparator);
  QTextLayout layout(text, label.font());
  QTextOption option;
  option.setWrapMode(kWrapMode);
  layout.setTextOption(option);
  layout.beginLayout();
  for (auto line = layout.createLine(); line.isValid(); line = layout.createLine())
    line.setLineWidth(width);
  layout.endLayout();
  const int line = std::max(1, static_cast<int>(std::ceil(layout.lineAt(0).height())));
  return std::clamp(height / line, 1, std::max(1, layout.lineCount())) * line + 1;
}

// Looks as the label does.
QPlainTextEdit* view(const QLabel& label) {
  auto* view = new QPlainTextEdit(shown(label.text()));
  view->setFont(label.font());
  view->setReadOnly(true);
  view->setTabChangesFocus(true);
  view->setTextInteractionFlags(Qt::TextSelectableByMouse); // so the arrow keys scroll
  view->setWordWrapMode(kWrapMode);
  view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view->setFrameShape(QFrame::NoFrame);
  view->viewport()->setAutoFillBackground(false);
  view->document()->setDocumentMargin(0);
  return view;
}

void putInPlaceOf(QLabel& label, QWidget* view) {
  auto* place = new QWidget(label.parentWidget());
  auto* layout = new QVBoxLayout(place);
  layout->setContentsMargins(label.contentsMargins());
  layout->addWidget(view);
  delete label.parentWidget()->layout()->replaceWidget(&label, place);
  label.hide();
}

} // namespace

void scrollWhenLong(QLabel& label, double share) {
  const QSize screen = smallestScreen();
  const int width = std::min(kLineWidth, screen.width() / 2);
  const int height = static_cast<int>(screen.height() * share);
  const QSize words = wrapped(label, width);
  if (words.width() <= width && words.height() <= height && label.text().size() <= kMeasured)
    return;
  auto* scrolled = view(label);
  scrolled->setMinimumWidth(width);
  scrolled->setFixedHeight(heightOfLines(label, width, height));
  putInPlaceOf(label, scrolled);
}

} // namespace wrenvale::platform
