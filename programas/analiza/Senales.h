#pragma once

// The system's requests to end: Ctrl-C (SIGINT) and SIGTERM.

#include <csignal>

namespace analizador {

// While it lives, the first request only sets a mark and interrupts a reading that waits; the second one ends
// the program as if nothing had been said. A reader of the output that goes away and a file that grows too
// large are errors of writing, not the end of the program. One at a time.
class TPeticionDeFin {
  public:
    TPeticionDeFin();
    ~TPeticionDeFin();
    TPeticionDeFin(const TPeticionDeFin&) = delete;
    TPeticionDeFin& operator=(const TPeticionDeFin&) = delete;

    // The number of the signal that asked for the end; 0: none did. From any thread.
    [[nodiscard]] static int Senal();

  private:
    struct sigaction FInterrupcion {};
    struct sigaction FTerminacion {};
    struct sigaction FTuberia {};
    struct sigaction FTamano {};
};

// The threads that are started while it lives get none of those requests.
class TSenalesAparte {
  public:
    TSenalesAparte();
    ~TSenalesAparte();
    TSenalesAparte(const TSenalesAparte&) = delete;
    TSenalesAparte& operator=(const TSenalesAparte&) = delete;

  private:
    sigset_t FAntes{};
};

}  // namespace analizador
