#include "pruebas/ataques/Proceso.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace analizador::pruebas {

namespace {

namespace fs = std::filesystem;

void Limita(int recurso, std::uint64_t valor) {
    rlimit limite{};
    ::getrlimit(static_cast<__rlimit_resource>(recurso), &limite);
    limite.rlim_cur = valor;
    ::setrlimit(static_cast<__rlimit_resource>(recurso), &limite);
}

void Redirige(const fs::path& fichero, int opciones, int descriptor) {
    const int abierto = ::open(fichero.c_str(), opciones, 0600);
    if (abierto < 0 || ::dup2(abierto, descriptor) < 0) ::_exit(126);
    ::close(abierto);
}

std::vector<char*> Punteros(std::vector<std::string>& textos) {
    std::vector<char*> punteros;
    for (auto& texto : textos) punteros.push_back(texto.data());
    punteros.push_back(nullptr);
    return punteros;
}

std::vector<std::string> Arbol(const fs::path& carpeta) {
    std::vector<std::string> nombres;
    for (const auto& entrada : fs::recursive_directory_iterator(carpeta))
        nombres.push_back(fs::relative(entrada.path(), carpeta).string());
    std::ranges::sort(nombres);
    return nombres;
}

}  // namespace

TBanco::TBanco() {
    fs::create_directory(Documentos());
    fs::create_directory(Temporal());
}

std::vector<std::string> TBanco::EnDocumentos() const {
    return Arbol(Documentos());
}

std::vector<std::string> TBanco::EnTemporal() const {
    return Arbol(Temporal());
}

pid_t TBanco::Lanza(const fs::path& programa, const std::vector<std::string>& argumentos,
                    const TLimites& limites, const std::function<void()>& antes) const {
    constexpr unsigned DEMASIADO = 600;
    std::vector<std::string> orden = {programa.string()};
    orden.insert(orden.end(), argumentos.begin(), argumentos.end());
    const auto temporal = Temporal().string();
    std::vector<std::string> entorno = {
        "LC_ALL=C.UTF-8",           "PATH=/usr/bin:/bin",         "TMPDIR=" + temporal,
        "HOME=" + temporal,         "XDG_CACHE_HOME=" + temporal, "XDG_CONFIG_HOME=" + temporal,
        "QT_QPA_PLATFORM=offscreen"};
    // The leak checker traces its own process, which cannot be done where the test does it.
    if (antes) entorno.emplace_back("LSAN_OPTIONS=detect_leaks=0");
    const auto argv = Punteros(orden);
    const auto envp = Punteros(entorno);
    const pid_t proceso = ::fork();
    if (proceso < 0) throw std::runtime_error("cannot start a process");
    if (proceso > 0) return proceso;
    Redirige("/dev/null", O_RDONLY, STDIN_FILENO);
    Redirige(Carpeta / "salida", O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
    Redirige(Carpeta / "errores", O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
    Limita(RLIMIT_CORE, 0);
    Limita(RLIMIT_CPU, limites.SegundosCpu);
    if (limites.Memoria != 0 && !SANEADO) Limita(RLIMIT_AS, limites.Memoria);
    if (limites.TamanoFichero != 0) Limita(RLIMIT_FSIZE, limites.TamanoFichero);
    ::alarm(DEMASIADO);
    if (antes) antes();
    ::execve(programa.c_str(), argv.data(), envp.data());
    ::_exit(127);
}

TFinal TBanco::Recoge(int estado) const {
    TFinal final;
    if (WIFEXITED(estado)) final.Codigo = WEXITSTATUS(estado);
    if (WIFSIGNALED(estado)) final.Senal = WTERMSIG(estado);
    final.Salida = LeeBytes(Carpeta / "salida");
    final.Errores = LeeBytes(Carpeta / "errores");
    return final;
}

TFinal TBanco::Corre(const fs::path& programa, const std::vector<std::string>& argumentos,
                     const TLimites& limites) const {
    int estado = 0;
    rusage uso{};
    if (::wait4(Lanza(programa, argumentos, limites), &estado, 0, &uso) < 0)
        throw std::runtime_error("lost a process");
    auto final = Recoge(estado);
    final.Segundos =
        static_cast<double>(uso.ru_utime.tv_sec) + static_cast<double>(uso.ru_utime.tv_usec) / 1e6;
    final.KiB = uso.ru_maxrss;
    return final;
}

bool EnOtroProceso(const std::function<void()>& accion) {
    const pid_t proceso = ::fork();
    if (proceso < 0) throw std::runtime_error("cannot start a process");
    if (proceso == 0) {
        try {
            accion();
        } catch (const std::exception&) {
            ::_exit(1);
        }
        ::_exit(0);
    }
    int estado = 0;
    return ::waitpid(proceso, &estado, 0) == proceso && WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

std::uint64_t Veces(const char* variable, std::uint64_t corriente) {
    const char* valor = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): nobody sets it
    return valor == nullptr ? corriente : std::stoull(valor);
}

}  // namespace analizador::pruebas
