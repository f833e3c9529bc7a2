// What only real widgets can get wrong: places, keys and clicks on their way to the controls.

#include <QColorDialog>
#include <QDir>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <algorithm>

#include "desktop_fixture.h"
#include "forms/controls.h"
#include "lesson/Form9.h"
#include "shell/Form2.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using forms::The;

auto BluePixels(QWidget& widget) {
  const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
  return std::count_if(pixels, pixels + image.sizeInBytes() / 4,
                       [](QRgb pixel) { return (pixel & RGB_MASK) == forms::Blue.Rgb; });
}

TEST_F(DesktopTest, TheWindowHasThePlacesOfItsPage) {
  The<Form12>().Show();
  QWidget* window = Window("Form12");
  QWidget* client = Find("Form12", "Frame1")->parentWidget();
  EXPECT_EQ(client->size(), QSize(1016, 710));
  EXPECT_EQ(window->height() - client->height(), client->y());
  EXPECT_EQ(window->minimumSize(), window->maximumSize());
  EXPECT_EQ(Find("Form12", "Picture1")->geometry(), QRect(4, 76, 633, 633));
}

TEST_F(DesktopTest, TypedTextReachesThePage) {
  The<Form12>().Show();
  auto* box = Find<QLineEdit>("Form12", "Função1");
  box->selectAll();
  for (const QChar letter : QString::fromUtf8("sén(x) ç")) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
    QApplication::sendEvent(box, &press);
  }
  EXPECT_EQ(The<Form12>().Função1.Text(), "sén(x) ç");
  The<Form12>().Função1.Text = "3sen(x)-cos(2x)";
  EXPECT_EQ(box->text(), "3sen(x)-cos(2x)");
}

TEST_F(DesktopTest, APlotIsSeenAndANewGraduationWipesIt) {
  The<Form12>().Show();
  QTest::qWait(50);
  Click("Form12", "DesenharGráfico");
  QTest::qWait(50);
  EXPECT_GT(BluePixels(*Window("Form12")), 800);
  QTest::keyClick(Find("Form12", "EixosRad"), Qt::Key_Return);
  QTest::qWait(50);
  EXPECT_EQ(BluePixels(*Find("Form12", "Picture1")), 0);
  EXPECT_EQ(The<Form12>().EixosRad.Caption(), "Unidades");
}

// The picture that a window server would hold, and not a new painting of the widget, is what tells
// whether a change was announced: so the paintings are counted.
TEST_F(DesktopTest, EachChangeOfTheDrawingIsAnnounced) {
  struct PaintCounter : QObject {
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
      Paints += event->type() == QEvent::Paint;
      return false;
    }
    int Paints = 0;
  } counter;
  The<Form12>().Show();
  QTest::qWait(50);
  Find("Form12", "Picture1")->installEventFilter(&counter);
  for (int change = 1; change <= 3; ++change) {
    counter.Paints = 0;
    The<Form12>().Picture1.Line(-change, 0, change, 5, forms::Red);
    QTest::qWait(50);
    EXPECT_GE(counter.Paints, 1) << change;
  }
}

TEST_F(DesktopTest, AMarkedOptionStaysMarkedAndGivesNoClick) {
  The<Form12>().Show();
  auto* option = Find<QRadioButton>("Form12", "DerivadaEsquerda");
  int clicks = 0;
  The<Form12>().DerivadaEsquerda.Click = [&clicks] { ++clicks; };
  Click("Form12", "DerivadaEsquerda");
  Click("Form12", "DerivadaEsquerda");
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(option->isChecked());
  The<Form12>().DerivadaEsquerda.Value = false;
  EXPECT_FALSE(option->isChecked());
}

TEST_F(DesktopTest, AMessageBoxSpeaksForThePageAndIsNoActivation) {
  The<Form12>().Show();
  The<Form12>().Função1.Text = "sen(";
  QTimer::singleShot(0, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), "Erro na expressão analítica:\n\nNúmero de parênteses incorrecto.");
    EXPECT_EQ(box->windowTitle(), "Limites");
    EXPECT_EQ(box->icon(), QMessageBox::Information);
    box->accept();
  });
  Click("Form12", "DesenharGráfico");
  The<Form12>().Picture1.Line(0, 0, 5, 5, forms::Red);
  QEvent activation(QEvent::WindowActivate);
  QApplication::sendEvent(Window("Form12"), &activation);
  EXPECT_EQ(The<Form12>().Picture1.Screen().At(400, 232), forms::Red);
}

TEST_F(DesktopTest, ClosingByTheFrame) {
  The<Form12>().Show();
  The<Form12>().Função1.Text = "x";
  Window("Form12")->close();
  EXPECT_EQ(Window("Form12"), nullptr);
  EXPECT_EQ(The<Form12>().Função1.Text(), "x*(1-cos(x))/2");
  The<Form2>().Show();
  EXPECT_EXIT(Window("Form2")->close(), testing::ExitedWithCode(0), "");
}

TEST_F(DesktopTest, EventsThatArriveAfterTheirPageWasClosedReachNobody) {
  The<Form12>().Show();
  auto* label = Find<QLabel>("Form12", "Label2");
  Window("Form12")->close();
  const QPointF place(5, 5);
  QMouseEvent release(QEvent::MouseButtonRelease, place, place, Qt::LeftButton, {}, {});
  EXPECT_TRUE(QApplication::sendEvent(label, &release));
  QPointer<QLabel> watched = label;
  EXPECT_TRUE(QTest::qWaitFor([&watched] { return watched == nullptr; }));
}

// A click that comes with the answer to a box runs before the box's own loop is left. Here it
// starts a pause, a motion of the lesson runs in that, and in the motion the page of the box is
// closed.
TEST_F(DesktopTest, ABoxOutlivesItsPage) {
  The<Form9>().Show();
  for (int page = 1; page <= 6; ++page) {
    The<Form9>().Seguinte.UserClick();
  }
  The<Form12>().Show();
  QTest::qWait(50);
  QTimer::singleShot(0, [] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->parent(), nullptr);
    box->accept();
    Click("Form12", "Parar1");
  });
  QTimer::singleShot(100, [] { Click("Form9", "Seguinte"); });
  QTimer::singleShot(200, [] { Window("Form12")->close(); });
  QTimer::singleShot(900, [] { Window("Form9")->close(); });
  Click("Form12", "Calcular");
  EXPECT_EQ(Window("Form12"), nullptr);
}

TEST_F(DesktopTest, TheStackHoldsTheGreatestDepthOfHandlers) {
  The<Form12>().Show();
  int handlers = 0;
  The<Form12>().Label2.Click = [&] {
    ++handlers;
    QTimer::singleShot(0, [] { Click("Form12", "Label2"); });
    host.Wait(1);
  };
  Click("Form12", "Label2");
  EXPECT_EQ(handlers, forms::GreatestDepth);
}

// While one page gives way to another a window manager may make a third one active for a moment.
TEST_F(DesktopTest, APageIsActiveWhenTheWindowsHaveComeToRest) {
  constexpr int ToRest = 400;
  auto& page = The<Form12>();
  const auto isWiped = [&page] { return page.Picture1.Screen().At(400, 232) != forms::Red; };
  const auto draw = [&page] { page.Picture1.Line(0, 0, 5, 5, forms::Red); };
  The<Form2>().Show();
  page.Show();
  QTest::qWait(ToRest);
  draw();
  for (const char* passing : {"Form2", "Form12"}) {
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(Window(passing), &activation);
  }
  QTest::qWait(ToRest);
  EXPECT_FALSE(isWiped());
  Window("Form2")->activateWindow();
  QTest::qWait(ToRest);
  EXPECT_FALSE(isWiped());
  Window("Form12")->activateWindow();
  QTest::mousePress(Find("Form12", "Label4"), Qt::LeftButton);
  EXPECT_TRUE(isWiped()) << "at once, where the user presses something on it";
  Window("Form2")->activateWindow();
  QTest::qWait(ToRest);
  draw();
  Window("Form12")->activateWindow();
  QTest::qWait(ToRest);
  EXPECT_TRUE(isWiped());
}

TEST_F(DesktopTest, TheColourChooserSpeaksPortugueseAndWritesNoFile) {
  QSet<QString> texts;
  QString title;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    title = dialog->windowTitle();
    for (const auto* label : dialog->findChildren<QLabel*>()) {
      texts.insert(label->text().trimmed());
    }
    for (auto* button : dialog->findChildren<QPushButton*>()) {
      texts.insert(button->text());
      if (button->text().startsWith("&Juntar")) {
        button->click();
      }
    }
    dialog->reject();
  });
  EXPECT_EQ(host.ShowColor(forms::Blue), std::nullopt);
  EXPECT_EQ(title, "Escolher a cor");
  const QDir settings(qEnvironmentVariable("XDG_CONFIG_HOME"));
  EXPECT_EQ(settings.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
  texts.remove("");
  const QStringList expected =
      QString(
          "OK|Cancelar|Cores &básicas|Cores "
          "&personalizadas|&Tom:|&Sat.:|Va&lor:|Ve&rmelho:|Ver&de:|"
          "Az&ul:|Canal al&fa:|&HTML:|&Juntar às cores personalizadas|&Escolher uma cor do ecrã")
          .split('|');
  for (const QString& text : texts - QSet<QString>(expected.begin(), expected.end())) {
    ADD_FAILURE() << text.toStdString();
  }
}

}  // namespace
}  // namespace clinorama::tests
