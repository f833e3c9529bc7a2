#include "browser/description.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "browser/json.h"
#include "forms/letters.h"
#include "forms/page.h"
#include "forms/picture_box.h"
#include "forms/units.h"

namespace clinorama::browser {
namespace {

std::string InHex(forms::Color color) {
  std::array<char, 8> digits{};
  std::snprintf(digits.data(), digits.size(), "#%06x", static_cast<unsigned>(color.Rgb));
  return digits.data();
}

std::string FontDescription(const forms::Font& font) {
  return JsonObject()
      .Flag("comic", forms::LettersFor(font, 1).Comic)
      .Number("size", font.Size * forms::PixelsToPoint)
      .Flag("bold", font.Bold)
      .Done();
}

// Adds what only controls of one kind have.
class KindDescriber final : public forms::ControlVisitor {
 public:
  KindDescriber(JsonObject& json, const Numbers& numbers) : json_(json), numbers_(numbers) {}

  void Visit(forms::Label& label) override {
    constexpr std::array Alignments = {"left", "right", "center"};
    json_.Text("kind", "label")
        .Text("text", forms::VisibleText(label.Font, label.Caption))
        .Raw("font", FontDescription(label.Font))
        .Text("color", InHex(label.ForeColor))
        .Text("alignment", Alignments.at(static_cast<std::size_t>(label.Alignment())))
        .Flag("bordered", label.Bordered)
        .Flag("inMiddle", label.InMiddle);
  }
  void Visit(forms::TextBox& box) override {
    json_.Text("kind", "text").Text("text", box.Text()).Raw("font", FontDescription(box.Font));
  }
  void Visit(forms::CommandButton& button) override {
    json_.Text("kind", "button")
        .Text("text", button.Caption())
        .Raw("font", FontDescription(button.Font))
        .Text("picture", button.Picture)
        .Number("twin", numbers_.Of(button.Twin));
  }
  void Visit(forms::OptionButton& option) override {
    json_.Text("kind", "option").Text("text", option.Caption()).Flag("on", option.Value);
  }
  void Visit(forms::CheckBox& box) override { json_.Text("kind", "check").Flag("on", box.Value); }
  void Visit(forms::Frame& frame) override {
    json_.Text("kind", "frame").Text("text", frame.Caption()).Text("color", InHex(frame.ForeColor));
  }
  void Visit(forms::Image& image) override {
    json_.Text("kind", "image").Text("picture", image.Picture);
  }
  // Steps are counted from the left end, whichever way the bar's values run.
  void Visit(forms::HScrollBar& bar) override {
    json_.Text("kind", "bar")
        .Number("steps", std::abs(bar.Max - bar.Min))
        .Number("step", std::abs(bar.Value - bar.Min));
  }
  void Visit(forms::PictureBox& /*picture*/) override { json_.Text("kind", "picture"); }

 private:
  JsonObject& json_;
  const Numbers& numbers_;
};

JsonObject Described(forms::Control& control, const Numbers& numbers) {
  JsonObject json;
  json.Number("number", numbers.Of(&control))
      .Text("name", control.Name())
      .Number("left", forms::LogicalPixels(control.Left))
      .Number("top", forms::LogicalPixels(control.Top))
      .Number("width", forms::LogicalPixels(control.Width))
      .Number("height", forms::LogicalPixels(control.Height))
      .Flag("visible", control.Visible)
      .Flag("enabled", control.Enabled)
      .Text("tip", control.ToolTipText())
      .Text("spoken", control.SpokenName());
  if (auto* page = dynamic_cast<forms::Page*>(&control)) {
    json.Text("kind", "page")
        .Text("text", page->Caption())
        .Flag("busy", page->MousePointer == forms::MousePointer::Hourglass);
  }
  KindDescriber kind(json, numbers);
  control.Accept(kind);
  return json;
}

std::string MenuDescription(const std::vector<forms::Menu*>& items, const Numbers& numbers) {
  const std::vector<std::size_t> letters = forms::LettersThatChoose(items);
  JsonArray json;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::string& caption = items[i]->Caption;
    const std::size_t letter = std::min(letters[i], caption.size());
    const std::size_t after = std::min(letter + 1, caption.size());
    json.Add(JsonObject()
                 .Number("number", numbers.Of(items[i]))
                 .Text("name", items[i]->Name)
                 .Text("before", caption.substr(0, letter))
                 .Text("letter", caption.substr(letter, after - letter))
                 .Text("after", caption.substr(after))
                 .Raw("items", MenuDescription(items[i]->Items(), numbers))
                 .Done());
  }
  return json.Done();
}

}  // namespace

std::string Description(forms::Control& control, const Numbers& numbers) {
  return Described(control, numbers).Done();
}

std::string DescriptionOfAll(forms::Control& control, const Numbers& numbers) {
  JsonObject json = Described(control, numbers);
  JsonArray children;
  for (forms::Control* child : control.Children()) {
    children.Add(DescriptionOfAll(*child, numbers));
  }
  json.Raw("children", children.Done());
  if (auto* page = dynamic_cast<forms::Page*>(&control)) {
    json.Raw("menu", MenuDescription(page->MenuBar(), numbers))
        .Number("pageUp", numbers.Of(page->PageUp))
        .Number("pageDown", numbers.Of(page->PageDown))
        .Flag("closedByEscape", page->ClosedByEscape);
  }
  return json.Done();
}

}  // namespace clinorama::browser
