#include "engine/variables.h"

#include "engine/text.h"

namespace clinorama::engine {

std::int32_t Variables::Slot(std::string_view name) {
  const auto [place, isNew] =
      slots_.try_emplace(LowerCase(std::string(name)), static_cast<std::int32_t>(entries_.size()));
  if (isNew) {
    entries_.emplace_back();
  }
  return place->second;
}

void Variables::Remember(std::string_view name) {
  last_ = &entries_[static_cast<std::size_t>(Slot(name))];
  lastName_ = name;
}

void Variables::Define(Entry& entry) {
  entry.defined = true;
  entry.usable = std::isfinite(entry.value);
  ++changes_;
}

double Variables::Read(std::string_view name) const {
  const auto place = slots_.find(LowerCase(std::string(name)));
  return place != slots_.end() && Defined(place->second) ? *Value(place->second) : 0;
}

void Variables::Remove(std::string_view name) {
  const auto place = slots_.find(LowerCase(std::string(name)));
  if (place != slots_.end()) {
    entries_[static_cast<std::size_t>(place->second)] = {};
    ++changes_;
  }
}

void Variables::Clear() {
  for (Entry& entry : entries_) {
    entry = {};
  }
  ++changes_;
}

}  // namespace clinorama::engine
