#include "adaptadores/dbase/IndiceDbf.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>
#include <optional>
#include <utility>

#include "adaptadores/dbase/ValoresDbf.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rut.h"

namespace analizador {

namespace {

struct TExpresion {
    std::string_view Tabla;
    std::string_view Indice;
    std::array<std::string_view, 2> Campos;  // the second may be empty
};

// The indexes that are not called as their only field.
constexpr std::array<TExpresion, 3> EXPRESIONES = {{
    {"TIPOS", "NUMERO", {"NUMEROTIPO", ""}},
    {"PROVIN", "ALFABETICO", {"PROVINCIA", ""}},
    {"POSTAL", "NOMBREVIA", {"PROVINCIA", "VIA"}},
}};

// Folding goes byte by byte, so a table of its results folds without building texts.
const std::array<unsigned char, 256>& Plegados() {
    static const std::array<unsigned char, 256> plegados = [] {
        std::array<unsigned char, 256> tabla{};
        for (std::size_t i = 0; i < tabla.size(); ++i) {
            const auto byte = static_cast<char>(i);
            tabla[i] = static_cast<unsigned char>(Pliega(std::string_view(&byte, 1)).at(0));
        }
        return tabla;
    }();
    return plegados;
}

std::uint64_t Alto(const char* ocho) {
    const auto byte = [&](unsigned i) {
        return static_cast<std::uint64_t>(static_cast<unsigned char>(ocho[i])) << 8U * (7U - i);
    };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// The first eight bytes of a text, folded and followed by blanks if there are less, as a number that compares
// as they do. The bytes from the blank to "_" fold to themselves, and nearly all texts have no others.
std::uint64_t Ocho(std::string_view texto) {
    std::array<char, sizeof(std::uint64_t)> bytes;
    bytes.fill(' ');
    if (texto.size() < bytes.size()) {
        std::copy(texto.begin(), texto.end(), bytes.begin());
        texto = {bytes.data(), bytes.size()};
    }
    const std::uint64_t ocho = Alto(texto.data());
    constexpr std::uint64_t EN_CADA_BYTE = 0x0101010101010101U;
    const bool llanos = (ocho & 0x80U * EN_CADA_BYTE) == 0 &&
                        ((ocho ^ ocho << 1U) & 0x40U * EN_CADA_BYTE) == 0x40U * EN_CADA_BYTE;
    if (llanos) return ocho;
    std::transform(texto.begin(), texto.begin() + bytes.size(), bytes.begin(),
                   [](char c) { return static_cast<char>(Plegados()[static_cast<unsigned char>(c)]); });
    return Alto(bytes.data());
}

// As if both went on in blanks.
int ComparaTextos(std::string_view a, std::string_view b) {
    while (!a.empty() || !b.empty()) {
        const std::uint64_t x = Ocho(a);
        const std::uint64_t y = Ocho(b);
        if (x != y) return x < y ? -1 : 1;
        a.remove_prefix(std::min(a.size(), sizeof x));
        b.remove_prefix(std::min(b.size(), sizeof y));
    }
    return 0;
}

int ComparaNumeros(std::optional<double> a, std::optional<double> b) {
    if (a == b) return 0;
    return a < b ? -1 : 1;
}

bool EsNumero(const TCampoDbf& campo) {
    return campo.Clase != TClaseCampo::Texto && campo.Clase != TClaseCampo::Logico &&
           campo.Clase != TClaseCampo::Vacio;
}

// Whole numbers that compare as the numbers do; 0 is kept for the empty one.
std::uint64_t Ordenable(std::optional<double> numero) {
    constexpr std::uint64_t SIGNO = std::uint64_t{1} << 63U;
    if (!numero) return 0;
    const auto bits = std::bit_cast<std::uint64_t>(*numero + 0.0);  // one zero alone
    return (bits & SIGNO) != 0 ? ~bits : bits | SIGNO;
}

// As they stand in the file.
int ComparaBytes(const std::vector<const TCampoDbf*>& campos, std::string_view uno, std::string_view otro) {
    for (const TCampoDbf* campo : campos)
        if (const int orden = BytesDe(uno, *campo).compare(BytesDe(otro, *campo)); orden != 0) return orden;
    return 0;
}

int ComparaClaves(const TCampoDbf& campo, std::string_view una, std::string_view otra) {
    if (!EsNumero(campo)) return ComparaTextos(una, otra);
    const std::uint64_t x = Ordenable(NumeroDeBytes(una, campo.Clase));
    const std::uint64_t y = Ordenable(NumeroDeBytes(otra, campo.Clase));
    return x == y ? 0 : x < y ? -1 : 1;
}

// The rows' keys, compared where they lie.
class TClavesOrdenables {
  public:
    TClavesOrdenables(const TDatosDbf& datos, const std::vector<const TCampoDbf*>& campos)
        : datos_(datos), campos_(campos) {}

    // A number that compares as the keys do, the same for those that begin alike.
    [[nodiscard]] std::uint64_t Comienzo(std::uint32_t fila) const {
        const TCampoDbf& campo = *campos_.front();
        return EsNumero(campo) ? Ordenable(datos_.Numero(fila, campo)) : Ocho(datos_.Bytes(fila, campo));
    }

    [[nodiscard]] bool Antes(std::uint32_t a, std::uint32_t b) const {
        const int orden = ComparaRegistros(campos_, datos_.Registro(a), datos_.Registro(b));
        return orden != 0 ? orden < 0 : a < b;
    }

  private:
    const TDatosDbf& datos_;
    const std::vector<const TCampoDbf*>& campos_;
};

}  // namespace

std::vector<std::string> CamposDeIndice(std::string_view tabla, std::string_view indice) {
    for (const TExpresion& expresion : EXPRESIONES) {
        if (expresion.Tabla != tabla || expresion.Indice != indice) continue;
        std::vector<std::string> campos = {std::string(expresion.Campos[0])};
        if (!expresion.Campos[1].empty()) campos.emplace_back(expresion.Campos[1]);
        return campos;
    }
    return {std::string(indice)};
}

int ComparaRegistros(const std::vector<const TCampoDbf*>& campos, std::string_view uno,
                     std::string_view otro) {
    const int enBytes = ComparaBytes(campos, uno, otro);
    if (enBytes == 0) return 0;
    for (const TCampoDbf* campo : campos)
        if (const int orden = ComparaClaves(*campo, BytesDe(uno, *campo), BytesDe(otro, *campo)); orden != 0)
            return orden;
    return enBytes;
}

TClaveDbf::TClaveDbf(std::string_view fichero, const std::vector<const TCampoDbf*>& campos, TClave clave)
    : campos_(campos) {
    if (clave.size() > campos.size())
        throw ErrorTabla("La tabla " + std::string(fichero) +
                         std::string(": la clave tiene más partes que el índice"_ansi));
    for (const TParteClave& parte : clave) partes_.push_back(Prepara(*campos[partes_.size()], parte.Valor));
}

TClaveDbf::TParte TClaveDbf::Prepara(const TCampoDbf& campo, const TValorClave& valor) {
    if (const int* entero = std::get_if<int>(&valor)) {
        if (!EsNumero(campo)) ordenada_ = false;
        return TNumero{static_cast<double>(*entero)};
    }
    const std::string_view texto = SinBlancosDerecha(std::get<std::string_view>(valor));
    if (!EsNumero(campo)) return TTextoPlegado{Pliega(texto)};
    if (texto.empty()) return TVacio{};
    if (const std::optional<double> numero = NumeroDeDigitos(texto)) return TNumero{*numero};
    return TTextoPlegado{Pliega(texto)};
}

int TClaveDbf::Compara(std::string_view registro) const {
    for (std::size_t i = 0; i < partes_.size(); ++i)
        if (const int orden = ComparaParte(BytesDe(registro, *campos_[i]), *campos_[i], partes_[i]);
            orden != 0)
            return orden;
    return 0;
}

int TClaveDbf::ComparaParte(std::string_view bytes, const TCampoDbf& campo, const TParte& parte) {
    if (const auto* texto = std::get_if<TTextoPlegado>(&parte)) {
        if (EsNumero(campo)) return -1;  // a text that is no number comes after every number
        return ComparaTextos(bytes, texto->Texto);
    }
    const std::optional<double> buscado =
        std::holds_alternative<TVacio>(parte) ? std::nullopt : std::optional(std::get<TNumero>(parte).Valor);
    return ComparaNumeros(NumeroDeBytes(bytes, campo.Clase), buscado);
}

// A table is often written in the order of one of its indexes. If not, sorting by the beginnings of the keys
// leaves few rows to compare in full.
TIndiceDbf::TIndiceDbf(const TDatosDbf& datos, const std::vector<std::string>& campos)
    : orden_(datos.Filas()) {
    for (const std::string& campo : campos) campos_.push_back(&datos.Campo(campo));
    const TClavesOrdenables claves(datos, campos_);
    std::iota(orden_.begin(), orden_.end(), 0U);
    std::vector<std::uint64_t> comienzos(orden_.size());
    std::transform(orden_.begin(), orden_.end(), comienzos.begin(),
                   [&](std::uint32_t fila) { return claves.Comienzo(fila); });
    const auto antes = [&](std::uint32_t a, std::uint32_t b) {
        return comienzos[a] != comienzos[b] ? comienzos[a] < comienzos[b] : claves.Antes(a, b);
    };
    if (std::is_sorted(orden_.begin(), orden_.end(), antes)) return;

    std::vector<std::pair<std::uint64_t, std::uint32_t>> filas;
    filas.reserve(orden_.size());
    for (const std::uint32_t fila : orden_) filas.emplace_back(comienzos[fila], fila);
    std::sort(filas.begin(), filas.end());
    std::transform(filas.begin(), filas.end(), orden_.begin(), [](const auto& fila) { return fila.second; });
    for (std::size_t desde = 0, hasta = 0; desde < filas.size(); desde = hasta) {
        while (hasta < filas.size() && filas[hasta].first == filas[desde].first) ++hasta;
        const auto primera = orden_.begin() + static_cast<std::ptrdiff_t>(desde);
        const auto ultima = orden_.begin() + static_cast<std::ptrdiff_t>(hasta);
        if (!std::is_sorted(primera, ultima, antes)) std::sort(primera, ultima, antes);
    }
}

}  // namespace analizador
