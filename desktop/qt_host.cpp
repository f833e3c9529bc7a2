#include "desktop/qt_host.h"

#include <QApplication>
#include <QColorDialog>
#include <QEventLoop>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QImage>
#include <QMessageBox>
#include <QPainter>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QThread>
#include <QToolTip>
#include <QWindow>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <thread>

#include "desktop/look.h"
#include "desktop/page_window.h"
#include "forms/application.h"
#include "forms/picture_box.h"

namespace clinorama::desktop {
namespace {

// Frames in a second. Some remote screens say that they show none.
constexpr double UsualRate = 60;
constexpr double SlowestRate = 20;

// Letters of a word in a box. A word cannot be broken, and a box must fit the screen.
constexpr int LongestWord = 40;

// How often it is tried to drop the windows that have left their pages.
constexpr int MillisecondsToDropping = 500;

// A name that the user made up may have any length. One that is too long loses its middle. No line
// breaks behind the dots.
QString WithoutLongWords(const QString& text) {
  constexpr int End = LongestWord / 2;
  static const QRegularExpression longWord(
      QStringLiteral("(\\S{%1})\\S{%2,}(\\S{%1})").arg(End).arg(LongestWord - 2 * End + 1));
  return QString(text).replace(longWord, QStringLiteral("\\1…\u2060\\2"));
}

}  // namespace

QtHost::QtHost() {
  // The toolkit's colour chooser keeps the user's own colours in a settings file, which other
  // programs read and write too. Below this place no file can be.
  for (const auto scope : {QSettings::UserScope, QSettings::SystemScope}) {
    QSettings::setPath(QSettings::NativeFormat, scope, QStringLiteral("/dev/null"));
  }
  sinceFlush_.start();
  dropping_.setInterval(MillisecondsToDropping);
  dropping_.callOnTimeout([this] { DropLeftWindows(); });
}

QtHost::~QtHost() = default;

// No window is active at the start, and when a page has just been hidden to show another one.
QScreen& QtHost::Here() const {
  if (const QWidget* window = QApplication::activeWindow()) {
    return *window->screen();
  }
  return leftScreen_ == nullptr ? *QGuiApplication::primaryScreen() : *leftScreen_;
}

double QtHost::Density() const {
  return PageWindow::FitTo(Here()).Zoom * Here().devicePixelRatio();
}

void QtHost::Shown(forms::Page& page) {
  std::unique_ptr<PageWindow>& window = windows_[&page];
  if (window == nullptr) {
    window = std::make_unique<PageWindow>(page, Here());
  } else if (!window->isVisible()) {
    window->FitOnce(Here());
  }
  QToolTip::setFont(window->font());
  QToolTip::setPalette(window->palette());
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

void QtHost::Hidden(forms::Page& page) {
  if (PageWindow* window = WindowOf(page)) {
    leftScreen_ = window->screen();
    window->hide();
  }
}

void QtHost::Unloaded(forms::Page& page) {
  const auto found = windows_.find(&page);
  if (found == windows_.end()) {
    return;
  }
  found->second->Leave();
  left_.push_back(std::move(found->second));
  windows_.erase(found);
  dropping_.start();
}

// A timer calls this, so no widget is in the middle of an event but those below on the stack whose
// handlers wait, or that run an event loop of their own, as an open dialog does.
void QtHost::DropLeftWindows() {
  if (!forms::Application::Current().AtRest() || QThread::currentThread()->loopLevel() > 1) {
    return;
  }
  left_.clear();
  dropping_.stop();
}

PageWindow* QtHost::WindowOf(forms::Control& control) {
  const auto found = windows_.find(&control.OwnerPage());
  return found == windows_.end() ? nullptr : found->second.get();
}

void QtHost::Changed(forms::Control& control) {
  if (PageWindow* window = WindowOf(control)) {
    window->Synchronise(control);
  }
}

void QtHost::Drawn(forms::PictureBox& picture) {
  if (PageWindow* window = WindowOf(picture)) {
    window->ShowDrawing(picture);
  }
}

void QtHost::Flush(forms::PictureBox& picture) {
  PageWindow* window = WindowOf(picture);
  if (window == nullptr) {
    return;
  }
  window->ShowDrawingNow(picture);
  const double rate = window->screen()->refreshRate();
  const double frame = 1e9 / (rate < SlowestRate ? UsualRate : rate);  // nanoseconds
  std::this_thread::sleep_for(
      std::chrono::nanoseconds(std::llround(frame) - sinceFlush_.nsecsElapsed()));
  sinceFlush_.start();
}

void QtHost::PaintText(forms::Raster& raster, const forms::TextRun& run) {
  QImage image(reinterpret_cast<uchar*>(raster.Data()), raster.Width(), raster.Height(),
               QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setFont(SurfaceFontFor(run));
  painter.setPen(ColorFor(run.Ink));
  painter.drawText(QPoint(run.X, run.Y + painter.fontMetrics().ascent()), TextFor(run.Text));
}

void QtHost::SetFocus(forms::Control& control) {
  if (PageWindow* window = WindowOf(control)) {
    window->Focus(control);
  }
}

// Before the window of the page whose handler asks for it, but no child of it: the window may go
// while the dialog is on the stack.
void QtHost::StandBeforeThePage(QDialog& dialog) {
  dialog.setWindowModality(Qt::ApplicationModal);
  dialog.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  forms::Page* page = forms::Application::Current().Running();
  const PageWindow* window = page == nullptr ? nullptr : WindowOf(*page);
  const bool placed = window != nullptr && window->isVisible();
  SetLookOf(dialog, placed ? ZoomOf(*window) : PageWindow::FitTo(Here()).Zoom);
  if (!placed) {
    return;
  }
  dialog.winId();  // makes the window that windowHandle gives
  dialog.windowHandle()->setTransientParent(window->windowHandle());
  dialog.adjustSize();
  dialog.move(window->geometry().center() - dialog.rect().center());
}

void QtHost::MsgBox(const std::string& text, int style, const std::string& title) {
  QMessageBox box;
  box.setWindowTitle(TextFor(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(WithoutLongWords(TextFor(text)));
  if (style == forms::InformationBox) {
    box.setIcon(QMessageBox::Information);
  }
  box.setStandardButtons(QMessageBox::Ok);
  StandBeforeThePage(box);
  // The title bar has buttons and an icon beside the title.
  constexpr int TitleBarExtra = 120;
  const QFontMetrics titleFont(QFontDatabase::systemFont(QFontDatabase::TitleFont));
  auto* lines = qobject_cast<QGridLayout*>(box.layout());
  lines->addItem(new QSpacerItem(titleFont.horizontalAdvance(box.windowTitle()) + TitleBarExtra, 0),
                 lines->rowCount(), 0, 1, lines->columnCount());
  box.exec();
}

std::optional<forms::Color> QtHost::ShowColor(forms::Color now) {
  // The toolkit's own chooser, as a desktop's would not speak Portuguese.
  QColorDialog chooser(ColorFor(now));
  chooser.setOption(QColorDialog::DontUseNativeDialog);
  StandBeforeThePage(chooser);
  if (chooser.exec() != QDialog::Accepted) {
    return std::nullopt;
  }
  return ColorFrom(chooser.selectedColor());
}

void QtHost::Wait(int milliseconds) {
  QCoreApplication::processEvents();
  if (milliseconds <= 0) {
    return;
  }
  bool over = false;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, qApp, [&over] { over = true; });
  while (!over) {
    WaitForEvents();
  }
}

void QtHost::WaitForEvents() { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); }

// Handlers may stand many levels deep on the stack, so nothing is unwound; the program has
// nothing to save.
void QtHost::End() { std::_Exit(EXIT_SUCCESS); }

}  // namespace clinorama::desktop
