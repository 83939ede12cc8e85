// A spinning wheel, for work of unknown length.

#ifndef WRENVALE_DESKTOP_QT_RECOMMENDER_PROGRESSINDICATOR_H
#define WRENVALE_DESKTOP_QT_RECOMMENDER_PROGRESSINDICATOR_H

#include <QBasicTimer>
#include <QWidget>

namespace wrenvale::platform {

/// Spins while it can be seen, and stands still on a desktop that wants no animations. Main thread
/// only.
class ProgressIndicator final : public QWidget {
public:
  explicit ProgressIndicator(QWidget* parent = nullptr);

  QSize sizeHint() const override { return {32, 32}; }

protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  QBasicTimer timer_;
  int step_ = 0;
};

} // namespace wrenvale::platform

#endif
