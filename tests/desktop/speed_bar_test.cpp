// The speed bar: its direction, and what counts as holding it.

#include "desktop/speed_bar.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionSlider>

#include "desktop_fixture.h"
#include "forms/controls.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using desktop::SpeedBar;
using forms::The;

// The debounce of a released key, with air.
constexpr int AfterRelease = 150;

class SpeedBarTest : public DesktopTest {
 protected:
  SpeedBarTest() {
    The<Form12>().Show();
    bar = Find<SpeedBar>("Form12", "HScroll1");
  }

  QPoint Middle(QStyle::SubControl part) const {
    QStyleOptionSlider option;
    option.initFrom(bar);
    option.orientation = Qt::Horizontal;
    option.minimum = bar->minimum();
    option.maximum = bar->maximum();
    option.sliderPosition = bar->sliderPosition();
    option.pageStep = bar->pageStep();
    option.upsideDown = bar->invertedAppearance();
    return bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, part, bar).center();
  }

  void Send(QEvent::Type type, int key, bool repeat = false) {
    QKeyEvent event(type, key, Qt::NoModifier, {}, repeat);
    QApplication::sendEvent(bar, &event);
  }

  SpeedBar* bar = nullptr;
};

TEST_F(SpeedBarTest, LeftEndIsTheSlowest) {
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 5);
  QTest::keyClick(bar, Qt::Key_Right);
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 4);
  const int thumbBefore = Middle(QStyle::SC_ScrollBarSlider).x();
  QTest::keyClick(bar, Qt::Key_Left);
  QTest::keyClick(bar, Qt::Key_Left);
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 6);
  EXPECT_LT(Middle(QStyle::SC_ScrollBarSlider).x(), thumbBefore);
  // The arrows at the ends move the thumb their own way.
  QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(bar->width() - 5, bar->height() / 2));
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 5);
  QTest::mouseClick(bar, Qt::LeftButton, {}, QPoint(5, bar->height() / 2));
  EXPECT_EQ(The<Form12>().HScroll1.Value(), 6);
}

TEST_F(SpeedBarTest, HeldByTheMouseOnAnyPart) {
  for (const auto part : {QStyle::SC_ScrollBarSlider, QStyle::SC_ScrollBarAddPage,
                          QStyle::SC_ScrollBarSubPage, QStyle::SC_ScrollBarAddLine}) {
    QTest::mousePress(bar, Qt::LeftButton, {}, Middle(part));
    EXPECT_TRUE(application.BarHeld()) << part;
    QTest::mouseRelease(bar, Qt::LeftButton, {}, Middle(part));
    EXPECT_FALSE(application.BarHeld()) << part;
  }
}

TEST_F(SpeedBarTest, HeldByAKeyThroughItsRepetition) {
  Send(QEvent::KeyPress, Qt::Key_Left);
  Send(QEvent::KeyRelease, Qt::Key_Left, true);
  EXPECT_TRUE(application.BarHeld());
  Send(QEvent::KeyPress, Qt::Key_Left, true);
  QTest::qWait(AfterRelease);
  EXPECT_TRUE(application.BarHeld());
  Send(QEvent::KeyRelease, Qt::Key_Left);
  QTest::qWait(AfterRelease);
  EXPECT_FALSE(application.BarHeld());
}

TEST_F(SpeedBarTest, OtherKeysAndALostFocusDoNotHoldIt) {
  for (const int key : {int(Qt::Key_Alt), int(Qt::Key_Shift), int(Qt::Key_A)}) {
    Send(QEvent::KeyPress, key);
    EXPECT_FALSE(application.BarHeld()) << key;
  }
  Send(QEvent::KeyPress, Qt::Key_Right);
  QFocusEvent out(QEvent::FocusOut);
  QApplication::sendEvent(bar, &out);
  EXPECT_FALSE(application.BarHeld());
}

}  // namespace
}  // namespace clinorama::tests
