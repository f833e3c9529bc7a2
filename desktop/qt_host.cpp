#include "desktop/qt_host.h"

#include <QApplication>
#include <QColorDialog>
#include <QEventLoop>
#include <QFontMetrics>
#include <QImage>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QThread>
#include <cmath>
#include <cstdlib>

#include "desktop/look.h"
#include "desktop/page_window.h"
#include "desktop/speed_bar.h"
#include "forms/application.h"
#include "forms/picture_box.h"

namespace clinorama::desktop {
namespace {

// Showing more pictures in a second than a screen does would only slow the drawing down.
constexpr qint64 MillisecondsToPicture = 16;

}  // namespace

QtHost::QtHost() { sinceFlush_.start(); }

QtHost::~QtHost() {
  for (const auto& [page, window] : windows_) delete window;
}

double QtHost::Density() const { return qApp->devicePixelRatio(); }

void QtHost::Shown(forms::Page& page) {
  PageWindow*& window = windows_[&page];
  if (window == nullptr) window = new PageWindow(page);
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

void QtHost::Hidden(forms::Page& page) {
  if (PageWindow* window = WindowOf(page)) window->hide();
}

// The window may be in the middle of handling an event, so it lives on, hidden and deaf, until
// the event loop is reached.
void QtHost::Unloaded(forms::Page& page) {
  PageWindow* window = WindowOf(page);
  if (window == nullptr) return;
  windows_.erase(&page);
  window->Leave();
  window->deleteLater();
}

PageWindow* QtHost::WindowOf(forms::Control& control) {
  const auto found = windows_.find(&control.OwnerPage());
  return found == windows_.end() ? nullptr : found->second;
}

void QtHost::Changed(forms::Control& control) {
  if (PageWindow* window = WindowOf(control)) window->Synchronise(control);
}

void QtHost::Drawn(forms::PictureBox& picture) {
  if (PageWindow* window = WindowOf(picture)) window->ShowDrawing(picture);
}

void QtHost::Flush(forms::PictureBox& picture) {
  if (sinceFlush_.elapsed() < MillisecondsToPicture) return;
  if (PageWindow* window = WindowOf(picture)) window->ShowDrawingNow(picture);
  sinceFlush_.restart();
}

void QtHost::PaintText(forms::Raster& raster, const forms::TextRun& run) {
  QImage image(reinterpret_cast<uchar*>(raster.Data()), raster.Width(), raster.Height(),
               QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setFont(SurfaceFontFor(run.Font, run.Density));
  painter.setPen(ColorFor(run.Ink));
  painter.drawText(QPoint(run.X, run.Y + painter.fontMetrics().ascent()), TextFor(run.Text));
}

void QtHost::SetFocus(forms::Control& control) {
  if (PageWindow* window = WindowOf(control)) window->Focus(control);
}

void QtHost::MsgBox(const std::string& text, int style, const std::string& title) {
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(TextFor(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(TextFor(text));
  if (style == forms::InformationBox) box.setIcon(QMessageBox::Information);
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
}

std::optional<forms::Color> QtHost::ShowColor(forms::Color now) {
  // The toolkit's own chooser, as a desktop's would not speak Portuguese.
  const QColor color = QColorDialog::getColor(ColorFor(now), QApplication::activeWindow(), {},
                                              QColorDialog::DontUseNativeDialog);
  if (!color.isValid()) return std::nullopt;
  return ColorFrom(color);
}

void QtHost::Sleep(int milliseconds) {
  if (milliseconds > 0) QThread::msleep(static_cast<unsigned long>(milliseconds));
}

void QtHost::DoEvents() {
  QCoreApplication::processEvents();
  while (SpeedBar::AnyHeld()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

// Handlers may stand many levels deep on the stack, so nothing is unwound; the program has
// nothing to save.
void QtHost::End() { std::_Exit(EXIT_SUCCESS); }

}  // namespace clinorama::desktop
