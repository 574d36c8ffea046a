#include "programas/analiza/Senales.h"

#include <atomic>

namespace analizador {

namespace {

std::atomic<int> pedida = 0;
static_assert(std::atomic<int>::is_always_lock_free, "written from a signal's handler");

void AlPedir(int senal) {
    pedida = senal;
}

// Returns what was set before. No SA_RESTART: who waits for a line of the list stops waiting.
struct sigaction Pon(int senal, void (*que)(int)) {
    struct sigaction antes {};
    sigaction(senal, nullptr, &antes);
    if (antes.sa_handler == SIG_IGN) return antes;
    struct sigaction nueva {};
    nueva.sa_handler = que;
    nueva.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(senal, &nueva, nullptr);
    return antes;
}

}  // namespace

TPeticionDeFin::TPeticionDeFin() {
    pedida = 0;
    FAntes = {{{SIGINT, Pon(SIGINT, AlPedir)},
               {SIGTERM, Pon(SIGTERM, AlPedir)},
               {SIGPIPE, Pon(SIGPIPE, SIG_IGN)},
               {SIGXFSZ, Pon(SIGXFSZ, SIG_IGN)}}};
}

TPeticionDeFin::~TPeticionDeFin() {
    for (const auto& [senal, antes] : FAntes) sigaction(senal, &antes, nullptr);
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
