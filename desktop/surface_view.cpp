#include "desktop/surface_view.h"

#include <QImage>
#include <QMetaObject>
#include <QPaintEvent>
#include <QPainter>

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

// In logical pixels, with whatever a device pixel touches of them.
QRect SurfaceView::TakeChanged() {
  const forms::PixelRect rect = picture_.TakeDirty();
  if (rect.Empty()) {
    return {};
  }
  const double density = picture_.Density();
  return QRectF(rect.X / density, rect.Y / density, rect.Width / density, rect.Height / density)
      .toAlignedRect();
}

void SurfaceView::paintEvent(QPaintEvent* event) {
  const forms::Raster& raster = picture_.Screen();
  QImage image(reinterpret_cast<const uchar*>(raster.Data()), raster.Width(), raster.Height(),
               QImage::Format_RGB32);
  image.setDevicePixelRatio(picture_.Density());
  QPainter painter(this);
  painter.setClipRegion(event->region());
  painter.drawImage(QPointF(0, 0), image);
}

}  // namespace clinorama::desktop
