#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "base/checked.h"

namespace clinorama::engine {

// A variable. While it is not defined its value is a not-a-number, so that every calculation with
// it fails.
struct Variable {
  double Value = base::NotANumber;
  bool Defined = false;
};

// The variable table. A variable keeps its place, even when its value is removed, so an evaluation
// holds pointers and does not look names up. Names compare without regard to case.
class Variables {
 public:
  Variables() = default;
  Variables(const Variables&) = delete;  // evaluations hold pointers to the variables
  Variables& operator=(const Variables&) = delete;
  Variables(Variables&&) = default;  // the variables keep their places
  Variables& operator=(Variables&&) = default;

  // The variable of that name. If there was none, a new one without a value.
  Variable& At(std::string_view name);

  void Write(std::string_view name, double value) {
    if (!IsLast(name)) {
      Remember(name);
    }
    last_->Value = value;
    last_->Defined = true;
  }

  // The value of that name, 0 if it has none.
  double Read(std::string_view name) const;

  // Removes the value of that name, if it has one.
  void Remove(std::string_view name);
  // Removes all values.
  void Clear();

 private:
  // Most names are one letter, and comparing two letters is quicker than calling a comparison.
  bool IsLast(std::string_view name) const {
    return !name.empty() && name.size() == lastName_.size() && name[0] == lastName_[0] &&
           (name.size() == 1 || name == lastName_);
  }
  void Remember(std::string_view name);

  std::unordered_map<std::string, Variable> variables_;  // by the name in lower case
  // The name written last, as it was spelt. A page writes the same name for every point.
  std::string lastName_;
  Variable* last_ = nullptr;
};

}  // namespace clinorama::engine
