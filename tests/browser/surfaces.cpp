// Writes what the program draws on its surfaces, without texts, for the tests in a browser to
// compare with: a file of red, green and blue bytes for each surface, into the folder given.

#include <fstream>
#include <string>

#include "benchmarks/null_host.h"
#include "forms/application.h"
#include "forms/picture_box.h"
#include "relations/Form13.h"
#include "workpage/Form12.h"

namespace clinorama::tests {
namespace {

using forms::The;

void Write(const std::string& file, const forms::Raster& raster) {
  std::ofstream out(file, std::ios::binary);
  for (int y = 0; y < raster.Height(); ++y) {
    for (int x = 0; x < raster.Width(); ++x) {
      for (const int shift : {16, 8, 0}) {
        out.put(static_cast<char>(raster.At(x, y).Rgb >> shift & 0xFF));
      }
    }
  }
}

void WriteAll(const std::string& folder) {
  benchmarks::NullHost host;
  forms::Application application(host);
  auto& work = The<Form12>();
  work.Show();
  work.DesenharGráfico.UserClick();
  work.DerivadaEsquerda.UserClick();
  work.DerivadaDireita.UserClick();
  Write(folder + "/derivatives.rgb", work.Picture1.Screen());
  work.Calcular.UserClick();
  Write(folder + "/sweep.rgb", work.Picture1.Screen());
  work.Relacionar.UserClick();
  auto& relations = The<Form13>();
  relations.DesenharGráfico.UserClick();
  relations.ColocarCoresFunção.UserClick();
  relations.DesenharPrimeira.UserClick();
  relations.ColocarCoresPrimeira1.UserClick();
  relations.DesenharSegunda.UserClick();
  for (const int surface : {1, 3, 5}) {
    Write(folder + "/relations_" + std::to_string(surface) + ".rgb",
          relations.Picture1(surface).Screen());
  }
}

}  // namespace
}  // namespace clinorama::tests

int main(int argc, char* argv[]) {
  if (argc != 2) {
    return 2;
  }
  clinorama::tests::WriteAll(argv[1]);
}
