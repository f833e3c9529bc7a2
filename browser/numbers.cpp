#include "browser/numbers.h"

namespace clinorama::browser {
namespace {

template <class Map>
typename Map::mapped_type Found(const Map& map, const typename Map::key_type& key) {
  const auto found = map.find(key);
  return found == map.end() ? typename Map::mapped_type{} : found->second;
}

}  // namespace

void Numbers::Add(forms::Page& page) {
  Add(static_cast<forms::Control&>(page));
  Add(page.MenuBar());
}

void Numbers::Drop(const forms::Page& page) {
  Drop(static_cast<const forms::Control&>(page));
  Drop(page.MenuBar());
}

void Numbers::Add(forms::Control& control) {
  ofControls_[&control] = ++last_;
  controls_[last_] = &control;
  for (forms::Control* child : control.Children()) {
    Add(*child);
  }
}

void Numbers::Add(const std::vector<forms::Menu*>& items) {
  for (forms::Menu* item : items) {
    ofItems_[item] = ++last_;
    items_[last_] = item;
    Add(item->Items());
  }
}

void Numbers::Drop(const forms::Control& control) {
  controls_.erase(Of(&control));
  ofControls_.erase(&control);
  for (const forms::Control* child : control.Children()) {
    Drop(*child);
  }
}

void Numbers::Drop(const std::vector<forms::Menu*>& items) {
  for (const forms::Menu* item : items) {
    items_.erase(Of(item));
    ofItems_.erase(item);
    Drop(item->Items());
  }
}

int Numbers::Of(const forms::Control* control) const { return Found(ofControls_, control); }
int Numbers::Of(const forms::Menu* item) const { return Found(ofItems_, item); }
forms::Control* Numbers::ControlOf(int number) const { return Found(controls_, number); }
forms::Menu* Numbers::ItemOf(int number) const { return Found(items_, number); }

}  // namespace clinorama::browser
