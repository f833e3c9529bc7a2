#include "forms/page.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "base/failure.h"
#include "tests/forms/sample_page.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {
namespace {

using forms::The;
using Log = std::vector<std::string>;

class Pages : public ApplicationTest {
 protected:
  // Notes the end of a handler, however it ends.
  struct Leaving {
    Log& Notes;
    std::string Note;
    ~Leaving() { Notes.push_back(Note); }
  };

  // A handler that waits for ten steps of 5 milliseconds.
  std::function<void()> Motion(const std::string& name) {
    return [this, &page = The<SamplePage>(), name] {
      const Leaving leaving{log, name + " left"};
      for (int i = 0; i < 10; ++i) {
        page.Wait(5);
      }
      log.push_back(name + " finished");
    };
  }

  Pages() {
    The<SamplePage>().Command1.Click = Motion("first");
    The<SamplePage>().Command2.Click = Motion("second");
  }

  // Plays the first motion of the page, with its window open.
  void Play() {
    The<SamplePage>().Show();
    The<SamplePage>().Command1.UserClick();
  }

  Log log;
};

TEST_F(Pages, AreMadeOnFirstUseAndForgetAllWhenUnloaded) {
  auto& page = The<SamplePage>();
  EXPECT_EQ(&The<SamplePage>(), &page);
  EXPECT_FALSE(page.Visible);
  page.Show();
  page.Text1.Text = "7";
  page.Visible = false;
  EXPECT_EQ(The<SamplePage>().Text1.Text, "7") << "a hidden page stays as it is";
  page.UserClose();
  EXPECT_EQ(The<SamplePage>().Text1.Text, "1");
  EXPECT_EQ(The<SamplePage>().Activations, 0);
  EXPECT_EQ(host.PageCalls, (Log{"Shown SamplePage", "Hidden SamplePage", "Unloaded SamplePage"}));
}

TEST_F(Pages, LiveUntilNoHandlerOfTheirsIsOnTheStack) {
  auto& page = The<SamplePage>();
  page.Show();
  page.Command1.Click = [&] {
    page.Unload();
    EXPECT_NE(&The<SamplePage>(), &page);
    The<OtherPage>().Show();  // runs a handler of another page
    EXPECT_EQ(SamplePage::Alive, 3);
    page.Command2.UserClick();  // reaches nobody any more
    log.push_back(page.Label1.Caption);
  };
  page.Command1.UserClick();
  EXPECT_EQ(log, Log{"Legenda"});
  EXPECT_EQ(SamplePage::Alive, 2);
}

TEST_F(Pages, UnwindTheirHandlersWhenClosedWhileThoseWait) {
  auto& page = The<SamplePage>();
  page.Sair.Click = [&] {
    const Leaving leaving{log, "third left"};
    page.Wait(5);
    page.UserClose();
    The<SamplePage>().Show();  // another one, which nobody waits for
    page.WaitFor(false);
    log.push_back("third went on");
  };
  The<OtherPage>().Show();
  host.AtStep(2, [] { The<OtherPage>().UserClose(); });
  host.AtStep(3, [&] { page.Command2.UserClick(); });
  host.AtStep(5, [&] { page.Sair.UserClick(); });
  Play();
  EXPECT_EQ(log, (Log{"third left", "second left", "first left"}));
  EXPECT_EQ(host.WaitedMilliseconds, 6 * 5);
  EXPECT_EQ(SamplePage::Alive, 1);
  EXPECT_TRUE(The<SamplePage>().Visible);
}

TEST_F(Pages, ShowAFailureThatAHandlerLetsOutAndNoOtherException) {
  auto& page = The<SamplePage>();
  page.OptionA.Click = [] { base::Raise(base::TypeMismatch); };
  page.OptionB.Click = [] {
    base::Ignorar([] { base::Raise(base::Overflow); });
    base::Ignorar([] { throw std::out_of_range("an error of the program"); });
  };
  page.Sair.Click = [] { forms::End(); };
  host.AtStep(2, [&] { page.OptionA.UserClick(); });
  host.AtStep(3, [&] { page.Command2.UserClick(); });
  host.AtStep(5, [&] { page.Sair.UserClick(); });
  EXPECT_THROW(Play(), ProgramEnded);
  EXPECT_EQ(log, (Log{"second left", "first left"}));
  EXPECT_THROW(page.OptionB.UserClick(), std::out_of_range);
  const MessageBox box{base::Failure(base::TypeMismatch).Description(), 0, "Clinorama"};
  EXPECT_EQ(host.MessageBoxes, std::vector{box});
}

TEST_F(Pages, HoldTheirMotionsWhileASpeedBarIsHeld) {
  forms::HScrollBar& bar = The<SamplePage>().HScroll1;
  host.AtStep(3, [&] { bar.UserHold(true), bar.UserHold(true); });
  host.AtStep(8, [&] { EXPECT_EQ(host.WaitedMilliseconds, 3 * 5); });
  host.AtStep(9, [&] { bar.UserHold(false); });
  Play();
  EXPECT_EQ(host.Steps, 10 + 6);
  // A page that is closed under a held bar neither waits for the bar nor leaves it held.
  host.AtStep(20, [&] { bar.UserHold(true), The<SamplePage>().UserClose(); });
  The<SamplePage>().Command1.UserClick();
  EXPECT_FALSE(application.BarHeld());
  EXPECT_EQ(log, (Log{"first finished", "first left", "first left"}));
}

TEST_F(Pages, IgnoreClicksWhereHandlersAreNestedTooDeeply) {
  host.Depth = 2;
  auto& page = The<SamplePage>();
  page.Show();
  const auto tell = [&] { log.emplace_back(page.CanPause() ? "room" : "the greatest depth"); };
  page.Label1.Click = tell, page.Label1.DblClick = tell;
  page.Sair.Click = [&] {
    tell();
    page.Label1.UserClick(), page.Label1.UserDoubleClick();
    page.Command1.UserClick(), page.OptionB.UserClick(), page.Sair.UserClick();
  };
  page.Command2.Click = [&] { tell(), page.Sair.UserClick(); };
  page.Command2.UserClick();
  EXPECT_EQ(log, (Log{"room", "the greatest depth"}));
  EXPECT_FALSE(page.OptionB.Value);
}

TEST_F(Pages, AreActivatedWhenTheyBecomeTheActivePage) {
  auto& page = The<SamplePage>();
  auto& other = The<OtherPage>();
  // What happens, and the activations of the page by it.
  const std::tuple<const char*, std::function<void()>, int> steps[] = {
      {"shown", [&] { page.Show(); }, 1},
      {"shown when active", [&] { page.Show(), application.BecameActive(page); }, 0},
      {"a message box over it", [] { forms::MsgBox("Erro"); }, 0},
      {"another page shown", [&] { other.Show(); }, 0},
      {"shown over another page", [&] { page.Show(); }, 1},
      {"another page clicked", [&] { application.BecameActive(other); }, 0},
      {"clicked in front of another page", [&] { application.BecameActive(page); }, 1},
      {"another page hidden behind it", [&] { other.Visible = false; }, 0},
      {"still active then", [&] { page.Show(); }, 0},
      {"hidden", [&] { page.Visible = false; }, 0},
      {"made visible again", [&] { page.Visible = true; }, 1},
      {"another page closed over it", [&] { other.Show(), other.UserClose(); }, 0},
      {"in front again", [&] { application.BecameActive(page); }, 1},
  };
  for (const auto& [what, act, activations] : steps) {
    page.Activations = 0;
    act();
    EXPECT_EQ(page.Activations, activations) << what;
  }
}

}  // namespace
}  // namespace clinorama::tests
