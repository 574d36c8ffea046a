#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plataforma/VrkWord.h"
#include "programas/analiza/AnalisisEscritura.h"
#include "programas/biblioteca/AjustesCompartidos.h"
#include "programas/biblioteca/Resultados.h"

namespace analizador {

// What a host's session holds and does. Texts are UTF-8. Every function may throw ErrorInterfaz; what each
// one means to the host is said in analizador.h.
class TSesionAnfitrion {
  public:
    // Throws ErrorConfiguracion.
    explicit TSesionAnfitrion(const TCarpetas& carpetas) : FAjustes(carpetas) {}

    // Before every analysis, whatever becomes of it: forgets the results of the one before, and what was set
    // for a text is from now on this one's alone.
    void Empieza();
    void AnalizaFichero(const std::string& fichero, unsigned opciones);
    void AnalizaTexto(const std::string& texto, unsigned opciones);
    // Keeps nothing of Word's.
    void AnalizaWord(void* aplicacion, unsigned opciones);
    void PonVariable(const std::string& nombre, const std::string& valor);
    void PonMarcador(const std::string& nombre);

    [[nodiscard]] TResultados& Resultados();
    [[nodiscard]] bool Aceptada() const;
    // No `destino`: the analysed file itself.
    void Guarda(const std::optional<std::filesystem::path>& destino, unsigned opciones);

  private:
    void ExigeResultados() const;
    void Recoge(const std::string& archivo, unsigned opciones, std::unique_ptr<TAnalisisEscritura> analisis);

    TAjustesCompartidos FAjustes;
    TContenidoDocumento FSiguiente;  // the variables and bookmarks of the text that is analysed next
    TContenidoDocumento FActual;     // those of this one
    std::filesystem::path FFichero;  // what was analysed; empty when a text
    std::unique_ptr<TAnalisisEscritura> FAnalisis;  // of a file, for saving it
    bool FAceptada = false;
    std::optional<TResultados> FResultados;
};

}  // namespace analizador
