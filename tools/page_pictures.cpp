// Takes pictures of the program's own pages for the manual and the README:
//
//   page_pictures FOLDER
//
// Each state is brought about by the page's own buttons, so that the pictures can be made anew
// whenever a page changes. No display is needed.

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "desktop/look.h"
#include "desktop/qt_host.h"
#include "forms/application.h"
#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form2.h"
#include "shell/Form5.h"
#include "shell/viewers.h"
#include "workpage/Form12.h"

namespace clinorama {
namespace {

using forms::The;

QString folder;

QWidget* WindowOf(const forms::Page& page) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == desktop::TextFor(page.Name()) && window->isVisible()) {
      return window;
    }
  }
  return nullptr;
}

// A picture of a whole page, or of one of its controls. Whole pages are made smaller here,
// smoothly: the manual shows them smaller still, and thin lines would be lost if it had to do it
// all.
void Take(forms::Page& page, const char* name, const char* control = nullptr) {
  constexpr double WholePageScale = 2.0 / 3;
  QWidget* widget = WindowOf(page);
  if (widget != nullptr && control != nullptr) {
    widget = widget->findChild<QWidget*>(control);
  }
  QImage picture;
  if (widget != nullptr) {
    picture = widget->grab().toImage();
  }
  if (control == nullptr && !picture.isNull()) {
    picture =
        picture.scaledToWidth(qRound(picture.width() * WholePageScale), Qt::SmoothTransformation);
  }
  if (!picture.save(QDir(folder).filePath(QString("%1.png").arg(name)))) {
    std::fprintf(stderr, "page_pictures: no picture %s\n", name);
    std::exit(EXIT_FAILURE);
  }
}

// A host without waits that can take a picture in the middle of a motion.
class Camera : public desktop::QtHost {
 public:
  // Runs the motion that a click starts, and takes the picture in one of its steps.
  void TakeInMotion(int step, const std::function<void()>& click,
                    const std::function<void()>& take) {
    stepsLeft_ = step;
    take_ = take;
    click();
  }

  void Wait(int /*milliseconds*/) override {
    if (--stepsLeft_ == 0) {
      take_();
    }
  }

 private:
  int stepsLeft_ = 0;
  std::function<void()> take_;
};

void TakeWorkPage(Camera& camera) {
  auto& page = The<Form12>();
  page.Show();
  for (const auto& [name, control] :
       std::vector<std::pair<const char*, const char*>>{{"trabalho_expressao", "Frame2"},
                                                        {"trabalho_opcoes", "FrameOpções"},
                                                        {"trabalho_ponto", "Frame1"},
                                                        {"trabalho_todos", "Frame3"},
                                                        {"trabalho_velocidade", "Velocidade"}}) {
    Take(page, name, control);
  }
  page.DesenharGráfico.UserClick();
  camera.TakeInMotion(
      180, [&page] { page.DerivadaEsquerda.UserClick(); },
      [&page] { Take(page, "trabalho_semi_secante"); });
  page.DerivadaDireita.UserClick();
  Take(page, "trabalho");
  page.ApagarGráfico.UserClick();
  page.DesenharGráfico.UserClick();
  camera.TakeInMotion(
      14500, [&page] { page.Calcular.UserClick(); }, [&page] { Take(page, "trabalho_tangente"); });
  page.EixosRad.UserClick();
  page.Função1.UserType("3sen(x)");
  page.DesenharGráfico.UserClick();
  Take(page, "trabalho_radianos");
  page.UserClose();
}

void TakeRelations() {
  auto& page = The<Form13>();
  page.Show();
  for (const auto& [name, control] :
       std::vector<std::pair<const char*, const char*>>{{"relacao_botoes_funcao", "Frame2"},
                                                        {"relacao_botoes_primeira", "Frame4"},
                                                        {"relacao_botoes_segunda", "Frame5"}}) {
    Take(page, name, control);
  }
  const auto press = [](std::initializer_list<forms::CommandButton*> buttons) {
    for (forms::CommandButton* button : buttons) {
      button->UserClick();
    }
  };
  press({&page.DesenharGráfico, &page.DesenharPrimeira, &page.DesenharSegunda});
  Take(page, "relacao");
  press({&page.ExtremosFunção, &page.InflexõesFunção, &page.ZerosPrimeira, &page.ZerosSegunda});
  Take(page, "relacao_pontos");
  const auto clear = [&] {
    press({&page.ApagarGráfico1, &page.ApagarPrimeira, &page.ApagarSegunda});
  };
  clear();
  press({&page.ColocarCoresFunção, &page.ColocarCoresPrimeira1});
  Take(page, "relacao_colorir1");
  clear();
  press({&page.ColocarCoresFunção2, &page.ColocarCoresPrimeira2, &page.ColocarCoresSegunda});
  Take(page, "relacao_colorir2");
  press({&page.EixosRad, &page.EixosRad1, &page.EixosRad2});
  press({&page.DesenharGráfico, &page.DesenharPrimeira, &page.DesenharSegunda});
  Take(page, "relacao_radianos");
  page.UserClose();
}

void TakeLesson(Camera& camera) {
  auto& page = The<Form9>();
  page.Show();
  Take(page, "conceito");
  Take(page, "conceito_opcoes", "Opções");
  constexpr int PageOfTheTurningSemiSecant = 8;
  for (int number = 1; number < PageOfTheTurningSemiSecant; ++number) {
    page.Seguinte.UserClick();
  }
  camera.TakeInMotion(
      150, [&page] { page.Seguinte.UserClick(); }, [&page] { Take(page, "conceito_movimento"); });
  page.UserClose();
}

void TakeAll(Camera& camera) {
  The<Form2>().Show();
  Take(The<Form2>(), "apresentacao");
  TakeWorkPage(camera);
  TakeRelations();
  TakeLesson(camera);
  The<Form12>().Exemplos.UserClick();
  Take(The<Form5>(), "exemplos");
  The<Form3>().Show();
  Take(The<Form3>(), "sintaxe_janela");
}

}  // namespace
}  // namespace clinorama

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication qt(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: page_pictures FOLDER\n");
    return EXIT_FAILURE;
  }
  clinorama::folder = argv[1];
  clinorama::desktop::SetLook();
  clinorama::Camera camera;
  clinorama::forms::Application application(camera);
  clinorama::TakeAll(camera);
  return EXIT_SUCCESS;
}
