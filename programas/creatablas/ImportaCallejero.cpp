#include "programas/creatablas/ImportaCallejero.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <sstream>
#include <string>

#include "adaptadores/dbase/OrdenDbf.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "plataforma/Utf8.h"
#include "programas/creatablas/CreaTablas.h"
#include "programas/creatablas/Esquema.h"
#include "programas/creatablas/FilasMunicipios.h"
#include "programas/creatablas/FilasPostales.h"
#include "programas/creatablas/LectorCsv.h"

namespace analizador {

namespace {

constexpr const char* DISENO = "callejero.ini";
constexpr const char* RECHAZOS = "RECHAZOS.TXT";
constexpr std::string_view INDICE_VIAS = "NOMBREVIA";

std::string Utf8(const std::filesystem::path& ruta) {
    const std::u8string utf8 = ruta.u8string();
    return {utf8.begin(), utf8.end()};
}

const TEsquema& EsquemaDe(std::string_view tabla) {
    return *std::find_if(Esquemas().begin(), Esquemas().end(),
                         [&](const TEsquema& esquema) { return esquema.Tabla == tabla; });
}

std::vector<TFilaDbf> LeeMunicipios(const std::filesystem::path& csv) {
    std::ifstream fichero(csv, std::ios::binary);
    std::ostringstream texto;
    if (!fichero || !(texto << fichero.rdbuf())) throw ErrorCallejero(Utf8(csv) + ": no se puede leer");
    try {
        return FilasDeCsv(texto.str(), EsquemaDe("MUNICIPI"));
    } catch (const ErrorCsv& error) {
        throw ErrorCallejero(Utf8(csv) + ":" + std::to_string(error.Linea) + ": " + error.what());
    }
}

void CreaCarpeta(const std::filesystem::path& destino) {
    std::error_code error;
    std::filesystem::create_directories(destino, error);
    if (!std::filesystem::is_directory(destino, error))
        throw ErrorCallejero(Utf8(destino) + ": no se puede crear la carpeta");
}

void DiRechazos(const TRechazos& rechazos, std::ostream& errores) {
    for (const std::string& rechazo : rechazos.Primeros()) errores << "creatablas: " << rechazo << '\n';
    if (rechazos.Cuantos() > rechazos.Primeros().size())
        errores << "creatablas: y " << rechazos.Cuantos() - rechazos.Primeros().size()
                << " líneas rechazadas más: " << Utf8(rechazos.Lista()) << '\n';
}

void DiLeido(const TCallejero& callejero, std::ostream& salida) {
    const auto municipios = std::count_if(callejero.Municipios.begin(), callejero.Municipios.end(),
                                          [](const TMunicipioCallejero& m) { return !m.Nombre.empty(); });
    salida << "Leídos: " << municipios << " municipios, " << callejero.ViasLeidas << " vías, "
           << callejero.SeudoviasLeidas << " seudovías y " << callejero.TramosLeidos << " tramos ("
           << callejero.TramosSinVia << " sin vía, que solo dan el código postal de su municipio).\n";
    if (callejero.TiposDesconocidos.empty()) return;
    salida << "Tipos de vía que no están en " << DISENO << ":";
    for (const auto& [tipo, veces] : callejero.TiposDesconocidos)
        salida << ' ' << EnUnaLinea(Utf8DeAnsi(tipo)) << " (" << veces << ')';
    salida << '\n';
}

void EscribeTablas(const TCallejero& callejero, const std::vector<TFilaDbf>& municipios,
                   const std::filesystem::path& destino, std::ostream& salida) {
    const std::vector<TFilaPostal> filas = FilasPostales(callejero, MunicipiosBuscados(municipios));
    const std::chrono::year_month_day hoy =
        std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    const std::filesystem::path postal = destino / "POSTAL.DBF";
    OlvidaOrden(postal);
    EscribeDbf(
        postal, EsquemaDe("POSTAL").Columnas, filas.size(),
        [&](std::size_t fila) { return FilaDbfDe(callejero, filas[fila]); }, hoy);
    RedondeaFecha(postal);
    AnotaOrden(postal, INDICE_VIAS);
    EscribeTabla(destino, EsquemaDe("MUNICIPI"), municipios, hoy);
    salida << "Escritas: POSTAL.DBF con " << filas.size() << " filas y MUNICIPI.DBF con " << municipios.size()
           << ".\n";
}

}  // namespace

bool ImportaCallejero(const std::filesystem::path& carpeta, const std::filesystem::path& origen,
                      const std::filesystem::path& destino, std::ostream& salida, std::ostream& errores,
                      const TProgresoCallejero& progreso) {
    try {
        const TDisenoCallejero diseno(origen / DISENO);
        const std::vector<TFilaDbf> propias = LeeMunicipios(origen / "MUNICIPI.csv");
        CreaCarpeta(destino);
        TRechazos rechazos(destino / RECHAZOS);
        const TCallejero callejero = LeeCallejero(carpeta, diseno, rechazos, progreso);
        DiLeido(callejero, salida);
        salida << "Líneas rechazadas: " << rechazos.Cuantos() << ".\n";
        DiRechazos(rechazos, errores);
        if (callejero.TramosLeidos == 0)
            throw ErrorCallejero(Utf8(carpeta) +
                                 ": ningún tramo se puede aprovechar; las tablas no se tocan");
        EscribeTablas(callejero, FilasMunicipios(propias, callejero), destino, salida);
        return true;
    } catch (const ErrorCallejero& error) {
        errores << "creatablas: " << EnUnaLinea(error.what()) << '\n';
    } catch (const ErrorTabla& error) {
        errores << "creatablas: " << Utf8DeAnsi(error.what()) << '\n';
    }
    return false;
}

}  // namespace analizador
