// How fast the tangent runs along a graph when the speed bar is at its right end, in a visible
// window. Run it on a display:
//
//   scripts/with_display build/release/benchmarks/sweep_benchmark

#include <QApplication>
#include <QElapsedTimer>
#include <QWidget>
#include <cstdio>

#include "desktop/look.h"
#include "desktop/qt_host.h"
#include "forms/application.h"
#include "workpage/Form12.h"

namespace {

// Counts the steps of a motion, each of which lets events run once.
class CountingHost : public clinorama::desktop::QtHost {
 public:
  void Wait(int milliseconds) override {
    ++Steps;
    QtHost::Wait(milliseconds);
  }
  int Steps = 0;
};

class PaintCounter : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    Paints += event->type() == QEvent::Paint;
    return false;
  }
  int Paints = 0;
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication qt(argc, argv);
  clinorama::desktop::SetLook();
  CountingHost host;
  clinorama::forms::Application application(host);
  auto& page = clinorama::forms::The<clinorama::Form12>();
  page.Show();
  QElapsedTimer settling;  // the window manager's work is not what is measured
  for (settling.start(); settling.elapsed() < 500;) {
    QCoreApplication::processEvents();
  }

  PaintCounter paints;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* canvas = window->findChild<QWidget*>("Picture1")) {
      canvas->installEventFilter(&paints);
    }
  }
  QElapsedTimer timer;
  timer.start();
  page.DesenharGráfico.UserClick();
  std::printf("plot of %s: %lld ms\n", page.Função1.Text().c_str(),
              static_cast<long long>(timer.elapsed()));

  page.HScroll1.Value = 0;
  host.Steps = 0;
  paints.Paints = 0;
  timer.start();
  page.Calcular.UserClick();
  const double seconds = static_cast<double>(timer.elapsed()) / 1000;
  std::printf("sweep: %d passes in %.2f s, %.0f passes and %.0f pictures a second\n", host.Steps,
              seconds, host.Steps / seconds, paints.Paints / seconds);
  return 0;
}
