#include "adaptadores/ini/ConfigIni.h"

#include <algorithm>

#include "plataforma/Ansi.h"
#include "plataforma/FicheroIni.h"
#include "plataforma/Rficheros.h"
#include "plataforma/Rnumcad.h"

namespace analizador {

namespace {

[[noreturn]] void Rechaza(const std::filesystem::path& fichero, const std::string& causa) {
    throw ErrorConfiguracion(Utf8DeRuta(fichero) + ": " + causa);
}

// A whole number of the file, `defecto` when the key is missing or empty.
int Entero(const TFicheroIni& ini, const std::filesystem::path& fichero, const char* seccion,
           const char* clave, int defecto) {
    const std::string texto = ini.LeeTexto(seccion, clave, "");
    if (texto.empty()) return defecto;
    const auto numero = EnteroDeCadena(texto);
    if (!numero) Rechaza(fichero, std::string("[") + seccion + "] " + clave + " debe ser un número");
    return *numero;
}

}  // namespace

TConfigIni::TConfigIni(const std::filesystem::path& fichero, const std::filesystem::path& aplicacion) {
    const auto ini = AbreFicheroIni(fichero);
    FTablas = aplicacion / std::filesystem::path(Utf8DeAnsi(ini->LeeTexto("TABLAS", "Carpeta", "TABLAS")));

    FNotarios = ini->Palabras("NOTARIOS");
    const int cuantos = Entero(*ini, fichero, "NOTARIOS", "NumPalabras", 0);
    const bool falta =
        std::any_of(FNotarios.begin(), FNotarios.end(), [](const auto& n) { return n.empty(); });
    if (falta || cuantos != static_cast<int>(FNotarios.size()))
        Rechaza(fichero, "[NOTARIOS] NumPalabras no coincide con los notarios escritos");
    FNombre1 = ini->LeeTexto("NOTARIOS", "Nombre", "");

    const int porDefecto = Entero(*ini, fichero, "NOTARIOS", "PorDefecto", 0);
    if (porDefecto < 0 || porDefecto > cuantos)
        Rechaza(fichero, "[NOTARIOS] PorDefecto no es el número de ningún notario de la lista");
    if (porDefecto != 0) FPorDefecto = Int_Cad(porDefecto);

    FSinXml = Entero(*ini, fichero, "XML", "Mostrar", 1) == 0;
}

}  // namespace analizador
