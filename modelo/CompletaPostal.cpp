#include <memory>
#include <optional>

#include "modelo/TROtorgante.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Ruttb.h"

namespace analizador {

namespace {

constexpr int LUGAR_DE_LA_OFICINA = 1;
constexpr int CIFRAS_PROVINCIA = 2;
constexpr int LETRAS_TIPO_VIA = 3;

std::unique_ptr<TTabla> Abre(std::string_view fichero, std::string_view indice) {
    return CreaTabla(Config().GetAliasNorvex(), fichero, indice, true, false);
}

struct TCodigos {
    std::string CodPostal;
    std::string CodINE;
};

struct TBusquedaCalle {
    std::optional<TCodigos> Codigos;
    bool HaySinTipo = false;  // rows without a street type were passed over
};

// Each side of a street has its numbers; a last one of 0 means that the stretch has no end.
bool TieneNumero(const TTabla& calles, int numero) {
    const bool impar = numero % 2 != 0;
    const int primero = calles.Entero(impar ? "IMPAR_INI" : "PAR_INI");
    const int ultimo = calles.Entero(impar ? "IMPAR_FIN" : "PAR_FIN");
    return numero >= primero && (ultimo == 0 || numero <= ultimo);
}

// Looks for the street and number among the stretches of the current range.
std::optional<std::string> CodPostalDeTramo(TTabla& calles, std::string_view tipoVia, int numero,
                                            bool& haySinTipo) {
    const std::string_view buscado = Recorta(StrLeft(tipoVia, LETRAS_TIPO_VIA));
    for (; !calles.Fin(); calles.Siguiente()) {
        const std::string tipo = calles.Texto("TIPO_VIA");
        if (tipo != buscado)
            haySinTipo = haySinTipo || tipo.empty();
        else if (TieneNumero(calles, numero))
            return calles.Texto("CODPOSTAL");
    }
    return std::nullopt;
}

// Looks for the party's street in the municipalities of the range, in their order.
TBusquedaCalle BuscaCalle(TTabla& municipios, const TROtorgante& otorgante, std::string_view tipoVia) {
    const auto calles = Abre("POSTAL.DBF", "NOMBREVIA");
    const int numero = Cad_Int(otorgante.Numero);
    TBusquedaCalle busqueda;
    for (municipios.Primero(); !municipios.Fin(); municipios.Siguiente()) {
        const std::string provincia = municipios.Texto("COD_PROV");
        if (!TBRango(*calles, {{"PROVINCIA", provincia}, {"VIA", otorgante.Domicilio}},
                     {{"PROVINCIA", provincia}, {"VIA", otorgante.Domicilio}}))
            continue;
        if (const auto codPostal = CodPostalDeTramo(*calles, tipoVia, numero, busqueda.HaySinTipo)) {
            busqueda.Codigos = {*codPostal, municipios.Texto("COD_INE")};
            break;
        }
        calles->CancelaRango();
    }
    return busqueda;
}

void CompletaPorCalle(TROtorgante& otorgante, TTabla& municipios) {
    const auto toma = [&](const std::optional<TCodigos>& codigos) {
        if (!codigos) return;
        otorgante.CodPostal = codigos->CodPostal;
        otorgante.CodINE = codigos->CodINE;
    };
    const TBusquedaCalle conTipo = BuscaCalle(municipios, otorgante, otorgante.TipoVia);
    toma(conTipo.Codigos);
    if (conTipo.HaySinTipo) toma(BuscaCalle(municipios, otorgante, "").Codigos);
}

void CompletaPorCodPostal(TROtorgante& otorgante) {
    const auto municipios = Abre("MUNICIPI.DBF", "CODPOSTAL");
    if (!TBBusca(*municipios, {{"CODPOSTAL", otorgante.CodPostal}}, true)) return;
    otorgante.Vecindad = municipios->Texto("NOMBRE");
    otorgante.CodINE = municipios->Texto("COD_INE");
}

void TomaMunicipio(TROtorgante& otorgante, const TTabla& municipios) {
    otorgante.CodINE = municipios.Texto("COD_INE");
    if (otorgante.CodPostal.empty()) otorgante.CodPostal = municipios.Texto("CODPOSTAL");
}

void CompletaPorMunicipio(TROtorgante& otorgante) {
    const auto municipios = Abre("MUNICIPI.DBF", "NOM_MUNICI");
    otorgante.CodINE.clear();
    const std::string_view nombre = Recorta(otorgante.Vecindad);
    if (!TBRango(*municipios, {{"NOM_MUNICI", nombre}}, {{"NOM_MUNICI", nombre}})) return;
    const int filas = municipios->CuentaFilas();
    if (filas != 1) {
        if (!otorgante.CodPostal.empty())
            CompletaPorCodPostal(otorgante);
        else
            CompletaPorCalle(otorgante, *municipios);
    }
    if (filas == 0 || !otorgante.CodINE.empty()) return;
    municipios->Primero();
    TomaMunicipio(otorgante, *municipios);
}

// A municipality that no table knows is taken to be the office's own.
void TomaMunicipioDeLaOficina(TROtorgante& otorgante) {
    const auto pueblos = Abre("AYUNTAM.DBF", "LUGAR");
    TBBusca(*pueblos, {{"LUGAR", LUGAR_DE_LA_OFICINA}}, true);
    otorgante.CodINE = pueblos->Texto("COD_INE");
    otorgante.CodPostal = pueblos->Texto("CODPOSTAL");
    otorgante.Vecindad = pueblos->Texto("NOMBRE");
}

void CompletaProvincia(TROtorgante& otorgante) {
    const auto provincias = Abre("PROVIN.DBF", "CODIGO");
    TBBusca(*provincias, {{"CODIGO", StrLeft(otorgante.CodPostal, CIFRAS_PROVINCIA)}}, true);
    otorgante.Provincia = provincias->Texto("PROVINCIA");
}

}  // namespace

void TROtorgante::CompletaPostal() {
    if (!CodPostal.empty() && Vecindad.empty()) {
        CompletaPorCodPostal(*this);
    } else {
        CompletaPorMunicipio(*this);
        if (CodINE.empty()) TomaMunicipioDeLaOficina(*this);
    }
    CompletaProvincia(*this);
}

}  // namespace analizador
