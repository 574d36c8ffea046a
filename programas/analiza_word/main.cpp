// analiza-word: analyses the deed that is open in Word and prints the report. It takes no arguments: CONFIG
// and TABLAS are beside it. Nothing is put to the user, and the document gets the sections' bookmarks.

#include <windows.h>

#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "adaptadores/word/AplicacionWord.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "programas/analiza/Entorno.h"

namespace {

using namespace analizador;

constexpr int FALLO = 1;

int Avisa(std::string_view causa) {
    std::cerr << "analiza-word: " << causa << '\n';
    return FALLO;
}

// Standard output puts its own line ends.
std::string SinRetornos(std::string texto) {
    std::erase(texto, '\r');
    return texto;
}

int Analiza() {
    const TEntorno entorno(std::nullopt, std::nullopt);
    TAplicacionWord word;
    TClassAnalizadorAbierto sesion(nullptr, &word);
    (void)sesion.Analiza(true);
    std::cout << SinRetornos(Utf8DeAnsi(sesion.Pizarra)) << std::flush;
    return std::cout ? 0 : FALLO;
}

}  // namespace

int main() {
    SetConsoleOutputCP(CP_UTF8);
    try {
        return Analiza();
    } catch (const ErrorWord& error) {
        return Avisa(Utf8DeAnsi(error.what()));
    } catch (const ErrorTabla& error) {
        return Avisa(Utf8DeAnsi(error.what()));
    } catch (const std::exception& error) {
        return Avisa(error.what());
    }
}
