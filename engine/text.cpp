#include "engine/text.h"

#include <cstdint>

namespace clinorama::engine {

namespace {

std::uint32_t Byte(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

// The code point of `length` bytes, whose lead and continuation bytes are in order.
std::uint32_t CodePoint(std::string_view text, std::size_t at, std::size_t length) {
  std::uint32_t code = Byte(text, at) & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    code = (code << 6) | (Byte(text, at + i) & 0x3FU);
  }
  return code;
}

// The small letter of a code point of two bytes, for Latin-1 and Latin Extended-A. In Latin
// Extended-A capitals and small letters alternate: in some ranges the capitals are even, in others
// odd.
std::uint32_t LowerAccented(std::uint32_t code) {
  constexpr std::uint32_t MultiplicationSign = 0xD7;  // stands among the capitals of Latin-1
  constexpr std::uint32_t DottedI = 0x130;            // its small letter is the i of one byte
  constexpr std::uint32_t CapitalYDiaeresis = 0x178;  // its small letter is in Latin-1
  if (code == MultiplicationSign || code == DottedI) {
    return code;
  }
  if (code == CapitalYDiaeresis) {
    return 0xFF;
  }
  if (code >= 0xC0 && code <= 0xDE) {
    return code + 0x20;
  }
  const bool evenCapitals = (code >= 0x100 && code <= 0x137) || (code >= 0x14A && code <= 0x177);
  const bool oddCapitals = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
  if ((evenCapitals && code % 2 == 0) || (oddCapitals && code % 2 == 1)) {
    return code + 1;
  }
  return code;
}

}  // namespace

std::size_t CharacterLength(std::string_view text, std::size_t at) {
  const std::uint32_t lead = Byte(text, at);
  const std::size_t length = lead >= 0xF0 && lead <= 0xF4   ? 4
                             : lead >= 0xE0 && lead <= 0xEF ? 3
                             : lead >= 0xC2 && lead <= 0xDF ? 2
                                                            : 1;
  if (length == 1 || at + length > text.size()) {
    return 1;
  }
  for (std::size_t i = 1; i < length; ++i) {
    if ((Byte(text, at + i) & 0xC0U) != 0x80U) {
      return 1;
    }
  }
  // Codes that need fewer bytes, surrogates and codes above the last plane are no characters.
  const std::uint32_t code = CodePoint(text, at, length);
  const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return overlong || surrogate || code > 0x10FFFF ? 1 : length;
}

std::string LowerCase(std::string text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = CharacterLength(text, at);
    if (length == 1 && text[at] >= 'A' && text[at] <= 'Z') {
      text[at] = static_cast<char>(text[at] - 'A' + 'a');
    } else if (length == 2) {
      const std::uint32_t code = LowerAccented(CodePoint(text, at, length));
      text[at] = static_cast<char>(0xC0U | (code >> 6));
      text[at + 1] = static_cast<char>(0x80U | (code & 0x3FU));
    }
    at += length;
  }
  return text;
}

}  // namespace clinorama::engine
