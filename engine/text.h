#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace clinorama::engine {

// Bytes that the character at `text[at]` takes: a code point in UTF-8, or a single byte where the
// bytes form none.
std::size_t CharacterLength(std::string_view text, std::size_t at);

// The text with its ASCII and its accented Latin letters in lower case, byte for byte as long as
// before. Bytes that form no character stay as they are.
std::string LowerCase(std::string text);

}  // namespace clinorama::engine
