#pragma once

#include <QWidget>

namespace clinorama::forms {
class PictureBox;
}

namespace clinorama::desktop {

// Shows the screen picture of a surface, pixel by pixel. Only one that was too long to be
// remembered is scaled when its page comes to another screen.
class SurfaceView : public QWidget {
 public:
  SurfaceView(forms::PictureBox& picture, QWidget* parent);

  // Lets the changed part be painted when the event loop next runs, together with what is drawn
  // until then; or at once.
  void ShowSoon();
  void ShowNow();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double Ratio() const;
  QRect TakeChanged();

  forms::PictureBox& picture_;
};

}  // namespace clinorama::desktop
