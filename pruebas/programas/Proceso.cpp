#include "pruebas/programas/Proceso.h"

#include <fcntl.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): kill
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>

namespace analizador {

namespace {

[[noreturn]] void Convierte(std::vector<char*>& argumentos, const char* salida, const char* errores,
                            int entrada) {
    constexpr int MODO = 0600;
    const int deDonde = entrada >= 0 ? entrada : ::open("/dev/null", O_RDONLY);
    if (::dup2(deDonde, STDIN_FILENO) >= 0 &&
        ::dup2(::open(salida, O_WRONLY | O_CREAT | O_TRUNC, MODO), STDOUT_FILENO) >= 0 &&
        ::dup2(::open(errores, O_WRONLY | O_CREAT | O_TRUNC, MODO), STDERR_FILENO) >= 0)
        ::execv(argumentos.front(), argumentos.data());
    _exit(127);
}

}  // namespace

TProceso::TProceso(const std::vector<std::string>& argumentos, const std::filesystem::path& salida,
                   const std::filesystem::path& errores, int entrada) {
    std::vector<std::string> todos = {PROGRAMA_ANALIZA};
    todos.insert(todos.end(), argumentos.begin(), argumentos.end());
    std::vector<char*> punteros;
    for (auto& argumento : todos) punteros.push_back(argumento.data());
    punteros.push_back(nullptr);
    FProceso = ::fork();
    if (FProceso < 0) throw std::runtime_error("no process");
    if (FProceso == 0) Convierte(punteros, salida.c_str(), errores.c_str(), entrada);
}

TProceso::~TProceso() {
    if (FProceso < 0) return;
    Senal(SIGKILL);
    static_cast<void>(Espera());
}

void TProceso::Senal(int senal) const {
    ::kill(FProceso, senal);
}

bool TProceso::Vive() const {
    siginfo_t fin{};
    return ::waitid(P_PID, static_cast<id_t>(FProceso), &fin, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           fin.si_pid == 0;
}

int TProceso::Espera() {
    int estado = 0;
    struct rusage uso {};
    while (::wait4(FProceso, &estado, 0, &uso) < 0 && errno == EINTR) {
    }
    FProceso = -1;
    FMemoria = uso.ru_maxrss;
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -WTERMSIG(estado);
}

}  // namespace analizador
