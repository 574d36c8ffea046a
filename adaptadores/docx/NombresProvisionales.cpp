#include "adaptadores/docx/NombresProvisionales.h"

#include <random>
#include <string_view>
#include <system_error>

namespace analizador {

namespace {

constexpr std::string_view PRINCIPIO = ".~docx-";
constexpr std::string_view FINAL = ".tmp";
constexpr std::string_view CIFRAS = "0123456789abcdefghijklmnopqrstuvwxyz";
constexpr std::size_t LETRAS_AL_AZAR = 12;

}  // namespace

std::string NombreProvisional() {
    std::random_device azar;
    std::uniform_int_distribution<std::size_t> cual(0, CIFRAS.size() - 1);
    std::string nombre(PRINCIPIO);
    for (std::size_t i = 0; i < LETRAS_AL_AZAR; ++i) nombre += CIFRAS[cual(azar)];
    return nombre.append(FINAL);
}

bool EsNombreProvisional(const std::filesystem::path& fichero) {
    const auto utf8 = fichero.filename().u8string();
    const std::string nombre(utf8.begin(), utf8.end());
    if (nombre.size() != PRINCIPIO.size() + LETRAS_AL_AZAR + FINAL.size()) return false;
    const auto azar = std::string_view(nombre).substr(PRINCIPIO.size(), LETRAS_AL_AZAR);
    return nombre.starts_with(PRINCIPIO) && nombre.ends_with(FINAL) &&
           azar.find_first_not_of(CIFRAS) == std::string_view::npos;
}

void LimpiaProvisionales(const std::filesystem::path& carpeta) {
    std::error_code error;
    std::filesystem::directory_iterator entrada(carpeta, error);
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error))
        if (EsNombreProvisional(entrada->path())) QuitaSiNadieLoEscribe(entrada->path());
}

}  // namespace analizador
