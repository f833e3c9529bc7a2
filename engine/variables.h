#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "base/checked.h"

namespace clinorama::engine {

// A variable that an expression uses or that was written once. Without a value it is not a number,
// so that no calculation with it can succeed.
struct Variable {
  double value = base::NotANumber;
  bool defined = false;
};

// The variable table. A variable stays where it is, with or without a value, so an evaluation holds
// pointers and looks at no name. Names compare without regard to case.
class Variables {
 public:
  Variables() = default;
  Variables(const Variables&) = delete;  // evaluations know where the variables are
  Variables& operator=(const Variables&) = delete;
  Variables(Variables&&) = default;  // the variables stay where they are
  Variables& operator=(Variables&&) = default;

  // The variable of that name, made without a value if there was none.
  Variable& At(std::string_view name);

  void Write(std::string_view name, double value) {
    if (!IsLast(name)) {
      Remember(name);
    }
    last_->value = value;
    last_->defined = true;
  }

  // The value under the name, 0 if there is none.
  double Read(std::string_view name) const;

  // Takes the value of the name away; one that is not there is no fault.
  void Remove(std::string_view name);
  void Clear();

 private:
  // Most names are one letter, and comparing that is quicker than calling a comparison.
  bool IsLast(std::string_view name) const {
    return !name.empty() && name.size() == lastName_.size() && name[0] == lastName_[0] &&
           (name.size() == 1 || name == lastName_);
  }
  void Remember(std::string_view name);

  std::unordered_map<std::string, Variable> variables_;  // by the name in lower case
  // The name written last, as it was spelt: a page writes the same one for every point.
  std::string lastName_;
  Variable* last_ = nullptr;
};

}  // namespace clinorama::engine
