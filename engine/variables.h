#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace clinorama::engine {

// The variable table. Every name that was ever written or that an expression uses has a slot, and
// keeps it: removing a variable only marks its slot. So the evaluation holds slots and never looks
// at a name. Names compare without regard to case.
class Variables {
 public:
  Variables() = default;
  Variables(const Variables&) = delete;  // programmes know where the values are
  Variables& operator=(const Variables&) = delete;
  Variables(Variables&&) = default;  // the values stay where they are
  Variables& operator=(Variables&&) = default;

  // The slot of the name, made undefined if there was none.
  std::int32_t Slot(std::string_view name);

  void Write(std::string_view name, double value) {
    if (!IsLast(name)) {
      Remember(name);
    }
    last_->value = value;
    if (!last_->usable || !std::isfinite(value)) [[unlikely]] {
      Define(*last_);
    }
  }

  // The value under the name, 0 if there is none.
  double Read(std::string_view name) const;

  // Makes the name undefined; one that is not there is no fault.
  void Remove(std::string_view name);
  void Clear();

  bool Defined(std::int32_t slot) const { return entries_[static_cast<std::size_t>(slot)].defined; }
  // Defined, and neither an infinity nor not a number.
  bool Usable(std::int32_t slot) const { return entries_[static_cast<std::size_t>(slot)].usable; }
  // Where the value of the slot is, now and later.
  const double* Value(std::int32_t slot) const {
    return &entries_[static_cast<std::size_t>(slot)].value;
  }

  // A number that grows, from 1, whenever `Usable` may give another answer than before.
  std::uint64_t Changes() const { return changes_; }

 private:
  // Most names are one letter, and comparing that is quicker than calling a comparison.
  bool IsLast(std::string_view name) const {
    return !name.empty() && name.size() == lastName_.size() && name[0] == lastName_[0] &&
           (name.size() == 1 || name == lastName_);
  }
  void Remember(std::string_view name);

  struct Entry {
    double value = 0;
    bool defined = false;
    bool usable = false;
  };

  void Define(Entry& entry);

  std::deque<Entry> entries_;  // which stay where they are when there come more of them
  std::unordered_map<std::string, std::int32_t> slots_;  // by the name in lower case
  // The name written last, as it was spelt: a page writes the same one for every point.
  std::string lastName_;
  Entry* last_ = nullptr;
  std::uint64_t changes_ = 1;
};

}  // namespace clinorama::engine
