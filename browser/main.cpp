#include "browser/browser_host.h"
#include "forms/application.h"
#include "shell/Form2.h"

int main() {
  clinorama::browser::BrowserHost host;
  clinorama::forms::Application application(host);
  clinorama::forms::The<clinorama::Form2>().Show();
  host.Run();
}
