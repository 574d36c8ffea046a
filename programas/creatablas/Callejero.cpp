#include "programas/creatablas/Callejero.h"

#include <algorithm>
#include <array>
#include <optional>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "programas/creatablas/LectorLineas.h"
#include "programas/creatablas/NombresDeVia.h"

namespace analizador {

namespace {

constexpr std::size_t LETRAS_VIA = 50;  // of the table's field
constexpr int LINEAS_DE_MUESTRA = 200;
constexpr int LINEAS_POR_AVISO = 20000;
constexpr std::uint32_t CODIGOS_VIA = 100000;
// Alicante, Baleares, Barcelona, Castellón, Girona, Lleida, Tarragona and València.
constexpr std::array<std::uint32_t, 8> PROVINCIAS_CATALANAS = {3, 7, 8, 12, 17, 25, 43, 46};

// Why a line is not taken, Castilian in UTF-8.
struct TRechazo {
    std::string Causa;
};

std::string Utf8(const std::filesystem::path& ruta) {
    const std::u8string utf8 = ruta.u8string();
    return {utf8.begin(), utf8.end()};
}

std::vector<std::filesystem::path> BuscaFicheros(const std::filesystem::path& carpeta,
                                                 const TDisenoFichero& diseno) {
    std::vector<std::filesystem::path> ficheros;
    std::error_code error;
    std::filesystem::directory_iterator entrada(carpeta, error);
    if (error) throw ErrorCallejero(Utf8(carpeta) + ": no se puede leer la carpeta del callejero");
    for (; !error && entrada != std::filesystem::directory_iterator(); entrada.increment(error)) {
        const std::string nombre = Utf8(entrada->path().filename());
        std::error_code deEsta;
        if (entrada->is_regular_file(deEsta) && EncajaPatron(diseno.Patron, nombre) &&
            !EncajaPatron("*.zip", nombre))
            ficheros.push_back(entrada->path());
    }
    if (ficheros.empty())
        throw ErrorCallejero(Utf8(carpeta) + ": falta el fichero " + diseno.Nombre + " del callejero (" +
                             diseno.Patron + ", ya descomprimido)");
    std::sort(ficheros.begin(), ficheros.end());
    return ficheros;
}

// The description that most of the file's first lines fit; any for an empty file.
const TDisenoRegistro& RegistroDe(const std::filesystem::path& fichero, const TDisenoFichero& diseno) {
    std::vector<int> votos(diseno.Registros.size(), 0);
    std::size_t primera = 0;
    TLectorLineas lector(fichero);
    for (int i = 0; i < LINEAS_DE_MUESTRA; ++i) {
        const auto linea = lector.Siguiente();
        if (!linea) break;
        if (primera == 0) primera = linea->size();
        for (std::size_t r = 0; r < votos.size(); ++r)
            if (diseno.Registros[r].Longitud == linea->size()) ++votos[r];
    }
    const auto mejor = std::max_element(votos.begin(), votos.end());
    if (*mejor > 0 || primera == 0) return diseno.Registros[static_cast<std::size_t>(mejor - votos.begin())];
    std::string longitudes;
    for (const TDisenoRegistro& registro : diseno.Registros)
        longitudes += (longitudes.empty() ? "" : " o ") + std::to_string(registro.Longitud);
    throw ErrorCallejero(Utf8(fichero) + ": sus líneas no miden " + longitudes + " caracteres (la primera, " +
                         std::to_string(primera) + "): corrija callejero.ini o compruebe el fichero");
}

// A line with its fields by name.
class TRegistro {
  public:
    TRegistro(std::string_view linea, const TDisenoRegistro& diseno) : linea_(linea), diseno_(diseno) {}

    [[nodiscard]] std::string_view Texto(std::string_view campo) const {
        return diseno_.Campos.find(campo)->second.De(linea_);
    }
    // Throws TRechazo when it is not made of digits alone.
    [[nodiscard]] std::uint32_t Codigo(std::string_view campo) const {
        const std::string_view texto = Texto(campo);
        std::uint32_t valor = 0;
        for (const char c : texto) {
            if (c < '0' || c > '9' || valor > 99999999U)
                throw TRechazo{std::string(campo) + " no es un número: " + Utf8DeAnsi(texto)};
            valor = valor * 10 + static_cast<std::uint32_t>(c - '0');
        }
        return valor;
    }
    // Throws TRechazo when it is empty or holds control characters.
    [[nodiscard]] std::string_view Nombre(std::string_view campo) const {
        const std::string_view texto = Recorta(Texto(campo));
        if (texto.empty()) throw TRechazo{std::string(campo) + " está vacío"};
        if (std::any_of(texto.begin(), texto.end(), [](char c) { return (c >= 0 && c < ' ') || c == 0x7F; }))
            throw TRechazo{std::string(campo) + " tiene caracteres que no son letras"};
        return texto;
    }
    [[nodiscard]] TCodigoMunicipio Municipio() const {
        const std::uint32_t provincia = Codigo("PROVINCIA");
        if (provincia < 1 || provincia > PROVINCIAS)
            throw TRechazo{"no existe la provincia " + std::string(Texto("PROVINCIA"))};
        const std::uint32_t municipio = Codigo("MUNICIPIO");
        if (municipio >= MUNICIPIOS_POR_PROVINCIA)
            throw TRechazo{"MUNICIPIO no es posible: " + std::string(Texto("MUNICIPIO"))};
        return provincia * MUNICIPIOS_POR_PROVINCIA + municipio;
    }

  private:
    std::string_view linea_;
    const TDisenoRegistro& diseno_;
};

// The streets and the pseudo-streets of a municipality are numbered apart.
std::uint64_t ClaveDeVia(TCodigoMunicipio municipio, bool seudo, std::uint32_t codigo) {
    return (std::uint64_t{municipio} * 2 + (seudo ? 1 : 0)) * CODIGOS_VIA + codigo;
}

class TLectorCallejero {
  public:
    TLectorCallejero(const std::filesystem::path& carpeta, const TDisenoCallejero& diseno,
                     TRechazos& rechazos, const TProgresoCallejero& progreso)
        : carpeta_(carpeta), diseno_(diseno), rechazos_(rechazos), progreso_(progreso) {}

    [[nodiscard]] TCallejero Lee() {
        constexpr std::array<std::string_view, 4> CONJUNTO = {"UP", "VIAS", "PSEU", "TRAM"};
        for (const std::string_view nombre : CONJUNTO)  // all missing ones are told before any is read
            ficheros_[std::string(nombre)] = BuscaFicheros(carpeta_, diseno_.Fichero(nombre));
        callejero_.Municipios.resize((PROVINCIAS + 1) * MUNICIPIOS_POR_PROVINCIA);
        LeeLineas("UP", [this](const TRegistro& r) { TomaMunicipio(r); });
        LeeLineas("VIAS", [this](const TRegistro& r) { TomaVia(r, false); });
        LeeLineas("PSEU", [this](const TRegistro& r) { TomaVia(r, true); });
        OrdenaVias();
        LeeLineas("TRAM", [this](const TRegistro& r) { TomaTramo(r); });
        return std::move(callejero_);
    }

  private:
    template <class Toma>
    void LeeLineas(const std::string& nombre, Toma toma) {
        for (const std::filesystem::path& fichero : ficheros_[nombre]) {
            const TDisenoRegistro& diseno = RegistroDe(fichero, diseno_.Fichero(nombre));
            LeeFichero(fichero, diseno, toma);
        }
    }

    template <class Toma>
    void LeeFichero(const std::filesystem::path& fichero, const TDisenoRegistro& diseno, Toma toma) {
        std::error_code error;
        const std::uint64_t total = std::filesystem::file_size(fichero, error);
        const std::string nombre = Utf8(fichero.filename());
        TLectorLineas lector(fichero);
        while (const auto linea = lector.Siguiente()) {
            try {
                if (linea->size() != diseno.Longitud)
                    throw TRechazo{"la línea tiene " + std::to_string(linea->size()) +
                                   " caracteres y tendría que tener " + std::to_string(diseno.Longitud)};
                toma(TRegistro(*linea, diseno));
            } catch (const TRechazo& rechazo) {
                rechazos_.Anota(nombre, lector.Linea(), rechazo.Causa);
            }
            if (lector.Linea() % LINEAS_POR_AVISO == 0 && progreso_)
                progreso_(nombre, lector.Leidos(), total);
        }
        if (progreso_) progreso_(nombre, total, total);
    }

    // Every unit of a municipality bears its name, save those that group several.
    void TomaMunicipio(const TRegistro& registro) {
        TMunicipioCallejero& municipio = callejero_.Municipios[registro.Municipio()];
        if (municipio.Nombre.empty() && !Recorta(registro.Texto("NOMBRE")).empty())
            municipio.Nombre = std::string(registro.Nombre("NOMBRE"));
    }

    [[nodiscard]] TCodigoMunicipio MunicipioConocido(const TRegistro& registro) const {
        const TCodigoMunicipio codigo = registro.Municipio();
        if (callejero_.Municipios[codigo].Nombre.empty())
            throw TRechazo{"el municipio " + std::string(registro.Texto("PROVINCIA")) +
                           std::string(registro.Texto("MUNICIPIO")) + " no está en el fichero UP"};
        return codigo;
    }

    void TomaVia(const TRegistro& registro, bool seudo) {
        const TCodigoMunicipio municipio = MunicipioConocido(registro);
        const std::uint32_t codigo = CodigoDeVia(registro, "VIA");
        const std::string_view tipo = seudo ? std::string_view() : Recorta(registro.Texto("TIPO"));
        const std::uint32_t provincia = municipio / MUNICIPIOS_POR_PROVINCIA;
        const bool catalana = std::find(PROVINCIAS_CATALANAS.begin(), PROVINCIAS_CATALANAS.end(),
                                        provincia) != PROVINCIAS_CATALANAS.end();
        const TNombresVia nombres = NombresDeVia(tipo, registro.Nombre("NOMBRE"), catalana, diseno_);
        TViaCallejero via;
        via.Clave = ClaveDeVia(municipio, seudo, codigo);
        via.Primero = static_cast<std::uint32_t>(callejero_.Nombres.size());
        via.Tipo = NumeroDeTipo(nombres.Tipo);
        for (const std::string& nombre : nombres.Nombres)
            via.Cuantos = static_cast<std::uint8_t>(via.Cuantos + PonNombre(nombre));
        if (via.Cuantos == 0)
            throw TRechazo{"el nombre de la vía no cabe en " + std::to_string(LETRAS_VIA) + " caracteres"};
        AnotaTipoDesconocido(tipo);
        callejero_.Vias.push_back(via);
        ++(seudo ? callejero_.SeudoviasLeidas : callejero_.ViasLeidas);
    }

    [[nodiscard]] static std::uint32_t CodigoDeVia(const TRegistro& registro, std::string_view campo) {
        const std::uint32_t codigo = registro.Codigo(campo);
        if (codigo >= CODIGOS_VIA)
            throw TRechazo{std::string(campo) + " no es posible: " + std::to_string(codigo)};
        return codigo;
    }

    [[nodiscard]] static std::uint8_t NumeroDeTipo(std::string_view tipo) {
        const auto hallado = std::find(CONST_TIPO_VIA.begin(), CONST_TIPO_VIA.end(), tipo);
        return hallado == CONST_TIPO_VIA.end()
                   ? std::uint8_t{0}
                   : static_cast<std::uint8_t>(hallado - CONST_TIPO_VIA.begin() + 1);
    }

    // How many names were put: one that the table's field cannot hold is never found.
    int PonNombre(const std::string& nombre) {
        if (nombre.size() > LETRAS_VIA) return 0;
        callejero_.Nombres.push_back(
            {static_cast<std::uint32_t>(callejero_.Textos.size()), static_cast<std::uint8_t>(nombre.size())});
        callejero_.Textos += nombre;
        return 1;
    }

    void AnotaTipoDesconocido(std::string_view tipo) {
        if (tipo.empty() || tipo == "." || !diseno_.Tipo(Pliega(tipo)).empty()) return;
        ++callejero_.TiposDesconocidos[std::string(tipo)];
    }

    void OrdenaVias() {
        auto& vias = callejero_.Vias;
        std::stable_sort(vias.begin(), vias.end(),
                         [](const TViaCallejero& a, const TViaCallejero& b) { return a.Clave < b.Clave; });
    }

    // Of a street given twice the first counts.
    [[nodiscard]] std::optional<std::uint32_t> BuscaVia(std::uint64_t clave) const {
        const auto& vias = callejero_.Vias;
        const auto via =
            std::lower_bound(vias.begin(), vias.end(), clave,
                             [](const TViaCallejero& v, std::uint64_t c) { return v.Clave < c; });
        if (via == vias.end() || via->Clave != clave) return std::nullopt;
        return static_cast<std::uint32_t>(via - vias.begin());
    }

    void TomaTramo(const TRegistro& registro) {
        TTramoCallejero tramo;
        tramo.Municipio = MunicipioConocido(registro);
        tramo.CodPostal = CodPostalDe(registro);
        PonNumeros(tramo, registro);
        const std::uint32_t via = CodigoDeVia(registro, "VIA");
        const std::uint32_t seudovia = CodigoDeVia(registro, "PSEUDOVIA");
        const bool conVia = via != 0 || seudovia != 0;
        if (conVia) tramo.Via = ViaDe(tramo.Municipio, via, seudovia);
        PonCodPostal(callejero_.Municipios[tramo.Municipio], tramo.CodPostal);
        ++callejero_.TramosLeidos;
        if (conVia)
            callejero_.Tramos.push_back(tramo);
        else
            ++callejero_.TramosSinVia;
    }

    [[nodiscard]] std::uint32_t ViaDe(TCodigoMunicipio municipio, std::uint32_t via,
                                      std::uint32_t seudovia) const {
        const bool seudo = via == 0;
        const std::uint32_t codigo = seudo ? seudovia : via;
        const auto hallada = BuscaVia(ClaveDeVia(municipio, seudo, codigo));
        if (!hallada)
            throw TRechazo{std::string("la ") + (seudo ? "seudovía " : "vía ") + std::to_string(codigo) +
                           " del municipio no está en el fichero " + (seudo ? "PSEU" : "VIAS")};
        return *hallada;
    }

    [[nodiscard]] static std::uint32_t CodPostalDe(const TRegistro& registro) {
        const std::uint32_t codigo = registro.Codigo("CODPOSTAL");
        const std::uint32_t provincia = codigo / 1000;
        if (provincia < 1 || provincia > PROVINCIAS)
            throw TRechazo{"el código postal " + std::string(registro.Texto("CODPOSTAL")) +
                           " no es de ninguna provincia"};
        return codigo;
    }

    static void PonNumeros(TTramoCallejero& tramo, const TRegistro& registro) {
        const std::uint32_t numeracion = registro.Codigo("NUMERACION");
        if (numeracion > 2) throw TRechazo{"NUMERACION no es 0, 1 ni 2: " + std::to_string(numeracion)};
        const std::uint32_t primero = registro.Codigo("PRIMERO"), ultimo = registro.Codigo("ULTIMO");
        if (numeracion == 0) return;
        tramo.Impar = numeracion == 1;
        for (const std::uint32_t numero : {primero, ultimo})
            if ((numero % 2 == 1) != tramo.Impar)
                throw TRechazo{"el número " + std::to_string(numero) + " no es " +
                               (tramo.Impar ? "impar" : "par")};
        if (primero > ultimo)
            throw TRechazo{"el tramo empieza en el " + std::to_string(primero) + " y acaba en el " +
                           std::to_string(ultimo)};
        tramo.Primero = static_cast<std::uint16_t>(std::min(primero, 65535U));
        tramo.Ultimo = static_cast<std::uint16_t>(std::min(ultimo, 65535U));
    }

    static void PonCodPostal(TMunicipioCallejero& municipio, std::uint32_t codigo) {
        ++municipio.Tramos;
        const auto donde = std::lower_bound(municipio.Codigos.begin(), municipio.Codigos.end(), codigo);
        if (donde == municipio.Codigos.end() || *donde != codigo) municipio.Codigos.insert(donde, codigo);
    }

    const std::filesystem::path& carpeta_;
    const TDisenoCallejero& diseno_;
    TRechazos& rechazos_;
    const TProgresoCallejero& progreso_;
    std::map<std::string, std::vector<std::filesystem::path>> ficheros_;
    TCallejero callejero_;
};

}  // namespace

TCallejero LeeCallejero(const std::filesystem::path& carpeta, const TDisenoCallejero& diseno,
                        TRechazos& rechazos, const TProgresoCallejero& progreso) {
    return TLectorCallejero(carpeta, diseno, rechazos, progreso).Lee();
}

}  // namespace analizador
