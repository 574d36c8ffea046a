#include "programas/analiza/Senales.h"

#include <atomic>

namespace analizador {

namespace {

std::atomic<int> pedida = 0;
static_assert(std::atomic<int>::is_always_lock_free, "written from a signal's handler");

void AlPedir(int senal) {
    pedida = senal;
}

}  // namespace

TPeticionDeFin::TPeticionDeFin() {
    pedida = 0;
    struct sigaction marca {};
    marca.sa_handler = AlPedir;
    // No SA_RESTART: who waits for a line of the list stops waiting.
    marca.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &marca, &FInterrupcion);
    sigaction(SIGTERM, &marca, &FTerminacion);
    struct sigaction ninguna {};
    ninguna.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &ninguna, &FTuberia);
    sigaction(SIGXFSZ, &ninguna, &FTamano);
}

TPeticionDeFin::~TPeticionDeFin() {
    sigaction(SIGINT, &FInterrupcion, nullptr);
    sigaction(SIGTERM, &FTerminacion, nullptr);
    sigaction(SIGPIPE, &FTuberia, nullptr);
    sigaction(SIGXFSZ, &FTamano, nullptr);
}

int TPeticionDeFin::Senal() {
    return pedida;
}

TSenalesAparte::TSenalesAparte() {
    sigset_t peticiones;
    sigemptyset(&peticiones);
    sigaddset(&peticiones, SIGINT);
    sigaddset(&peticiones, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &peticiones, &FAntes);
}

TSenalesAparte::~TSenalesAparte() {
    pthread_sigmask(SIG_SETMASK, &FAntes, nullptr);
}

}  // namespace analizador
