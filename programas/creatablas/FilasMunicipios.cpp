#include "programas/creatablas/FilasMunicipios.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "programas/creatablas/NombresDeVia.h"

namespace analizador {

namespace {

enum TColumna : std::size_t { NOM_MUNICI, CODPOSTAL, NOMBRE, COD_INE, COD_PROV };

constexpr std::size_t CIFRAS_CODIGO = 5;

std::string Codigo(std::uint32_t numero) {
    std::string texto = std::to_string(numero);
    return std::string(CIFRAS_CODIGO - std::min(texto.size(), CIFRAS_CODIGO), '0') + texto;
}

// The street map's entry; nullptr when the row's code is none of it.
const TMunicipioCallejero* MunicipioDe(const TFilaDbf& fila, const TCallejero& callejero) {
    const int codigo = Cad_Int(fila[COD_INE]);
    if (codigo <= 0 || static_cast<std::size_t>(codigo) >= callejero.Municipios.size()) return nullptr;
    const TMunicipioCallejero& municipio = callejero.Municipios[static_cast<std::size_t>(codigo)];
    return municipio.Codigos.empty() ? nullptr : &municipio;
}

void PonConCodigos(std::vector<TFilaDbf>& salida, TFilaDbf fila, const TMunicipioCallejero& municipio) {
    fila[CODPOSTAL].clear();
    if (municipio.Codigos.size() > 1) salida.push_back(fila);
    for (const std::uint32_t codigo : municipio.Codigos) {
        fila[CODPOSTAL] = Codigo(codigo);
        salida.push_back(fila);
    }
}

void PonNuevos(std::vector<TFilaDbf>& salida, const TCallejero& callejero,
               const std::set<std::string>& conocidos) {
    for (std::uint32_t codigo = 0; codigo < callejero.Municipios.size(); ++codigo) {
        const TMunicipioCallejero& municipio = callejero.Municipios[codigo];
        if (municipio.Codigos.empty() || conocidos.contains(Codigo(codigo))) continue;
        for (const std::string& nombre : NombresDeMunicipio(municipio.Nombre))
            PonConCodigos(salida, {nombre, "", nombre, Codigo(codigo), Codigo(codigo).substr(0, 2)},
                          municipio);
    }
}

}  // namespace

std::vector<TFilaDbf> FilasMunicipios(const std::vector<TFilaDbf>& filas, const TCallejero& callejero) {
    std::vector<TFilaDbf> salida;
    std::set<std::pair<std::string, std::string>> puestos;  // name and code, completed already
    std::set<std::string> conocidos;
    for (const TFilaDbf& fila : filas) {
        conocidos.insert(fila[COD_INE]);
        const TMunicipioCallejero* municipio = MunicipioDe(fila, callejero);
        if (municipio == nullptr)
            salida.push_back(fila);
        else if (puestos.emplace(Pliega(fila[NOM_MUNICI]), fila[COD_INE]).second)
            PonConCodigos(salida, fila, *municipio);
    }
    PonNuevos(salida, callejero, conocidos);
    std::stable_sort(salida.begin(), salida.end(), [](const TFilaDbf& a, const TFilaDbf& b) {
        return Pliega(a[NOM_MUNICI]) < Pliega(b[NOM_MUNICI]);
    });
    return salida;
}

std::vector<bool> MunicipiosBuscados(const std::vector<TFilaDbf>& filas) {
    std::map<std::string, int> filasDeNombre;
    for (const TFilaDbf& fila : filas) ++filasDeNombre[Pliega(RecortaDerecha(fila[NOM_MUNICI]))];
    std::vector<bool> buscados((PROVINCIAS + 1) * MUNICIPIOS_POR_PROVINCIA, false);
    for (const TFilaDbf& fila : filas) {
        const int codigo = Cad_Int(fila[COD_INE]);
        if (codigo > 0 && static_cast<std::size_t>(codigo) < buscados.size() &&
            filasDeNombre[Pliega(RecortaDerecha(fila[NOM_MUNICI]))] > 1)
            buscados[static_cast<std::size_t>(codigo)] = true;
    }
    return buscados;
}

}  // namespace analizador
