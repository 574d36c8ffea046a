#include "pruebas/ataques/Rastreo.h"

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace analizador::pruebas {

namespace {

constexpr int PARADA_DE_LLAMADA = SIGTRAP | 0x80;

void DejaseRastrear() {
    if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(125);
}

// The signal that a stopped thread is to go on with: its own ones, not those of the tracing.
int SenalPropia(int estado) {
    const int senal = WSTOPSIG(estado);
    return senal == PARADA_DE_LLAMADA || senal == SIGTRAP || senal == SIGSTOP ? 0 : senal;
}

}  // namespace

TFinal Rastrea(const TBanco& banco, const std::filesystem::path& programa,
               const std::vector<std::string>& argumentos, const TAlParar& alParar) {
    const pid_t proceso = banco.Lanza(programa, argumentos, {}, DejaseRastrear);
    int estado = 0;
    if (::waitpid(proceso, &estado, 0) != proceso || !WIFSTOPPED(estado))
        throw std::runtime_error("this system lets no process be traced");
    constexpr auto OPCIONES = PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACECLONE;
    ::ptrace(PTRACE_SETOPTIONS, proceso, nullptr, OPCIONES);
    ::ptrace(PTRACE_SYSCALL, proceso, nullptr, nullptr);
    std::uint64_t parada = 0;
    for (;;) {
        const pid_t hilo = ::waitpid(-1, &estado, __WALL);
        if (hilo < 0) throw std::runtime_error("lost a process");
        if (hilo == proceso && !WIFSTOPPED(estado)) return banco.Recoge(estado);
        if (!WIFSTOPPED(estado)) continue;  // one of its threads has ended
        if (WSTOPSIG(estado) == PARADA_DE_LLAMADA && alParar(parada++) == TPaso::Mata)
            ::kill(proceso, SIGKILL);
        ::ptrace(PTRACE_SYSCALL, hilo, nullptr, SenalPropia(estado));
    }
}

bool SePuedeRastrear() {
    const TBanco banco;
    try {
        return Rastrea(banco, "/bin/true", {}, [](std::uint64_t) { return TPaso::Sigue; }).Codigo == 0;
    } catch (const std::runtime_error&) {
        return false;
    }
}

}  // namespace analizador::pruebas
