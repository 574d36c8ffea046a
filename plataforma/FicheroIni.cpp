#include "plataforma/FicheroIni.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <optional>
#include <utility>

#include "plataforma/Ansi.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";

std::string_view SinComillas(std::string_view valor) {
    if (valor.size() >= 2 && valor.front() == '"' && valor.back() == '"')
        return valor.substr(1, valor.size() - 2);
    return valor;
}

// The entry number that a key is: decimal digits without leading zeros.
std::optional<std::size_t> NumeroDeEntrada(std::string_view clave) {
    if (clave.empty() || clave.size() > 9 || clave.front() == '0') return std::nullopt;
    std::size_t numero = 0;
    for (const char c : clave) {
        if (c < '0' || c > '9') return std::nullopt;
        numero = numero * 10 + static_cast<std::size_t>(c - '0');
    }
    return numero;
}

const TFicheroIni::Clave* BuscaClave(const TFicheroIni::Seccion& seccion, std::string_view nombre) {
    const std::string buscada = AnsiUpperCase(nombre);
    const auto donde = std::find_if(seccion.Claves.begin(), seccion.Claves.end(), [&](const auto& clave) {
        return AnsiUpperCase(clave.Nombre) == buscada;
    });
    return donde == seccion.Claves.end() ? nullptr : &*donde;
}

struct TEntrada {
    std::size_t Numero;
    const TFicheroIni::Clave* Clave;
};

// Those that count, by number; of two equal ones the first of the file stands first.
std::vector<TEntrada> Entradas(const TFicheroIni::Seccion& seccion) {
    std::vector<TEntrada> entradas;
    const auto* const cuenta = BuscaClave(seccion, "NumPalabras");
    const int n = cuenta == nullptr ? 0 : Cad_Int(cuenta->Valor);
    if (n <= 0) return entradas;
    entradas.reserve(seccion.Claves.size());
    for (const auto& clave : seccion.Claves)
        if (const auto numero = NumeroDeEntrada(clave.Nombre);
            numero && *numero <= static_cast<std::size_t>(n))
            entradas.push_back({*numero, &clave});
    if (!std::ranges::is_sorted(entradas, {}, &TEntrada::Numero))
        std::ranges::stable_sort(entradas, {}, &TEntrada::Numero);
    return entradas;
}

// Entries beyond the last one that the file gives are empty and find nothing, so the list ends there,
// whatever count the file claims. It also ends before a stray key so far away that more entries than `huecos`
// would be missing; what it lacks is taken from them.
std::vector<std::string> ListaDePalabras(const TFicheroIni::Seccion& seccion, std::size_t& huecos) {
    const auto entradas = Entradas(seccion);
    std::vector<std::string> palabras;
    palabras.reserve(entradas.size());
    for (const auto& [numero, clave] : entradas) {
        if (numero <= palabras.size()) continue;  // repeated
        const std::size_t faltan = numero - palabras.size() - 1;
        if (faltan > huecos) break;
        huecos -= faltan;
        palabras.resize(numero - 1);
        palabras.emplace_back(clave->Valor);
    }
    return palabras;
}

std::string SinMarcaUtf8(std::string_view bytes) {
    if (bytes.substr(0, MARCA_UTF8.size()) != MARCA_UTF8) return std::string(bytes);
    return AnsiDeUtf8(bytes.substr(MARCA_UTF8.size()));
}

}  // namespace

TFicheroIni::TFicheroIni(std::string_view bytes)
    : texto_(std::make_shared<const std::string>(SinMarcaUtf8(bytes))) {
    // An empty entry takes some thirty bytes: those of a file no more than four times its size, and a few.
    std::size_t huecos = 8192 + bytes.size() / 8;
    int numero = 0;
    for (std::string_view resto = *texto_; !resto.empty();) {
        const auto fin = resto.find('\n');
        const std::string_view linea = Recorta(resto.substr(0, fin));
        resto.remove_prefix(fin == std::string_view::npos ? resto.size() : fin + 1);
        ++numero;
        if (linea.empty() || linea.front() == ';') continue;
        if (linea.front() == '[') {
            const auto cierre = linea.find(']');
            if (cierre != std::string_view::npos)
                secciones_.push_back({std::string(Recorta(linea.substr(1, cierre - 1))), {}, numero});
        } else if (const auto igual = linea.find('=');
                   igual != std::string_view::npos && !secciones_.empty()) {
            secciones_.back().Claves.push_back(
                {Recorta(linea.substr(0, igual)), SinComillas(Recorta(linea.substr(igual + 1))), numero});
        }
    }
    for (const auto& seccion : secciones_)
        palabras_.emplace_back(AnsiUpperCase(seccion.Nombre), ListaDePalabras(seccion, huecos));
    // Stable, so that of two equal sections the first stands first and is the one found.
    std::stable_sort(palabras_.begin(), palabras_.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
}

const TFicheroIni::Seccion* TFicheroIni::BuscaSeccion(std::string_view nombre) const {
    const std::string buscada = AnsiUpperCase(nombre);
    const auto donde = std::find_if(secciones_.begin(), secciones_.end(),
                                    [&](const Seccion& s) { return AnsiUpperCase(s.Nombre) == buscada; });
    return donde == secciones_.end() ? nullptr : &*donde;
}

std::string TFicheroIni::LeeTexto(std::string_view seccion, std::string_view clave,
                                  std::string_view defecto) const {
    const Seccion* const encontrada = BuscaSeccion(seccion);
    const Clave* const valor = encontrada == nullptr ? nullptr : BuscaClave(*encontrada, clave);
    return std::string(valor == nullptr ? defecto : valor->Valor);
}

int TFicheroIni::LeeEntero(std::string_view seccion, std::string_view clave, int defecto) const {
    return EnteroDeCadena(LeeTexto(seccion, clave, "")).value_or(defecto);
}

const std::vector<std::string>& TFicheroIni::Palabras(std::string_view seccion) const {
    static const std::vector<std::string> NINGUNA;
    const std::string buscada = AnsiUpperCase(seccion);
    const auto donde =
        std::lower_bound(palabras_.begin(), palabras_.end(), buscada,
                         [](const auto& par, const std::string& nombre) { return par.first < nombre; });
    return donde == palabras_.end() || donde->first != buscada ? NINGUNA : donde->second;
}

namespace {

struct TCopia {
    TLecturaFichero Lectura;
    std::shared_ptr<const TFicheroIni> Contenido;
};

}  // namespace

std::shared_ptr<const TFicheroIni> AbreFicheroIni(const std::filesystem::path& fichero) {
    static std::mutex cerrojo;
    static std::map<std::filesystem::path, TCopia> copias;
    static const auto VACIO = std::make_shared<const TFicheroIni>();

    const TMarcaFichero marca = MarcaDeFichero(fichero);
    const std::lock_guard guarda(cerrojo);
    if (!marca.Existe) {
        copias.erase(fichero);
        return VACIO;
    }
    TCopia& guardada = copias[fichero];
    if (guardada.Lectura.Estado == TEstadoLectura::Entera && !marca.Reciente &&
        marca == guardada.Lectura.Marca)
        return guardada.Contenido;
    TLecturaFichero lectura = LeeFichero(fichero);
    const bool aMedias =
        lectura.Estado == TEstadoLectura::Cambia ||
        (lectura.Estado == TEstadoLectura::Entera && lectura.Bytes.empty() && lectura.Marca.Reciente);
    if (aMedias && guardada.Contenido) return guardada.Contenido;
    if (!guardada.Contenido || guardada.Lectura.Bytes != lectura.Bytes)
        guardada.Contenido = std::make_shared<const TFicheroIni>(lectura.Bytes);
    guardada.Lectura = std::move(lectura);
    return guardada.Contenido;
}

}  // namespace analizador
