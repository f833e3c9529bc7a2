// Pages on small and large screens, and on desktops with a look of their own.

#include <QAction>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPalette>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "desktop/fit.h"
#include "desktop/look.h"
#include "desktop_fixture.h"
#include "forms/controls.h"
#include "lesson/Form9.h"
#include "relations/Form13.h"
#include "shell/Form2.h"
#include "shell/Form5.h"
#include "shell/viewers.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using forms::The;

class ScreensTest : public DesktopTest {
 protected:
  // The fit waits until the window has not moved for a while.
  static constexpr int ToFit = 500;

  static QScreen& Screen(int index) { return *QApplication::screens().at(index); }

  static void MoveToScreen(const char* page, int index) {
    QWidget& window = *Window(page);
    window.move(Screen(index).geometry().topLeft() + QPoint(20, 40));
    window.activateWindow();
    QTest::qWait(ToFit);
    ASSERT_EQ(window.screen(), &Screen(index));
  }

  static QImage Seen(const char* page, const char* control = nullptr) {
    QWidget* widget = control == nullptr ? Window(page) : Find(page, control);
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
};

TEST_F(ScreensTest, TheLayoutIsShownAsLargeAsItFits) {
  const QMargins thick(1, 37, 1, 1);
  struct {
    QRect Available;
    QMargins Frame;
    double Zoom;
    QPointF Corner;
  } const cases[] = {
      {{0, 0, 1024, 768}, {}, 1, {0, 0}},
      {{0, 0, 1024, 768}, {1, 26, 1, 1}, 1, {0, 0}},
      {{0, 0, 1920, 1080}, {}, 1053 / 741., {960 - 512 * 1053 / 741., 27 - 27 * 1053 / 741.}},
      {{1920, 32, 1366, 736}, thick, 698 / 741., {2603 - 512 * 698 / 741., 70 - 27 * 698 / 741.}},
      {{0, 0, 1280, 1051}, {}, 1.25, {0, 27 - 27 * 1.25 + 97.75 / 2}},
      {{0, 0, 800, 600}, {}, 573 / 741., {400 - 512 * 573 / 741., 27 - 27 * 573 / 741.}},
  };
  for (const auto& [available, frame, zoom, corner] : cases) {
    const desktop::Fit fit = desktop::FitInto(available, frame);
    EXPECT_NEAR(fit.Zoom, zoom, 1e-9) << available.width();
    EXPECT_NEAR(fit.Corner.x(), corner.x(), 1e-9) << available.width();
    EXPECT_NEAR(fit.Corner.y(), corner.y(), 1e-9) << available.width();
  }
}

TEST_F(ScreensTest, PagesOpenOnTheScreenOfTheActiveOne) {
  The<Form2>().Show();
  for (const int screen : {1, 0}) {
    MoveToScreen("Form2", screen);
    The<Form9>().Show();
    Find<QAction>("Form9", "Clinorama")->trigger();  // leaves its own page first
    The<Form5>().Show();
    The<Form6>().Show();
    The<Form13>().Show();
    for (const char* page : {"Form2", "Form5", "Form6", "Form12", "Form13"}) {
      const QWidget& window = *Window(page);
      EXPECT_TRUE(Screen(screen).geometry().contains(window.geometry())) << page << screen;
      EXPECT_NEAR(desktop::ZoomOf(window), screen == 0 ? 1 : 1.421, 1e-3) << page << screen;
    }
    for (const char* page : {"Form5", "Form6", "Form13"}) {
      Window(page)->close();
    }
    The<Form12>().Visible = false;  // and is shown again on the other screen
  }
}

TEST_F(ScreensTest, ADrawingIsShownPixelByPixel) {
  The<Form2>().Show();
  MoveToScreen("Form2", 1);
  auto& page = The<Form12>();
  page.Show();
  page.DesenharGráfico.UserClick();
  page.DerivadaEsquerda.UserClick();
  for (forms::Image* image : {&page.Image1(0), &page.Image1(1), &page.Image2, &page.Image3}) {
    image->Visible = false;
  }
  const forms::Raster& raster = page.Picture1.Screen();
  EXPECT_EQ(raster.Width(), 900);
  const QImage drawing(reinterpret_cast<const uchar*>(raster.Data()), raster.Width(),
                       raster.Height(), QImage::Format_RGB32);
  EXPECT_EQ(Seen("Form12", "Picture1"), drawing);
}

TEST_F(ScreensTest, APageMovedToAnotherScreenIsFittedToItWithItsDrawing) {
  The<Form12>().Show();
  The<Form12>().DesenharGráfico.UserClick();
  const QSize before = Window("Form12")->size();
  MoveToScreen("Form12", 1);
  EXPECT_EQ(Window("Form12")->height(),
            qRound(710 * 1053 / 741.) + Find("Form12", "Frame1")->parentWidget()->y());
  const QImage large = Seen("Form12", "Picture1");
  EXPECT_EQ(large.width(), 900);
  The<Form12>().DesenharGráfico.UserClick();
  EXPECT_EQ(Seen("Form12", "Picture1"), large) << "drawn anew, and drawn there";
  MoveToScreen("Form12", 0);
  EXPECT_EQ(Window("Form12")->size(), before);
}

TEST_F(ScreensTest, AWindowWithoutAPageIsNotFitted) {
  The<Form12>().Show();
  Window("Form12")->move(Screen(1).geometry().topLeft());
  QTest::qWait(ToFit / 10);
  Window("Form12")->close();
  emit Screen(1).availableGeometryChanged({});
  QTest::qWait(ToFit);
}

TEST_F(ScreensTest, TheDesktopsOwnLookChangesNothing) {
  const QPalette light = QApplication::palette();
  const QFont plain = QApplication::font();
  The<Form12>().Show();
  The<Form6>().Show();
  const QImage workPage = Seen("Form12");
  const QImage viewer = Seen("Form6");
  QApplication::setPalette(QPalette(Qt::black));
  QApplication::setFont(QFont("DejaVu Sans", 20, QFont::Bold, true));
  for (const char* kind : {"QMenuBar", "QToolButton", "QLabel", "QRadioButton"}) {
    QApplication::setFont(QFont("DejaVu Sans", 20), kind);
  }
  QApplication::setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(Seen("Form12"), workPage);
  Window("Form6")->close();
  The<Form6>().Show();
  EXPECT_EQ(Seen("Form6"), viewer);
  QApplication::setLayoutDirection(Qt::LeftToRight);
  QApplication::setPalette(light);
  QApplication::setFont(plain);
}

TEST_F(ScreensTest, ABoxShowsItsTitleAndTheEndsOfALongName) {
  const std::string name(200, 'a');
  const std::string title(60, 'T');
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_GT(box->width(), QFontMetrics(box->font()).horizontalAdvance(box->windowTitle()));
    EXPECT_EQ(box->text(),
              QString("Nome: «%1…\u2060%2» errado").arg(QString(19, 'a'), QString(19, 'a')));
    box->accept();
  });
  host.MsgBox("Nome: «" + name + "» errado", forms::PlainBox, title);
}

}  // namespace
}  // namespace clinorama::tests
