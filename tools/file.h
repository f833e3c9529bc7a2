#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace clinorama::tools {

// Writes a file, and its folder where there is none. One that holds the text already keeps its
// date, so that nothing is built anew because of it. Throws std::runtime_error.
inline void WriteIfNew(const std::filesystem::path& file, const std::string& text) {
  std::ostringstream before;
  before << std::ifstream(file, std::ios::binary).rdbuf();
  if (before.str() == text) {
    return;
  }
  if (file.has_parent_path()) {
    std::filesystem::create_directories(file.parent_path());
  }
  std::ofstream out(file, std::ios::binary);
  out << text;
  if (!out.flush()) {
    throw std::runtime_error("cannot write " + file.string());
  }
}

}  // namespace clinorama::tools
