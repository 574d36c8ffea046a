#include "medidas/OficinaCrecida.h"

#include <chrono>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/dbase/DatosDbf.h"
#include "adaptadores/dbase/EscritorDbf.h"
#include "plataforma/CarpetaPrivada.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

namespace fs = std::filesystem;

// What is added to each copy; the first is the original. No word of a deed, and before all letters, so that a
// copy stands next to its original in every order.
std::string Sufijo(int copia) {
    return copia == 0 ? std::string() : " " + StrCeros(copia, 3) + "#";
}

void EscribeVocabulario(const fs::path& origen, const fs::path& destino, int veces) {
    const auto fichero = AbreFicheroIni(origen);
    std::ofstream salida(destino, std::ios::binary);
    for (const auto& seccion : fichero->Secciones()) {
        const auto& palabras = fichero->Palabras(seccion.Nombre);
        salida << '[' << seccion.Nombre << "]\r\n";
        salida << "NumPalabras=" << palabras.size() * static_cast<std::size_t>(veces) << "\r\n";
        std::size_t numero = 0;
        for (int copia = 0; copia < veces; ++copia)
            for (const std::string& palabra : palabras)
                salida << ++numero << "=\"" << palabra << Sufijo(copia) << "\"\r\n";
    }
}

TTipoColumna TipoColumna(TClaseCampo clase) {
    if (clase == TClaseCampo::Numero) return TTipoColumna::Numero;
    return clase == TClaseCampo::Logico ? TTipoColumna::Logico : TTipoColumna::Texto;
}

// A text as the copy has it; what has no room for more stays, like the codes.
std::string DeCopia(std::string texto, const TCampoDbf& campo, int copia) {
    const std::string otro = texto + Sufijo(copia);
    const bool cabe = campo.Clase == TClaseCampo::Texto && !texto.empty() && otro.size() <= campo.Longitud;
    return cabe ? otro : texto;
}

void EscribeTabla(const fs::path& origen, const fs::path& destino, int veces) {
    const TDatosDbf datos(LeeFichero(origen).Bytes, origen.filename().string());
    std::vector<TColumnaDbf> columnas;
    for (const TCampoDbf& campo : datos.Campos())
        columnas.push_back({campo.Nombre, TipoColumna(campo.Clase), static_cast<int>(campo.Longitud)});
    const auto copias = static_cast<std::size_t>(veces);
    const auto fila = [&](std::size_t i) {
        TFilaDbf valores;
        for (const TCampoDbf& campo : datos.Campos())
            valores.push_back(DeCopia(datos.Texto(static_cast<std::uint32_t>(i / copias), campo), campo,
                                      static_cast<int>(i % copias)));
        return valores;
    };
    EscribeDbf(
        destino, columnas, datos.Filas() * copias, fila,
        std::chrono::year_month_day{std::chrono::year{2026}, std::chrono::January, std::chrono::day{1}});
}

}  // namespace

TOficinaCrecida::TOficinaCrecida(const fs::path& config, const fs::path& tablas, int vecesVocabulario,
                                 int vecesTablas)
    : carpeta_(CarpetaPrivada() /
               ("oficina_" + std::to_string(vecesVocabulario) + "_" + std::to_string(vecesTablas))) {
    fs::create_directories(Config());
    fs::create_directories(Tablas());
    for (const char* const fichero : {"CASTELLANO.INI", "CATALAN.INI"})
        EscribeVocabulario(config / fichero, Config() / fichero, vecesVocabulario);
    for (const auto& tabla : fs::directory_iterator(tablas))
        if (tabla.path().extension() == ".DBF")
            EscribeTabla(tabla.path(), Tablas() / tabla.path().filename(), vecesTablas);
}

}  // namespace analizador
