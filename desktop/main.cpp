#include <QApplication>
#include <QFontMetrics>
#include <cstdio>
#include <cstdlib>

#include "desktop/look.h"
#include "desktop/program.h"
#include "desktop/qt_host.h"
#include "forms/application.h"
#include "shell/Form2.h"
#include "shell/version.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// The program has nothing to save and its handlers may stand deep on the stack, so it ends as it
// is.
[[noreturn]] void GiveUp(const char* sentence) {
  std::fprintf(stderr, "Clinorama: %s\n", sentence);
  std::_Exit(EXIT_FAILURE);
}

// The toolkit's own words are for programmers, and in English.
void TellOfTheDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  const bool started = qApp != nullptr && !QCoreApplication::startingUp();
  if (started && text.contains(QLatin1String("connection broke"))) {
    GiveUp("a ligação ao ecrã perdeu-se.");
  }
  if (type == QtFatalMsg && !started) {
    GiveUp("não há ecrã onde abrir as janelas. Inicie o programa num ambiente gráfico.");
  }
  if (type == QtFatalMsg) {
    GiveUp(qPrintable(text));
  }
  if (started) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
  }
}

// Pictures are large on a large screen: their memory goes back as soon as they are dropped. By
// itself the allocator begins to keep such blocks for later ones after a while.
void GiveMemoryBack() {
#ifdef __GLIBC__
  constexpr int LargeBlock = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, LargeBlock);
#endif
}

// Pages have their places on the screen, and are as large as the panels there leave room for. A
// Wayland compositor tells a program of neither; the X server beside it does.
void PreferX() {
  if (qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  GiveMemoryBack();
  PreferX();
  qInstallMessageHandler(TellOfTheDisplay);
  clinorama::desktop::Program qt(argc, argv);
  QApplication::setApplicationVersion(QString::fromLatin1(clinorama::Version));
  clinorama::desktop::SetLook();
  if (!QFontMetrics(QApplication::font()).inFont('a')) {
    GiveUp("não há tipos de letra instalados. Instale, por exemplo, o pacote fonts-dejavu-core.");
  }
  clinorama::desktop::QtHost host;
  clinorama::forms::Application application(host);
  clinorama::forms::The<clinorama::Form2>().Show();
  return QApplication::exec();
}
