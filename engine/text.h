#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace clinorama::engine {

// The number of bytes of the UTF-8 character at `text[at]`; 1 where the bytes are no character.
std::size_t CharacterLength(std::string_view text, std::size_t at);

// The text with its ASCII and accented Latin letters in lower case. It keeps its length in bytes;
// bytes that are no character stay as they are.
std::string LowerCase(std::string text);

}  // namespace clinorama::engine
