#include "programas/analiza/ListaEscrituras.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

namespace analizador {

namespace {

namespace fs = std::filesystem;

const fs::path LISTA = "-";

bool EsCarpeta(const fs::path& ruta) {
    std::error_code error;
    return fs::is_directory(ruta, error);
}

std::string Minusculas(std::string texto) {
    std::ranges::transform(texto, texto.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return texto;
}

bool PareceEscritura(const fs::path& fichero) {
    constexpr std::array<std::string_view, 4> EXTENSIONES = {".docx", ".docm", ".dotx", ".dotm"};
    const std::string nombre = fichero.filename().string();
    return !nombre.starts_with('.') && !nombre.starts_with("~$") &&
           std::ranges::find(EXTENSIONES, Minusculas(fichero.extension().string())) != EXTENSIONES.end();
}

// The deeds that a name stands for, at least one.
std::vector<fs::path> Escrituras(const fs::path& nombre) {
    auto escrituras = EsCarpeta(nombre) ? EscriturasDe(nombre) : std::vector<fs::path>{};
    if (escrituras.empty()) escrituras.push_back(nombre);
    return escrituras;
}

}  // namespace

bool EsDeVarias(const std::string& nombre) {
    return nombre == LISTA || EsCarpeta(nombre);
}

std::vector<fs::path> EscriturasDe(const fs::path& carpeta) {
    std::vector<fs::path> escrituras;
    std::error_code error;
    for (fs::directory_iterator entrada(carpeta, error), fin; !error && entrada != fin;
         entrada.increment(error))
        if (PareceEscritura(entrada->path()) && !EsCarpeta(entrada->path()))
            escrituras.push_back(entrada->path());
    std::ranges::sort(escrituras, {}, &fs::path::native);
    return escrituras;
}

TListaEscrituras::TListaEscrituras(const std::vector<std::string>& nombres, std::FILE* lista, char fin)
    : FLista(lista), FFin(fin) {
    for (const auto& nombre : nombres)
        if (nombre == LISTA)
            FPendientes.push_back(LISTA);
        else
            std::ranges::move(Escrituras(nombre), std::back_inserter(FPendientes));
    if (std::ranges::find(nombres, LISTA.native()) == nombres.end()) FCuantas = FPendientes.size();
}

std::optional<fs::path> TListaEscrituras::Siguiente() {
    while (FDeLaLista.empty() && !FPendientes.empty()) {
        if (FPendientes.front() != LISTA) {
            FDeLaLista.push_back(std::move(FPendientes.front()));
            FPendientes.pop_front();
        } else if (const auto nombre = NombreDeLaLista()) {
            std::ranges::move(Escrituras(*nombre), std::back_inserter(FDeLaLista));
        } else {
            FPendientes.pop_front();
        }
    }
    if (FDeLaLista.empty()) return std::nullopt;
    auto siguiente = std::move(FDeLaLista.front());
    FDeLaLista.pop_front();
    return siguiente;
}

// The next name that is not empty.
std::optional<std::string> TListaEscrituras::NombreDeLaLista() {
    std::string nombre;
    int byte = 0;
    while ((byte = std::fgetc(FLista)) != EOF) {
        if (byte != FFin) {
            nombre += static_cast<char>(byte);
            continue;
        }
        if (FFin == '\n' && nombre.ends_with('\r')) nombre.pop_back();
        if (!nombre.empty()) return nombre;
    }
    if (FFin == '\n' && nombre.ends_with('\r')) nombre.pop_back();
    if (nombre.empty()) return std::nullopt;
    return nombre;
}

}  // namespace analizador
