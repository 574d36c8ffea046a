#include "pruebas/comun/VocabularioDePrueba.h"

#include <fstream>
#include <system_error>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Rficheros.h"

namespace analizador {

namespace {

const std::filesystem::path& FicheroDe(TIdioma idioma) {
    return idioma == TIdioma::Castellano ? Rutas().CASTELLANO_INI : Rutas().CATALAN_INI;
}

// The entries go between quotes, which keep the blanks at their ends.
std::string TextoIni(const TSeccionesDePrueba& secciones) {
    std::string texto;
    for (const auto& [nombre, entradas] : secciones) {
        texto.append("[").append(nombre).append("]\r\n");
        texto += "NumPalabras=" + std::to_string(entradas.size()) + "\r\n";
        for (std::size_t i = 0; i < entradas.size(); ++i)
            if (!entradas[i].empty())
                texto.append(std::to_string(i + 1)).append("=\"").append(entradas[i]).append("\"\r\n");
    }
    return texto;
}

}  // namespace

TVocabularioDePrueba::TVocabularioDePrueba(const TSeccionesDePrueba& castellano,
                                           const TSeccionesDePrueba& catalan)
    : anterior_(Rutas().PATH_APLICACION), carpeta_(FicheroTemporal_({}, "vocabulario", "prueba")) {
    std::filesystem::remove(carpeta_);
    PonCarpetaAplicacion(carpeta_);
    std::filesystem::create_directories(Rutas().PATH_TOKEN_AP);
    Pon(TIdioma::Castellano, castellano);
    Pon(TIdioma::Catalan, catalan);
}

TVocabularioDePrueba::~TVocabularioDePrueba() {
    PonCarpetaAplicacion(anterior_);
    std::error_code nada;
    std::filesystem::remove_all(carpeta_, nada);
}

void TVocabularioDePrueba::Elige(TIdioma idioma) const {
    PonTOKENS_INI(FicheroDe(idioma));
}

void TVocabularioDePrueba::Pon(TIdioma idioma, const TSeccionesDePrueba& secciones) const {
    PonBytes(idioma, TextoIni(secciones));
}

void TVocabularioDePrueba::PonBytes(TIdioma idioma, std::string_view bytes) const {
    std::ofstream fichero(FicheroDe(idioma), std::ios::binary | std::ios::trunc);
    fichero.exceptions(std::ios::failbit | std::ios::badbit);
    fichero.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    fichero.close();
}

void TVocabularioDePrueba::Quita(TIdioma idioma) const {
    std::filesystem::remove(FicheroDe(idioma));
}

}  // namespace analizador
