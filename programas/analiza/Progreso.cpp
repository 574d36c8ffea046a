#include "programas/analiza/Progreso.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t CASILLAS = 24;
constexpr std::size_t ANCHO_CORRIENTE = 80;
constexpr auto CADA_CUANTO = 100ms;

std::string Duracion(std::chrono::milliseconds tiempo) {
    const auto segundos = static_cast<int>(tiempo / 1s);
    const std::string minutos = segundos < 3600
                                    ? std::to_string(segundos / 60)
                                    : std::to_string(segundos / 3600) + ":" + StrCeros(segundos / 60 % 60, 2);
    return minutos + ":" + StrCeros(segundos % 60, 2);
}

std::string Escrituras(const std::string& cuantas) {
    return cuantas + (cuantas == "1" ? " escritura" : " escrituras");
}

std::string Fallidas(const TAvance& avance) {
    return avance.Fallidas == 0 ? "" : ", " + std::to_string(avance.Fallidas) + " con fallo";
}

std::string Barra(std::size_t hechas, std::size_t cuantas) {
    const std::size_t llenas = CASILLAS * hechas / cuantas;
    return "[" + std::string(llenas, '#') + std::string(CASILLAS - llenas, '.') + "] ";
}

// What was kept took no time, and tells nothing about the rest.
std::string LoQueQueda(const TAvance& avance) {
    const std::size_t analizadas = avance.Hechas - avance.Conservadas;
    if (analizadas == 0 || avance.Hechas == *avance.Cuantas) return "";
    const auto quedan = *avance.Cuantas - avance.Hechas;
    return ", faltan " + Duracion(avance.Tiempo * quedan / analizadas);
}

std::size_t AnchoDelTerminal() {
    winsize tamano{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &tamano) == 0 && tamano.ws_col > 0 ? tamano.ws_col
                                                                               : ANCHO_CORRIENTE;
}

}  // namespace

std::string TextoProgreso(const TAvance& avance, std::size_t ancho) {
    const bool hayTotal = avance.Cuantas && *avance.Cuantas > 0;
    std::string texto = hayTotal ? std::to_string(avance.Hechas) + " de " : "";
    texto += Escrituras(std::to_string(hayTotal ? *avance.Cuantas : avance.Hechas)) + Fallidas(avance);
    if (hayTotal) texto += LoQueQueda(avance);
    if (hayTotal && CASILLAS + 3 + texto.size() <= ancho)
        texto.insert(0, Barra(avance.Hechas, *avance.Cuantas));
    return texto.substr(0, ancho);
}

std::string TextoFinal(const TAvance& avance) {
    std::string texto = Escrituras(std::to_string(avance.Hechas)) + Fallidas(avance);
    if (avance.Conservadas > 0) texto += ", " + std::to_string(avance.Conservadas) + " ya hechas";
    return texto + ", en " + Duracion(avance.Tiempo);
}

TProgreso::TProgreso(std::optional<std::size_t> cuantas) : FEsTerminal(isatty(STDERR_FILENO) == 1) {
    FAvance.Cuantas = cuantas;
}

void TProgreso::Quita() {
    if (!FALaVista) return;
    std::fputs("\r\x1B[K", stderr);
    FALaVista = false;
}

void TProgreso::Cuenta(bool falla, bool conservada) {
    ++FAvance.Hechas;
    if (falla) ++FAvance.Fallidas;
    if (conservada) ++FAvance.Conservadas;
    const auto ahora = TReloj::now();
    if (!FEsTerminal || ahora - FMostrado < CADA_CUANTO) return;
    FAvance.Tiempo = std::chrono::duration_cast<std::chrono::milliseconds>(ahora - FComienzo);
    std::fprintf(stderr, "\r%s\x1B[K", TextoProgreso(FAvance, AnchoDelTerminal() - 1).c_str());
    FMostrado = ahora;
    FALaVista = true;
}

void TProgreso::Termina() {
    Quita();
    if (!FEsTerminal) return;
    FAvance.Tiempo = std::chrono::duration_cast<std::chrono::milliseconds>(TReloj::now() - FComienzo);
    std::fprintf(stderr, "%s\n", TextoFinal(FAvance).c_str());
}

}  // namespace analizador
