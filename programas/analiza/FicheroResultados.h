#pragma once

// The results of a batch in a file, from which an interrupted run goes on.

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "programas/analiza/FicheroAnadido.h"

namespace analizador {

// A line of JSON for each deed, in the order in which they are given here. The file only grows while the
// batch runs, so that it is of use whenever the run ends: lines that are whole count, half a line at the end
// does not. A line that cannot come in its place (of a deed that changed, or that the list has got since)
// comes at the end as well, and Termina puts it there in one step.
//
// It keeps a few bytes a deed in memory, and a few dozen for each line found at the opening. Failures throw
// ErrorResultados.
class TFicheroResultados {
  public:
    // Opens `fichero`, or makes it. With `continua` it goes on with the lines in it; without, it must be new
    // or empty, as nobody wants to lose a day's results. Fails when another process is writing it, or when it
    // does not begin as a file of results does.
    TFicheroResultados(const std::filesystem::path& fichero, bool continua);

    // The mark of content ("huella") in the line that was found of a deed; none when there was no line, or
    // one that tells of a failure. From any thread.
    [[nodiscard]] std::optional<std::string> HuellaDe(const std::filesystem::path& escritura) const;

    // The next result is the line that was found of this deed. Only where HuellaDe says one.
    void Conserva(const std::filesystem::path& escritura);
    // The next result is this line, which has its end.
    void Anota(const std::filesystem::path& escritura, const std::string& linea);

    // All deeds were given: puts their lines in order, and behind them those of deeds that were not given.
    // Returns how many these are.
    std::size_t Termina();

  private:
    struct TLinea {
        TTrozo Trozo;
        std::optional<std::string> Huella;
        bool Dada = false;
    };

    void ExigeQueSeaDeResultados() const;
    void LeeLasQueHay();
    std::size_t PonLasNoDadas();
    [[nodiscard]] bool EstaEnOrden() const;

    TFicheroAnadido FFichero;
    std::unordered_map<std::string, TLinea> FHabia;  // by name, as the lines write it
    std::vector<TTrozo> FOrden;
};

}  // namespace analizador
