// The pictures of texts are made from sources by scripts/pages and kept beside them. These tests
// tell when a picture was forgotten, or no longer belongs to its source.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace clinorama::tests {
namespace {

const std::filesystem::path Resources = CLINORAMA_RESOURCES;

std::string Contents(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// FNV-1a with 64 bits over the contents of files, as scripts/typeset computes it.
std::string Fingerprint(const std::vector<std::string>& files) {
  std::uint64_t hash = 0xcbf29ce484222325;
  for (const std::string& file : files) {
    for (const char byte : Contents(Resources / file)) {
      hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
  }
  std::ostringstream text;
  text << std::hex << std::setw(16) << std::setfill('0') << hash;
  return text.str();
}

// What a picture says it was made from: the names of files below resources, then their print.
std::vector<std::string> Origin(const std::string& picture) {
  const std::string mark = "<!-- Typeset from ";
  const std::size_t begin = picture.find(mark);
  if (begin == std::string::npos) {
    return {};
  }
  std::istringstream words(
      picture.substr(begin, picture.find(" -->", begin) - begin).substr(mark.size()));
  return {std::istream_iterator<std::string>(words), {}};
}

std::vector<std::filesystem::path> Sources() {
  std::vector<std::filesystem::path> sources;
  for (const char* folder : {"lesson", "manual"}) {
    if (!exists(Resources / folder)) {
      continue;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Resources / folder)) {
      if (entry.path().extension() == ".typ") {
        sources.push_back(entry.path());
      }
    }
  }
  return sources;
}

TEST(Pictures, OfTheLessonAreComplete) {
  std::vector<std::string> names = {"definicao"};
  for (int page = 0; page <= 30; ++page) {
    names.push_back((page < 10 ? "pagina_0" : "pagina_") + std::to_string(page));
  }
  for (const std::string& name : names) {
    for (const char* extension : {".typ", ".svg", ".txt"}) {
      EXPECT_GT(Contents(Resources / "lesson" / (name + extension)).size(), 50u)
          << name << extension;
    }
  }
}

TEST(Pictures, BelongToTheirPresentSources) {
  const auto sources = Sources();
  ASSERT_GE(sources.size(), 32u);
  for (std::filesystem::path file : sources) {
    SCOPED_TRACE(file.string() + ": scripts/pages makes the picture anew");
    const std::string name = relative(file, Resources).generic_string();
    EXPECT_FALSE(Contents(file.replace_extension(".txt")).empty());
    const std::string picture = Contents(file.replace_extension(".svg"));
    std::vector<std::string> origin = Origin(picture);
    ASSERT_GE(origin.size(), 3u) << "the page, the template and their print";
    EXPECT_EQ(origin.front(), name);
    const std::string print = origin.back();
    origin.pop_back();
    EXPECT_EQ(Fingerprint(origin), print);
    // What the renderer of the desktop cannot draw would be missing without a word.
    for (const char* element : {"<symbol", "<style", "<text", "<foreignObject", " href="}) {
      EXPECT_EQ(picture.find(element), std::string::npos) << element;
    }
  }
}

// Whole lines as a screen reader gets them, among them the lesson's own slips.
TEST(Pictures, HaveTheirWordsBesideThem) {
  const struct {
    const char* page;
    const char* line;
  } rows[] = {
      {"definicao", "f'(a) = lim (x→a) (f(x) - f(a))/(x - a)"},
      {"pagina_00", "f'-(a) = lim (x→a-) (f(x) - f(a))/(x - a)"},
      {"pagina_00", "ponto a (designa-se por f'+(a)) ao limite, se existir,"},
      {"pagina_01", "que a mostra, caso exista."},
      {"pagina_04", "Por isso, vão utilizar-se as semi-secantes e as semi-"},
      {"pagina_16", "à direita, logo seguido pelas conclusões"},
      {"pagina_19", "Porém, existem clinorama laterais:"},
      {"pagina_28", "f'(a) existir (finita ou não), a diz-se um ponto"},
      {"pagina_28", "- um ponto de reversão se as clinorama laterais"},
      {"pagina_30", "O ponto a é um ponto de anguloso."},
  };
  for (const auto& row : rows) {
    const std::string words =
        "\n" + Contents(Resources / "lesson" / (std::string(row.page) + ".txt"));
    EXPECT_NE(words.find("\n" + std::string(row.line) + "\n"), std::string::npos)
        << row.page << ": " << row.line;
  }
}

}  // namespace
}  // namespace clinorama::tests
