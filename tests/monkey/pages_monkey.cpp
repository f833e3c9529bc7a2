// A random user of the pages, on a host without windows or clock: acts on whatever there is, also
// inside motions, pauses and boxes. Usage: pages_monkey [seconds [seed]]

#include <functional>
#include <iterator>
#include <set>
#include <vector>

#include "benchmarks/null_host.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "forms/picture_box.h"
#include "journal.h"
#include "shell/Form2.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

struct ProgramEnded {};

// Acts on a control as a user can, in a random way.
class RandomAct final : public forms::ControlVisitor {
 public:
  explicit RandomAct(Journal& journal) : journal_(journal) {}

  void Visit(forms::Label& label) override {
    journal_.OneIn(2) ? label.UserClick() : label.UserDoubleClick();
  }
  void Visit(forms::TextBox& box) override { box.UserType(RandomText()); }
  void Visit(forms::CommandButton& button) override { button.UserClick(); }
  void Visit(forms::OptionButton& option) override { option.UserClick(); }
  void Visit(forms::CheckBox& /*box*/) override { Acted = false; }
  void Visit(forms::Frame& /*frame*/) override { Acted = false; }
  void Visit(forms::Image& /*image*/) override { Acted = false; }
  void Visit(forms::HScrollBar& bar) override {
    bar.UserScroll(journal_.Below(14) - 2);
    bar.UserHold(journal_.OneIn(3));
  }
  void Visit(forms::PictureBox& /*picture*/) override { Acted = false; }

  bool Acted = true;

 private:
  std::string RandomText() {
    static const char* const Pieces[] = {
        "x",    "1",          "2",      "0",  "-", "+",      "*",   "/",     "\\",
        "%",    "^",          "(",      ")",  ",", "sqr(x)", "1/x", "ln(",   "abs(x)",
        "sen(", "10^(100*x)", "int(x)", "pi", "é", " ",      "x^2", "1e300", ".5"};
    std::string text;
    for (int pieces = journal_.Below(6); pieces > 0; --pieces) {
      text += journal_.OneOf(Pieces);
    }
    return text;
  }

  Journal& journal_;
};

class MonkeyHost final : public benchmarks::NullHost {
 public:
  MonkeyHost(Journal& journal, int depth) : journal_(journal), depth_(depth) {}

  int GreatestDepth() const override { return depth_; }
  void Shown(forms::Page& page) override { shown_.insert(&page); }
  void Hidden(forms::Page& page) override { shown_.erase(&page); }
  void Unloaded(forms::Page& page) override {
    shown_.erase(&page);
    if (last_ != nullptr && &last_->OwnerPage() == &page) {
      last_ = nullptr;
    }
  }
  void MsgBox(const std::string& /*text*/, int /*style*/, const std::string& /*title*/) override {
    ActSometimes(3);
  }
  std::optional<forms::Color> ShowColor(forms::Color /*now*/) override {
    ActSometimes(3);
    if (journal_.OneIn(2)) {
      return std::nullopt;
    }
    return forms::QBColor(journal_.Below(16));
  }
  void Wait(int /*milliseconds*/) override { ActSometimes(60); }
  void WaitForEvents() override { Act(); }
  [[noreturn]] void End() override { throw ProgramEnded{}; }

  void Act() {
    if (journal_.Over()) {
      throw ProgramEnded{};
    }
    journal_.NoteDepth(++nested_);
    forms::Page& page =
        **std::next(shown_.begin(), journal_.Below(static_cast<int>(shown_.size())));
    switch (journal_.Below(20)) {
      case 0:
        // Seldom, so that motions nest first; closing the first page ends the program.
        if (!journal_.OneIn(page.Name() == "Form2" ? 100 : 10)) {
          break;
        }
        journal_.Note(page.Name() + " closed by its frame");
        forms::Application::Current().Run(page, [&page] { page.UserClose(); });
        break;
      case 1:
        journal_.Note(page.Name() + " brought to the front");
        forms::Application::Current().BecameActive(page);
        break;
      case 2:
      case 3:
        ChooseFrom(page.MenuBar());
        break;
      case 4:
      case 5:
      case 6:
        while (!ActIn(page)) {
        }
        break;
      default:  // leafing through the lesson, for instance
        if (last_ != nullptr) {
          ActOn(*last_);
        }
    }
    --nested_;
  }

 private:
  void ActSometimes(int rarity) {
    if (journal_.OneIn(rarity)) {
      Act();
    }
  }

  void ChooseFrom(const std::vector<forms::Menu*>& items) {
    if (items.empty()) {
      return;
    }
    forms::Menu& item = *journal_.OneOf(items);
    if (!item.Items().empty()) {
      return ChooseFrom(item.Items());
    }
    journal_.Note("menu " + item.Name);
    item.UserClick();
  }

  // Goes from container to container until it meets a control that holds no others. False if that
  // control takes no action.
  bool ActIn(forms::Control& container) {
    const auto& children = container.Children();
    forms::Control& control = *journal_.OneOf(children);
    if (!control.Reachable()) {
      return false;
    }
    if (!control.Children().empty()) {
      return ActIn(control);
    }
    last_ = &control;
    return ActOn(control);
  }

  bool ActOn(forms::Control& control) {
    journal_.Note(control.OwnerPage().Name() + " " + control.Name());
    RandomAct act(journal_);
    control.Accept(act);
    return act.Acted;
  }

  Journal& journal_;
  int depth_;
  int nested_ = 0;  // actions on the stack
  std::set<forms::Page*> shown_;
  forms::Control* last_ = nullptr;  // that was acted on
};

// What every page must look like when no handler runs.
void ExpectRest(Journal& journal) {
  journal.Expect(forms::Application::Current().AtRest(), "no handler is counted");
  const Form12& page = forms::The<Form12>();
  journal.Expect(page.Função1.Enabled && page.DerivadaDireita.Enabled && page.Calcular.Enabled,
                 "the commands of the work page are free");
  journal.Expect(!page.Image1(1).Visible, "the moving marker is away");
}

// One life of the program, to its end or for some hundred actions.
void Live(Journal& journal) {
  MonkeyHost host(journal, journal.OneIn(2) ? forms::GreatestDepth : 2 + journal.Below(8));
  forms::Application application(host);
  try {
    forms::The<Form2>().Show();
    for (int actions = journal.Below(500); actions >= 0; --actions) {
      host.Act();
      ExpectRest(journal);
    }
  } catch (const ProgramEnded&) {
  }
}

}  // namespace
}  // namespace clinorama::tests

int main(int argc, char** argv) {
  clinorama::tests::Journal journal(argc, argv);
  while (!journal.Over()) {
    clinorama::tests::Live(journal);
  }
  journal.TellTotal();
}
