// Takes pictures of the program's own pages:
//
//   page_pictures manual FOLDER    parts of pages, for the manual
//   page_pictures screen FOLDER    whole pages as they look on a screen, for the README
//
// Each state is brought about by the page's own buttons, so that the pictures can be made anew
// whenever a page changes. No display is needed.

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QTemporaryFile>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "desktop/look.h"
#include "desktop/qt_host.h"
#include "forms/application.h"
#include "forms/picture_box.h"
#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form2.h"
#include "shell/Form5.h"
#include "shell/viewers.h"
#include "tools/recording.h"
#include "workpage/Form12.h"

namespace clinorama {
namespace {

using forms::The;
using tools::Opened;
using tools::Recording;
using tools::Trace;

// Device pixels to a logical pixel of the manual's pictures, so that their texts stay sharp.
constexpr int Density = 2;
// And pixels of a picture to one of the manual's page that holds it.
constexpr int Sharpness = 2;
// In pixels of the manual's page.
constexpr double CurveWidth = 2.2;
constexpr double LineWidth = 1.8;
constexpr double DotWidth = 6;

constexpr double MarkerScale = 1.6;  // of the markers of points

QString folder;

QWidget* WindowOf(const forms::Page& page) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == desktop::TextFor(page.Name()) && window->isVisible()) {
      return window;
    }
  }
  return nullptr;
}

[[noreturn]] void Fail(const char* name) {
  std::fprintf(stderr, "page_pictures: no picture %s\n", name);
  std::exit(EXIT_FAILURE);
}

void Save(const QImage& picture, const char* name) {
  if (!picture.save(QDir(folder).filePath(QString("%1.png").arg(name)))) {
    Fail(name);
  }
}

// A picture of one of a page's controls.
void TakeControl(const forms::Page& page, const char* name, const char* control) {
  QWidget* window = WindowOf(page);
  QWidget* widget = window == nullptr ? nullptr : window->findChild<QWidget*>(control);
  if (widget == nullptr) {
    Fail(name);
  }
  Save(widget->grab().toImage(), name);
}

// A drawing surface of a page with what was drawn on it.
struct Drawn {
  forms::PictureBox& Surface;
  std::unique_ptr<Recording> Traces;

  explicit Drawn(forms::PictureBox& surface)
      : Surface(surface), Traces(std::make_unique<Recording>(surface)) {}
};

// Draws the curves of a surface again, wider: a line of one pixel would be lost in a smaller
// picture. `scale` is that of the smaller one.
void DrawWider(QPainter& painter, const Drawn& drawn, double scale) {
  for (const Trace& trace : drawn.Traces->Now()) {
    const bool dots = trace.What == Trace::Kind::Dot;
    if (trace.What == Trace::Kind::Guide) {
      continue;
    }
    QPainterPath path;
    for (const tools::Point& point : trace.Points) {
      const QPointF place(drawn.Surface.LogicalX(point.X), drawn.Surface.LogicalY(point.Y));
      if (path.elementCount() == 0) {
        path.moveTo(place);
        path.lineTo(place + QPointF(0.01, 0));  // a single point is drawn as well
      } else {
        path.lineTo(place);
      }
    }
    const double width = dots ? DotWidth : trace.What == Trace::Kind::Line ? LineWidth : CurveWidth;
    painter.setPen(
        QPen(QColor(trace.Pen.Rgb), width / scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
  }
}

// A part of a page, in its logical pixels. It is `width` pixels wide in the manual.
void Take(const forms::Page& page, const char* name, const QRect& part, int width,
          const std::vector<const Drawn*>& surfaces = {}) {
  QWidget* window = WindowOf(page);
  if (window == nullptr) {
    Fail(name);
  }
  QImage shot = window->grab().toImage();
  for (const Drawn* drawn : surfaces) {
    QWidget* view = window->findChild<QWidget*>(desktop::TextFor(drawn->Surface.Name()));
    if (view == nullptr) {
      Fail(name);
    }
    const QRect place(view->mapTo(window, QPoint(0, 0)), view->size());
    QPainter painter(&shot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(place);
    painter.save();
    painter.translate(place.topLeft());
    DrawWider(painter, *drawn, static_cast<double>(width) / part.width());
    painter.restore();
    for (QWidget* picture : view->findChildren<QWidget*>()) {
      if (picture->isVisible()) {
        const bool marker = picture->objectName().startsWith("Image1(");
        painter.save();
        painter.translate(QRectF(picture->geometry()).center() + place.topLeft());
        painter.scale(marker ? MarkerScale : 1, marker ? MarkerScale : 1);
        picture->render(&painter, -picture->rect().center(), QRegion(), QWidget::DrawChildren);
        painter.restore();
      }
    }
  }
  const QRect pixels(part.topLeft() * Density, part.size() * Density);
  Save(shot.copy(pixels).scaledToWidth(width * Sharpness, Qt::SmoothTransformation), name);
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

// The whole of a page below its menu.
QRect PageOf(const forms::Page& page) {
  const QWidget* window = WindowOf(page);
  if (window == nullptr) {
    Fail(page.Name().c_str());
  }
  const int menu = page.MenuBar().empty() ? 0 : 22;
  return {0, menu, window->width(), window->height() - menu};
}

// A whole page with its menu, as it looks on the screen.
void TakeWhole(const forms::Page& page, const char* name) {
  QWidget* window = WindowOf(page);
  if (window == nullptr) {
    Fail(name);
  }
  Save(window->grab().toImage(), name);
}

void DrawSemiTangents(Form12& page) {
  page.DesenharGráfico.UserClick();
  page.DerivadaEsquerda.UserClick();
  page.DerivadaDireita.UserClick();
}

void DrawAll(Form13& page) {
  page.Função1.UserType("x*(1-cos(x))/2");  // as it comes from the work page
  page.DesenharGráfico.UserClick();
  page.DesenharPrimeira.UserClick();
  page.DesenharSegunda.UserClick();
}

// Turns the lesson's pages to that of the turning semi-secant, and takes the picture while it
// turns.
void TakeTurningSemiSecant(Camera& camera, Form9& page, const std::function<void()>& take) {
  constexpr int PageOfTheTurningSemiSecant = 8;
  for (int number = 1; number < PageOfTheTurningSemiSecant; ++number) {
    page.Seguinte.UserClick();
  }
  camera.TakeInMotion(
      150, [&page] { page.Seguinte.UserClick(); }, take);
}

void TakeWorkPage() {
  const Opened<Form12> opened;
  Form12& page = opened.Page();
  const Drawn canvas(page.Picture1);
  DrawSemiTangents(page);
  Take(page, "trabalho", PageOf(page), 390, {&canvas});
}

void TakeRelations() {
  const Opened<Form13> opened;
  Form13& page = opened.Page();
  for (const auto& [name, control] :
       std::vector<std::pair<const char*, const char*>>{{"relacao_botoes_funcao", "Frame2"},
                                                        {"relacao_botoes_primeira", "Frame4"},
                                                        {"relacao_botoes_segunda", "Frame5"}}) {
    TakeControl(page, name, control);
  }
  const Drawn function(page.Picture1(1));
  const Drawn first(page.Picture1(3));
  const Drawn second(page.Picture1(5));
  DrawAll(page);
  Take(page, "relacao", PageOf(page), 366, {&function, &first, &second});
}

void TakeLesson(Camera& camera) {
  const Opened<Form9> opened;
  Form9& page = opened.Page();
  TakeControl(page, "conceito_opcoes", "Opções");
  const Drawn drawing(page.Picture1);
  TakeTurningSemiSecant(camera, page,
                        [&] { Take(page, "conceito", PageOf(page), 400, {&drawing}); });
}

void TakeForManual(Camera& camera) {
  The<Form2>().Show();
  Take(The<Form2>(), "apresentacao", {0, 0, 720, 110}, 554);
  TakeWorkPage();
  TakeRelations();
  TakeLesson(camera);
  const Opened<Form12> workPage;
  workPage.Page().Exemplos.UserClick();
  Take(The<Form5>(), "exemplos", PageOf(The<Form5>()), 222);
}

void TakeScreen(Camera& camera) {
  constexpr int PageOfThePlan = 4;  // of a lesson of 45 minutes
  The<Form2>().Show();
  TakeWhole(The<Form2>(), "apresentacao");
  {
    const Opened<Form12> opened;
    DrawSemiTangents(opened.Page());
    TakeWhole(opened.Page(), "trabalho");
  }
  {
    const Opened<Form13> opened;
    Form13& page = opened.Page();
    DrawAll(page);
    page.ColocarCoresFunção.UserClick();
    page.ColocarCoresPrimeira1.UserClick();
    page.ColocarCoresSegunda.UserClick();
    TakeWhole(page, "relacao");
  }
  {
    const Opened<Form11> opened;
    for (int page = 1; page < PageOfThePlan; ++page) {
      opened.Page().SetaD.UserClick();
    }
    TakeWhole(opened.Page(), "comentarios");
  }
  const Opened<Form9> opened;
  TakeTurningSemiSecant(camera, opened.Page(), [&] { TakeWhole(opened.Page(), "conceito"); });
}

// What is taken, and on what screen.
struct Occasion {
  const char* Name;
  QSize Screen;  // in device pixels
  int Density;   // device pixels to one of the toolkit's
  void (*Take)(Camera& camera);
};
const Occasion Occasions[] = {
    // The screen that pages are laid out for, so that they are not zoomed.
    {"manual", QSize(1024, 768) * Density, Density, TakeForManual},
    {"screen", QSize(1920, 1080), 1, TakeScreen},
};

}  // namespace
}  // namespace clinorama

int main(int argc, char* argv[]) {
  using clinorama::Occasions;
  const auto* occasion = std::find_if(
      std::begin(Occasions), std::end(Occasions),
      [&](const auto& candidate) { return argc == 3 && std::string(candidate.Name) == argv[1]; });
  if (occasion == std::end(Occasions)) {
    std::fprintf(stderr, "usage: page_pictures manual|screen FOLDER\n");
    return EXIT_FAILURE;
  }
  QTemporaryFile screens;
  screens.open();
  screens.write(QStringLiteral(R"({"screens": [{"name": "", "x": 0, "y": 0,
      "width": %1, "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                    .arg(occasion->Screen.width())
                    .arg(occasion->Screen.height())
                    .toUtf8());
  screens.flush();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
  qputenv("QT_SCALE_FACTOR", QByteArray::number(occasion->Density));
  QApplication qt(argc, argv);
  clinorama::folder = argv[2];
  clinorama::desktop::SetLook();
  clinorama::Camera camera;
  clinorama::forms::Application application(camera);
  occasion->Take(camera);
  return EXIT_SUCCESS;
}
