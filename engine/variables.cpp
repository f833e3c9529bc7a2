#include "engine/variables.h"

#include "engine/text.h"

namespace clinorama::engine {

Variable& Variables::At(std::string_view name) { return variables_[LowerCase(std::string(name))]; }

void Variables::Remember(std::string_view name) {
  last_ = &At(name);
  lastName_ = name;
}

double Variables::Read(std::string_view name) const {
  const auto place = variables_.find(LowerCase(std::string(name)));
  return place != variables_.end() && place->second.Defined ? place->second.Value : 0;
}

void Variables::Remove(std::string_view name) {
  const auto place = variables_.find(LowerCase(std::string(name)));
  if (place != variables_.end()) {
    place->second = {};
  }
}

void Variables::Clear() {
  for (auto& [name, variable] : variables_) {
    variable = {};
  }
}

}  // namespace clinorama::engine
