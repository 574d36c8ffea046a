// analiza-word [--revisa]: analyses the deed that is open in Word and prints the report; with --revisa, that
// of what the user accepts in windows over Word's. CONFIG and TABLAS are beside it. The document gets the
// sections' bookmarks.

#include <windows.h>

#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "adaptadores/word/AplicacionWord.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "analizador/Pizarra.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "plataforma/Utf8.h"
#include "programas/analiza/Entorno.h"
#include "programas/biblioteca/Ventanas.h"

namespace {

using namespace analizador;

// The codes of analiza.
constexpr int FALLO = 1;
constexpr int MAL_USO = 2;
constexpr int REVISION_CANCELADA = 3;

int Avisa(std::string_view causa) {
    std::cerr << "analiza-word: " << EnUnaLinea(causa) << '\n';
    return FALLO;
}

// Standard output puts its own line ends.
std::string SinRetornos(std::string texto) {
    std::erase(texto, '\r');
    return texto;
}

int Analiza(bool revisa) {
    const TEntorno entorno(std::nullopt, std::nullopt);
    TAplicacionWord word;
    const auto ventanas = revisa ? AbreVentanas(word.Ventana()) : nullptr;
    TClassAnalizadorAbierto sesion(nullptr, &word);
    if (!sesion.Analiza(!revisa) && revisa) {
        (void)Avisa("revisión cancelada");
        return REVISION_CANCELADA;
    }
    const std::string informe = revisa ? TextoPizarra(sesion, sesion.ConceptosValidos) : sesion.Pizarra;
    std::cout << SinRetornos(Utf8DeAnsi(informe)) << std::flush;
    return std::cout ? 0 : FALLO;
}

}  // namespace

int main(int argc, char** argv) {
    SetConsoleOutputCP(CP_UTF8);
    const bool revisa = argc == 2 && std::string_view(argv[1]) == "--revisa";
    if (argc > 1 && !revisa) {
        (void)Avisa("uso: analiza-word [--revisa]");
        return MAL_USO;
    }
    try {
        return Analiza(revisa);
    } catch (const ErrorWord& error) {
        return Avisa(Utf8DeAnsi(error.what()));
    } catch (const ErrorTabla& error) {
        return Avisa(Utf8DeAnsi(error.what()));
    } catch (const std::exception& error) {
        return Avisa(error.what());
    }
}
