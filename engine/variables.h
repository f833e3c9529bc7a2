#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace clinorama::engine {

/// The variable table. Every name that was ever written or that an expression uses has a slot, and
/// keeps it: removing a variable only marks its slot. So the evaluation holds slots and never looks
/// at a name. Names compare without regard to case.
class Variables {
 public:
  /// The slot of the name, made undefined if there was none.
  std::int32_t Slot(std::string_view name);

  void Write(std::string_view name, double value) {
    if (!IsLast(name)) {
      Remember(name);
    }
    entries_[lastSlot_] = {value, true, std::isfinite(value)};
  }

  /// The value under the name, 0 if there is none.
  double Read(std::string_view name) const;

  /// Makes the name undefined; one that is not there is no fault.
  void Remove(std::string_view name);
  void Clear();

  bool Defined(std::int32_t slot) const { return entries_[static_cast<std::size_t>(slot)].defined; }
  double Value(std::int32_t slot) const { return entries_[static_cast<std::size_t>(slot)].value; }
  /// Defined, and neither an infinity nor not a number.
  bool Usable(std::int32_t slot) const { return entries_[static_cast<std::size_t>(slot)].usable; }

 private:
  /// Most names are one letter, and comparing that is quicker than calling a comparison.
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

  std::vector<Entry> entries_;
  std::unordered_map<std::string, std::int32_t> slots_;  // by the name in lower case
  // The name written last, as it was spelt: a page writes the same one for every point.
  std::string lastName_;
  std::size_t lastSlot_ = 0;
};

}  // namespace clinorama::engine
