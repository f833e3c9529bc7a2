#include <QApplication>

#include "desktop/look.h"
#include "desktop/qt_host.h"
#include "forms/application.h"
#include "shell/Form2.h"

int main(int argc, char* argv[]) {
  QApplication qt(argc, argv);
  clinorama::desktop::SetLook();
  clinorama::desktop::QtHost host;
  clinorama::forms::Application application(host);
  clinorama::forms::The<clinorama::Form2>().Show();
  return QApplication::exec();
}
