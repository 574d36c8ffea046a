// A C++ host that uses the library's class: analyses the deed that is open in Word and prints the report. It
// is built with the compiler of the library and with its headers, and linked with its import library alone:
//
//     x86_64-w64-mingw32-g++-posix -std=c++20 -static -Iinclude anfitrion_word.cpp libanalizador.dll.a

#include <iostream>

#include "adaptadores/word/AplicacionWord.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "plataforma/Ansi.h"
#include "programas/biblioteca/AjustesCompartidos.h"

int main() {
    using namespace analizador;
    try {
        const TAjustesCompartidos ajustes({});  // CONFIG and TABLAS beside the program or the library
        TAplicacionWord word;                   // the one that is running
        TClassAnalizadorAbierto sesion(nullptr, &word);
        const bool aceptado = sesion.Analiza(true);  // true: do not ask for the notary
        for (const auto& [nombre, otorgante] : sesion.Otorgantes.Lista)
            std::cout << Utf8DeAnsi(otorgante->MuestraOtorgante()) << '\n';
        std::cout << Utf8DeAnsi(sesion.Pizarra) << (aceptado ? "accepted\n" : "not reviewed\n");
    } catch (const ErrorWord& error) {
        std::cerr << Utf8DeAnsi(error.what()) << '\n';
        return 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
