#pragma once

// A program that is watched, interrupted and killed while it runs.

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace analizador {

// `analiza` running with its outputs in the files given. What has not been waited for is killed.
class TProceso {
  public:
    // `entrada`: -1 for an empty standard input, else a descriptor to read it from, which stays the caller's.
    TProceso(const std::vector<std::string>& argumentos, const std::filesystem::path& salida,
             const std::filesystem::path& errores, int entrada = -1);
    ~TProceso();
    TProceso(const TProceso&) = delete;
    TProceso& operator=(const TProceso&) = delete;

    void Senal(int senal) const;

    // Whether it is still running.
    [[nodiscard]] bool Vive() const;

    // How it ended: its exit code, or minus the signal that killed it.
    [[nodiscard]] int Espera();

    // The most memory that it had, in KiB. After Espera.
    [[nodiscard]] long Memoria() const { return FMemoria; }

  private:
    pid_t FProceso = -1;
    long FMemoria = 0;
};

}  // namespace analizador
