#include "browser/json.h"

#include <array>
#include <cstdio>

namespace clinorama::browser {

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char sign : text) {
    if (sign == '"' || sign == '\\') {
      quoted += '\\';
      quoted += sign;
    } else if (static_cast<unsigned char>(sign) < ' ') {
      std::array<char, 8> code{};
      std::snprintf(code.data(), code.size(), "\\u%04x", static_cast<unsigned>(sign));
      quoted += code.data();
    } else {
      quoted += sign;
    }
  }
  return quoted + '"';
}

JsonObject& JsonObject::Number(std::string_view name, double value) {
  std::array<char, 32> digits{};
  std::snprintf(digits.data(), digits.size(), "%.9g", value);
  return Raw(name, digits.data());
}

JsonObject& JsonObject::Raw(std::string_view name, std::string_view json) {
  if (members_.size() > 1) {
    members_ += ',';
  }
  members_ += Quoted(name);
  members_ += ':';
  members_ += json;
  return *this;
}

void JsonArray::Add(std::string_view json) {
  if (!Empty()) {
    items_ += ',';
  }
  items_ += json;
}

}  // namespace clinorama::browser
