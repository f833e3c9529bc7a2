// A random user of the pages, on a host without windows or clock: acts on whatever there is, also
// inside motions, pauses and boxes. Usage: pages_monkey [seconds [seed]]

#include <set>

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
    return journal_.OneIn(2) ? std::nullopt : std::optional(forms::QBColor(journal_.Below(16)));
  }
  void Wait(int /*milliseconds*/) override { ActSometimes(60); }
  void WaitForEvents() override { Act(); }
  [[noreturn]] void End() override { throw ProgramEnded{}; }

  void Act() {
    if (journal_.Over()) {
      throw ProgramEnded{};
    }
    forms::Page& page = *journal_.OneOf(shown_);
    const int what = journal_.Below(20);
    if (what == 0) {
      // Seldom, so that motions nest first; closing the first page ends the program.
      if (journal_.OneIn(page.Name() == "Form2" ? 100 : 10)) {
        journal_.Note(page.Name() + " closed by its frame");
        forms::Application::Current().Run(page, [&page] { page.UserClose(); });
      }
    } else if (what == 1) {
      journal_.Note(page.Name() + " brought to the front");
      forms::Application::Current().BecameActive(page);
    } else if (what < 4) {
      ChooseFromMenu(page);
    } else if (what < 7) {
      while (!ActIn(page)) {
      }
    } else if (last_ != nullptr) {  // leafing through the lesson, for instance
      ActOn(*last_);
    }
  }

 private:
  void ActSometimes(int rarity) {
    if (journal_.OneIn(rarity)) {
      Act();
    }
  }

  void ChooseFromMenu(const forms::Page& page) {
    forms::Menu* item = nullptr;
    for (const auto* items = &page.MenuBar(); !items->empty(); items = &item->Items()) {
      item = journal_.OneOf(*items);
    }
    if (item != nullptr) {
      journal_.Note("menu " + item->Name);
      item->UserClick();
    }
  }

  // Goes from container to container until it meets a control that holds no others. False if a user
  // cannot act on that one.
  bool ActIn(forms::Control& container) {
    forms::Control& control = *journal_.OneOf(container.Children());
    if (!control.Reachable() || !control.Children().empty()) {
      return control.Reachable() && ActIn(control);
    }
    last_ = &control;
    return ActOn(control);
  }

  bool ActOn(forms::Control& control) {
    journal_.Note(control.OwnerPage().Name() + " " + control.Name());
    if (auto* label = dynamic_cast<forms::Label*>(&control)) {
      journal_.OneIn(2) ? label->UserClick() : label->UserDoubleClick();
    } else if (auto* box = dynamic_cast<forms::TextBox*>(&control)) {
      box->UserType(RandomText());
    } else if (auto* button = dynamic_cast<forms::CommandButton*>(&control)) {
      button->UserClick();
    } else if (auto* option = dynamic_cast<forms::OptionButton*>(&control)) {
      option->UserClick();
    } else if (auto* bar = dynamic_cast<forms::HScrollBar*>(&control)) {
      bar->UserScroll(journal_.Below(14) - 2);
      bar->UserHold(journal_.OneIn(3));
    } else {
      return false;
    }
    return true;
  }

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
  int depth_;
  std::set<forms::Page*> shown_;
  forms::Control* last_ = nullptr;  // that was acted on
};

// One life of the program, to its end or for some hundred actions.
void Live(Journal& journal) {
  MonkeyHost host(journal, journal.OneIn(2) ? forms::GreatestDepth : 2 + journal.Below(8));
  forms::Application application(host);
  try {
    forms::The<Form2>().Show();
    for (int actions = journal.Below(500); actions >= 0; --actions) {
      host.Act();
      const Form12& page = forms::The<Form12>();
      if (!application.AtRest() || !page.Função1.Enabled || page.Image1(1).Visible) {
        std::fputs("a handler has ended and left something behind\n", stderr);
        std::abort();
      }
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
