#include "pruebas/literal/TablasLiteral.h"

#include <fstream>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"

namespace analizador::pruebas {

namespace {

struct TCampo {
    std::string Nombre;
    char Tipo;
    std::size_t Posicion;
    std::size_t Longitud;
};

struct TFila {
    std::uint32_t Numero;  // in the file, from 1
    std::string Bytes;
};

// What a key says of one field, kept beyond the call.
struct TParte {
    bool EsNumero;
    int Numero;
    std::string Plegado;
};
using TClaveGuardada = std::vector<TParte>;

std::size_t Entero16(const std::string& bytes, std::size_t posicion) {
    return static_cast<unsigned char>(bytes[posicion]) +
           256U * static_cast<unsigned char>(bytes[posicion + 1]);
}

std::string SinBlancosDerecha(std::string texto) {
    while (!texto.empty() && texto.back() == ' ') texto.pop_back();
    return texto;
}

// The fields of an index's key, by the table's file and the index's name.
std::vector<std::string> CamposDeClave(const std::string& fichero, std::string_view indice) {
    if (indice.empty()) return {};
    if (fichero == "POSTAL.DBF" && indice == "NOMBREVIA") return {"PROVINCIA", "VIA"};
    if (fichero == "PROVIN.DBF" && indice == "ALFABETICO") return {"PROVINCIA"};
    if (fichero == "TIPOS.DBF" && indice == "NUMERO") return {"NUMEROTIPO"};
    return {std::string(indice)};
}

class TTablaLiteral : public TTabla {
  public:
    TTablaLiteral(const std::filesystem::path& ruta, std::string_view indice) : ruta_(ruta) {
        LeeCabecera();
        Indexa(indice);
    }

    void Primero() override {
        actual_ = PrimeraQue([](const TFila&) { return true; });
    }
    void Siguiente() override {
        if (!actual_) return;
        const TFila anterior = *actual_;
        actual_ = PrimeraQue([&](const TFila& fila) { return Compara(anterior, fila) < 0; });
    }
    [[nodiscard]] bool Fin() const override { return !actual_; }
    [[nodiscard]] int CuentaFilas() override {
        int filas = 0;
        Recorre([&](const TFila&) { ++filas; });
        return filas;
    }

    [[nodiscard]] std::string Texto(std::string_view campo) const override {
        const TCampo& encontrado = Campo(campo);
        return actual_ ? Valor(*actual_, encontrado) : std::string();
    }
    [[nodiscard]] int Entero(std::string_view campo) const override { return Cad_Int(Texto(campo)); }
    [[nodiscard]] bool Logico(std::string_view campo) const override { return Texto(campo) == "T"; }

    void Indexa(std::string_view indice) override {
        clave_ = CamposDeClave(ruta_.filename().string(), indice);
        for (const std::string& campo : clave_) (void)Campo(campo);
        CancelaRango();
    }

    bool Busca(TClave clave) override {
        const TClaveGuardada buscada = Guarda(clave);
        actual_.reset();
        if (!clave_.empty())
            actual_ = PrimeraQue([&](const TFila& fila) { return ComparaClave(fila, buscada) == 0; });
        return actual_.has_value();
    }

    bool Rango(TClave desde, TClave hasta) override {
        if (clave_.empty()) return false;
        desde_ = Guarda(desde);
        hasta_ = Guarda(hasta);
        Primero();
        return true;
    }
    void CancelaRango() override {
        desde_.reset();
        hasta_.reset();
        Primero();
    }

    void Filtra(std::string_view condicion) override {
        filtro_ = std::string(condicion);
        Primero();
    }

  private:
    void LeeCabecera() {
        std::ifstream entrada(ruta_, std::ios::binary);
        std::string cabecera(32, '\0');
        if (!entrada.read(cabecera.data(), 32) || cabecera[0] != 3)
            throw std::runtime_error("no dBASE III table: " + ruta_.string());
        inicio_ = Entero16(cabecera, 8);
        longitud_ = Entero16(cabecera, 10);
        std::size_t posicion = 1;
        for (std::string campo(32, '\0'); entrada.read(campo.data(), 32) && campo[0] != '\r';) {
            const std::size_t longitud = static_cast<unsigned char>(campo[16]);
            campos_.push_back({campo.c_str(), campo[11], posicion, longitud});
            posicion += longitud;
        }
    }

    [[nodiscard]] const TCampo& Campo(std::string_view nombre) const {
        for (const TCampo& campo : campos_)
            if (campo.Nombre == nombre) return campo;
        throw std::runtime_error("no field " + std::string(nombre) + " in " + ruta_.string());
    }

    [[nodiscard]] static std::string Valor(const TFila& fila, const TCampo& campo) {
        const std::string bytes = fila.Bytes.substr(campo.Posicion, campo.Longitud);
        return campo.Tipo == 'C' ? SinBlancosDerecha(bytes) : std::string(Recorta(bytes));
    }

    // Reads the file from its first row to its last and hands over those of the range and the filter.
    void Recorre(const std::function<void(const TFila&)>& toma) const {
        std::ifstream entrada(ruta_, std::ios::binary);
        std::string cabecera(inicio_, '\0');
        entrada.read(cabecera.data(), static_cast<std::streamsize>(inicio_));
        const std::size_t filas = Entero16(cabecera, 4) + 65536U * Entero16(cabecera, 6);
        TFila fila{0, std::string(longitud_, '\0')};
        while (fila.Numero < filas &&
               entrada.read(fila.Bytes.data(), static_cast<std::streamsize>(longitud_))) {
            ++fila.Numero;
            if (fila.Bytes[0] != '*' && EnRango(fila) && Pasa(fila)) toma(fila);
        }
    }

    // Of the rows that fulfil the condition the first in the order of the index.
    template <class Condicion>
    [[nodiscard]] std::optional<TFila> PrimeraQue(Condicion cumple) const {
        std::optional<TFila> primera;
        Recorre([&](const TFila& fila) {
            if (cumple(fila) && (!primera || Compara(fila, *primera) < 0)) primera = fila;
        });
        return primera;
    }

    [[nodiscard]] bool EnRango(const TFila& fila) const {
        return !desde_ || (ComparaClave(fila, *desde_) >= 0 && ComparaClave(fila, *hasta_) <= 0);
    }

    [[nodiscard]] bool Pasa(const TFila& fila) const {
        if (filtro_.empty()) return true;
        const std::size_t signo = filtro_.find_first_of("<=");
        const bool distinto = filtro_[signo] == '<';
        const int valor = Cad_Int(filtro_.substr(signo + (distinto ? 2 : 1)));
        return (Cad_Int(Valor(fila, Campo(filtro_.substr(0, signo)))) == valor) != distinto;
    }

    // By the folded key, then by the key as it stands, then by the place in the file.
    [[nodiscard]] int Compara(const TFila& una, const TFila& otra) const {
        for (const bool plegada : {true, false})
            for (const std::string& nombre : clave_)
                if (const int orden = ComparaCampo(una, otra, Campo(nombre), plegada); orden != 0)
                    return orden;
        return static_cast<int>(una.Numero) - static_cast<int>(otra.Numero);
    }

    [[nodiscard]] static int ComparaCampo(const TFila& una, const TFila& otra, const TCampo& campo,
                                          bool plegada) {
        const std::string a = una.Bytes.substr(campo.Posicion, campo.Longitud);
        const std::string b = otra.Bytes.substr(campo.Posicion, campo.Longitud);
        if (campo.Tipo == 'N') return plegada ? Cad_Int(Recorta(a)) - Cad_Int(Recorta(b)) : 0;
        return plegada ? Pliega(a).compare(Pliega(b)) : a.compare(b);
    }

    [[nodiscard]] int ComparaClave(const TFila& fila, const TClaveGuardada& clave) const {
        for (std::size_t i = 0; i < clave.size(); ++i) {
            const TCampo& campo = Campo(clave_[i]);
            const std::string valor = Valor(fila, campo);
            if (clave[i].EsNumero != (campo.Tipo == 'N'))
                throw std::runtime_error("a key of another kind than " + campo.Nombre);
            int orden = 0;
            if (clave[i].EsNumero) {
                orden = Cad_Int(valor) - clave[i].Numero;
            } else {
                const std::size_t ancho = std::max(valor.size(), clave[i].Plegado.size());
                const auto ensancha = [&](std::string texto) {
                    return texto + std::string(ancho - texto.size(), ' ');
                };
                orden = ensancha(Pliega(valor)).compare(ensancha(clave[i].Plegado));
            }
            if (orden != 0) return orden;
        }
        return 0;
    }

    [[nodiscard]] static TClaveGuardada Guarda(TClave clave) {
        TClaveGuardada guardada;
        for (const TParteClave& parte : clave) {
            if (const int* const numero = std::get_if<int>(&parte.Valor))
                guardada.push_back({true, *numero, {}});
            else
                guardada.push_back(
                    {false, 0, SinBlancosDerecha(Pliega(std::get<std::string_view>(parte.Valor)))});
        }
        return guardada;
    }

    std::filesystem::path ruta_;
    std::size_t inicio_ = 0;
    std::size_t longitud_ = 0;
    std::vector<TCampo> campos_;
    std::vector<std::string> clave_;  // the fields of the index's key; none: the order of the file
    std::optional<TClaveGuardada> desde_;
    std::optional<TClaveGuardada> hasta_;
    std::string filtro_;
    std::optional<TFila> actual_;
};

}  // namespace

std::unique_ptr<TTabla> TTablasLiterales::Abre(std::string_view /*alias*/, std::string_view fichero,
                                               std::string_view indice) {
    return std::make_unique<TTablaLiteral>(carpeta_ / std::string(fichero), indice);
}

}  // namespace analizador::pruebas
