#pragma once

// Runs the real program as a process of its own, within limits, and tells how it ended.

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "pruebas/comun/Saneado.h"
#include "pruebas/docx/ConstruyeDocx.h"

namespace analizador::pruebas {

struct TLimites {
    unsigned SegundosCpu = 60;        // processor time; over it the process is killed
    std::uint64_t Memoria = 0;        // bytes of address space; 0: no limit
    std::uint64_t TamanoFichero = 0;  // bytes of a file that it writes; 0: no limit
};

struct TFinal {
    int Codigo = -1;  // what it returned; -1 when a signal ended it
    int Senal = 0;
    std::string Salida;
    std::string Errores;
    double Segundos = 0;  // processor time in user mode
    long KiB = 0;         // most memory in use at a time, no less than this process's own when it started it
};

// A folder for the documents under attack and one that is the programs' only place for temporary files and
// everything else that they may keep; both empty, gone with the object.
class TBanco {
  public:
    TBanco();

    [[nodiscard]] std::filesystem::path Documento(std::string_view nombre) const {
        return Carpeta / "documentos" / nombre;
    }
    [[nodiscard]] std::filesystem::path Documentos() const { return Carpeta / "documentos"; }
    [[nodiscard]] std::filesystem::path Temporal() const { return Carpeta / "temporal"; }

    // The names of what lies in the folder of documents and, whole trees, in the other one.
    [[nodiscard]] std::vector<std::string> EnDocumentos() const;
    [[nodiscard]] std::vector<std::string> EnTemporal() const;

    // Runs `programa` with those arguments to its end. One that takes ten minutes is killed.
    [[nodiscard]] TFinal Corre(const std::filesystem::path& programa,
                               const std::vector<std::string>& argumentos,
                               const TLimites& limites = {}) const;

    // Starts it without waiting: its process. `antes` is called in the new process just before the program.
    [[nodiscard]] pid_t Lanza(const std::filesystem::path& programa,
                              const std::vector<std::string>& argumentos, const TLimites& limites = {},
                              const std::function<void()>& antes = {}) const;
    // What a process that Lanza started and that has ended wrote.
    [[nodiscard]] TFinal Recoge(int estado) const;

  private:
    TCarpeta Carpeta;
};

// Does `accion` in a process of its own, so that the memory it takes is not this one's. False when it failed.
[[nodiscard]] bool EnOtroProceso(const std::function<void()>& accion);

// How often a test repeats its attack: the environment's number of that name, else `corriente`.
[[nodiscard]] std::uint64_t Veces(const char* variable, std::uint64_t corriente);

}  // namespace analizador::pruebas
