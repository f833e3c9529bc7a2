#pragma once

#include <string>
#include <string_view>

namespace clinorama::browser {

// A text in the quotation marks of JSON, with what may not stand between them written otherwise.
std::string Quoted(std::string_view text);

// An object in JSON, put together member by member.
class JsonObject {
 public:
  JsonObject& Text(std::string_view name, std::string_view value) {
    return Raw(name, Quoted(value));
  }
  JsonObject& Number(std::string_view name, double value);
  JsonObject& Flag(std::string_view name, bool value) {
    return Raw(name, value ? "true" : "false");
  }
  // A value that is JSON already.
  JsonObject& Raw(std::string_view name, std::string_view json);

  std::string Done() const { return members_ + '}'; }

 private:
  std::string members_ = "{";
};

// An array in JSON.
class JsonArray {
 public:
  void Add(std::string_view json);
  bool Empty() const { return items_.size() == 1; }
  std::string Done() const { return items_ + ']'; }

 private:
  std::string items_ = "[";
};

}  // namespace clinorama::browser
