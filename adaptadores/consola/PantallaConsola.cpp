#include "adaptadores/consola/PantallaConsola.h"

#include <unistd.h>

#include <string>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr const char* BORRA_LINEA = "\r\x1B[K";

class TVentanaConsola : public TVentanaMensaje {
  public:
    explicit TVentanaConsola(std::string_view texto) { Escribe(texto); }
    ~TVentanaConsola() override { std::fputs(BORRA_LINEA, stderr); }
    TVentanaConsola(const TVentanaConsola&) = delete;
    TVentanaConsola& operator=(const TVentanaConsola&) = delete;
    void Cambia(std::string_view texto) override { Escribe(texto); }

  private:
    static void Escribe(std::string_view texto) {
        std::fputs((BORRA_LINEA + Utf8DeAnsi(texto)).c_str(), stderr);
        std::fflush(stderr);
    }
};

}  // namespace

TPantallaConsola::TPantallaConsola() : FEsTerminal(isatty(STDERR_FILENO) == 1) {}

std::unique_ptr<TVentanaMensaje> TPantallaConsola::Abre(std::string_view texto,
                                                        TComponente* /*propietario*/) {
    return FEsTerminal ? std::make_unique<TVentanaConsola>(texto) : nullptr;
}

}  // namespace analizador
