#include "desktop/surface_view.h"

#include <QImage>
#include <QMetaObject>
#include <QPaintEvent>
#include <QPainter>

#include "desktop/look.h"
#include "forms/picture_box.h"

namespace clinorama::desktop {

SurfaceView::SurfaceView(forms::PictureBox& picture, QWidget* parent)
    : QWidget(parent), picture_(picture) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  // What was drawn before there was a view is painted when the view first appears; from now on
  // the surface tells of each change.
  picture_.TakeDirty();
}

void SurfaceView::ShowSoon() {
  QMetaObject::invokeMethod(
      this, [this] { update(TakeChanged()); }, Qt::QueuedConnection);
}

void SurfaceView::ShowNow() { repaint(TakeChanged()); }

// The surface's pixels to one of the toolkit's.
double SurfaceView::Ratio() const { return picture_.Density() / ZoomOf(*this); }

// In the toolkit's pixels, with whatever a pixel of the surface touches of them, scaled or not.
QRect SurfaceView::TakeChanged() {
  const forms::PixelRect rect = picture_.TakeDirty();
  if (rect.Empty()) {
    return {};
  }
  const double ratio = Ratio();
  return QRectF(rect.X / ratio, rect.Y / ratio, rect.Width / ratio, rect.Height / ratio)
      .toAlignedRect()
      .adjusted(-1, -1, 1, 1);
}

void SurfaceView::paintEvent(QPaintEvent* event) {
  const forms::Raster& raster = picture_.Screen();
  QImage image(reinterpret_cast<const uchar*>(raster.Data()), raster.Width(), raster.Height(),
               QImage::Format_RGB32);
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setClipRegion(event->region());
  // In whole pixels the view may be a trifle larger than the raster.
  const QSizeF shown = QSizeF(image.size()) / Ratio();
  const QColor ground = ColorFor(picture_.BackColor());
  painter.fillRect(QRectF(shown.width() - 1, 0, width(), height()), ground);
  painter.fillRect(QRectF(0, shown.height() - 1, width(), height()), ground);
  painter.scale(1 / Ratio(), 1 / Ratio());
  painter.drawImage(0, 0, image);
}

}  // namespace clinorama::desktop
