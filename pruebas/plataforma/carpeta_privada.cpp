// A process with a private folder: prints its path and leaves a file in it. "acaba": ends as programs do;
// "muere": ends at once, as one that is killed; "espera": ends when its standard input does.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>

#include "plataforma/CarpetaPrivada.h"

int main(int argc, char** argv) {
    const std::string_view fin = argc > 1 ? argv[1] : "acaba";
    std::printf("%s\n", analizador::CarpetaPrivada().string().c_str());
    std::fflush(stdout);
    std::ofstream(analizador::CarpetaPrivada() / "dato") << "personal";
    if (fin == "muere") std::_Exit(1);
    while (fin == "espera" && std::getchar() != EOF) {
    }
    return 0;
}
