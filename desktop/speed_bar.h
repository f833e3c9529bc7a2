#pragma once

#include <QScrollBar>
#include <functional>

class QTimer;

namespace clinorama::desktop {

// A slider with arrows at its ends that tells when the user holds it, by the mouse on the thumb,
// the groove or an arrow, or by a key, and when the user lets go of it.
class SpeedBar : public QScrollBar {
 public:
  SpeedBar(std::function<void(bool held)> onHold, QWidget* parent);

 protected:
  bool event(QEvent* event) override;

 private:
  void Hold(bool held);
  void HoldKey(int key, bool pressed);

  std::function<void(bool held)> onHold_;
  bool held_ = false;
  QTimer* release_;
};

}  // namespace clinorama::desktop
