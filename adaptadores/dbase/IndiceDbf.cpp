#include "adaptadores/dbase/IndiceDbf.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>

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

unsigned char Plegado(char c) {
    return Plegados()[static_cast<unsigned char>(c)];
}

// As if both went on in blanks.
int ComparaTextos(std::string_view a, std::string_view b) {
    const std::size_t comun = std::max(a.size(), b.size());
    for (std::size_t i = 0; i < comun; ++i) {
        const unsigned char x = i < a.size() ? Plegado(a[i]) : ' ';
        const unsigned char y = i < b.size() ? Plegado(b[i]) : ' ';
        if (x != y) return x < y ? -1 : 1;
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

constexpr std::size_t ANCHO_NUMERO = 9;

std::size_t AnchoOrdenable(const TCampoDbf& campo) {
    return EsNumero(campo) ? ANCHO_NUMERO : campo.Longitud;
}

// Bytes that compare as the numbers do, the empty one first.
void PonNumero(std::optional<double> numero, char* destino) {
    constexpr std::uint64_t SIGNO = std::uint64_t{1} << 63U;
    if (!numero) return;
    const auto bits = std::bit_cast<std::uint64_t>(*numero + 0.0);  // one zero alone
    const std::uint64_t ordenado = (bits & SIGNO) != 0 ? ~bits : bits | SIGNO;
    destino[0] = 1;
    for (std::size_t i = 1; i < ANCHO_NUMERO; ++i)
        destino[i] = static_cast<char>(ordenado >> 8U * (ANCHO_NUMERO - 1 - i));
}

// The folded key of every row, side by side, so that comparing two is comparing their bytes.
class TClavesOrdenables {
  public:
    TClavesOrdenables(const TDatosDbf& datos, const std::vector<const TCampoDbf*>& campos)
        : datos_(datos), campos_(campos) {
        for (const TCampoDbf* campo : campos_) ancho_ += AnchoOrdenable(*campo);
        claves_.resize(ancho_ * datos_.Filas(), '\0');
        for (std::uint32_t fila = 0; fila < datos_.Filas(); ++fila) Pon(fila);
    }

    // The key's first bytes as a number that compares as they do.
    [[nodiscard]] std::uint64_t Prefijo(std::uint32_t fila) const {
        std::uint64_t prefijo = 0;
        for (std::size_t i = 0; i < sizeof prefijo; ++i)
            prefijo = prefijo << 8U | (i < ancho_ ? static_cast<unsigned char>(Clave(fila)[i]) : 0U);
        return prefijo;
    }

    [[nodiscard]] bool Antes(std::uint32_t a, std::uint32_t b) const {
        if (const int orden = Clave(a).compare(Clave(b)); orden != 0) return orden < 0;
        for (const TCampoDbf* campo : campos_)
            if (const int orden = datos_.Bytes(a, *campo).compare(datos_.Bytes(b, *campo)); orden != 0)
                return orden < 0;
        return a < b;
    }

  private:
    [[nodiscard]] std::string_view Clave(std::uint32_t fila) const {
        return {claves_.data() + fila * ancho_, ancho_};
    }

    void Pon(std::uint32_t fila) {
        char* destino = claves_.data() + fila * ancho_;
        const std::array<unsigned char, 256>& plegados = Plegados();
        for (const TCampoDbf* campo : campos_) {
            const std::string_view bytes = datos_.Bytes(fila, *campo);
            if (EsNumero(*campo))
                PonNumero(datos_.Numero(fila, *campo), destino);
            else
                std::transform(bytes.begin(), bytes.end(), destino, [&](char c) {
                    return static_cast<char>(plegados[static_cast<unsigned char>(c)]);
                });
            destino += AnchoOrdenable(*campo);
        }
    }

    const TDatosDbf& datos_;
    const std::vector<const TCampoDbf*>& campos_;
    std::size_t ancho_ = 0;
    std::string claves_;
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

TClaveDbf::TClaveDbf(const TDatosDbf& datos, const std::vector<const TCampoDbf*>& campos, TClave clave)
    : datos_(datos), campos_(campos) {
    if (clave.size() > campos.size())
        throw ErrorTabla("La tabla " + datos.Fichero() +
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

int TClaveDbf::Compara(std::uint32_t fila) const {
    for (std::size_t i = 0; i < partes_.size(); ++i)
        if (const int orden = ComparaParte(fila, *campos_[i], partes_[i]); orden != 0) return orden;
    return 0;
}

int TClaveDbf::ComparaParte(std::uint32_t fila, const TCampoDbf& campo, const TParte& parte) const {
    if (const auto* texto = std::get_if<TTextoPlegado>(&parte)) {
        if (EsNumero(campo)) return -1;  // a text that is no number comes after every number
        return ComparaTextos(datos_.Bytes(fila, campo), texto->Texto);
    }
    const std::optional<double> buscado =
        std::holds_alternative<TVacio>(parte) ? std::nullopt : std::optional(std::get<TNumero>(parte).Valor);
    return ComparaNumeros(datos_.Numero(fila, campo), buscado);
}

TIndiceDbf::TIndiceDbf(const TDatosDbf& datos, const std::vector<std::string>& campos) {
    for (const std::string& campo : campos) campos_.push_back(&datos.Campo(campo));
    const TClavesOrdenables claves(datos, campos_);
    std::vector<std::pair<std::uint64_t, std::uint32_t>> filas;
    filas.reserve(datos.Filas());
    for (std::uint32_t fila = 0; fila < datos.Filas(); ++fila) filas.emplace_back(claves.Prefijo(fila), fila);
    std::sort(filas.begin(), filas.end(), [&](const auto& a, const auto& b) {
        return a.first != b.first ? a.first < b.first : claves.Antes(a.second, b.second);
    });
    orden_.reserve(filas.size());
    for (const auto& fila : filas) orden_.push_back(fila.second);
}

}  // namespace analizador
