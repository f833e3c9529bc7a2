#pragma once

#include <map>
#include <vector>

#include "forms/controls.h"
#include "forms/page.h"

namespace clinorama::browser {

// The numbers by which the document knows pages, controls and menu items. None is used twice, so a
// number of something that is gone stands for nothing. 0 is the number of nothing.
class Numbers {
 public:
  // Gives numbers to a page and to all that it holds, or takes them away.
  void Add(forms::Page& page);
  void Drop(const forms::Page& page);

  int Of(const forms::Control* control) const;
  int Of(const forms::Menu* item) const;
  // Null where there is none.
  forms::Control* ControlOf(int number) const;
  forms::Menu* ItemOf(int number) const;

 private:
  void Add(forms::Control& control);
  void Add(const std::vector<forms::Menu*>& items);
  void Drop(const forms::Control& control);
  void Drop(const std::vector<forms::Menu*>& items);

  int last_ = 0;
  std::map<const forms::Control*, int> ofControls_;
  std::map<const forms::Menu*, int> ofItems_;
  std::map<int, forms::Control*> controls_;
  std::map<int, forms::Menu*> items_;
};

}  // namespace clinorama::browser
