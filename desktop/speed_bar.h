#pragma once

#include <QElapsedTimer>
#include <QScrollBar>

class QTimer;

namespace clinorama::desktop {

// A slider with arrows at its ends that knows whether the user is holding it: by the mouse on the
// thumb, the groove or an arrow, or by a key. Motions stand still while it is held.
class SpeedBar : public QScrollBar {
 public:
  explicit SpeedBar(QWidget* parent);
  ~SpeedBar() override;

  static bool AnyHeld();

 protected:
  bool event(QEvent* event) override;

 private:
  void Hold(bool held);
  void HoldKey(int key, bool pressed);

  bool held_ = false;
  QTimer* release_;
};

}  // namespace clinorama::desktop
