#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/FicheroIni.h"
#include "programas/analiza/SeccionesVocabulario.h"

namespace analizador {

// A token file as it stands on disk.
struct TVocabulario {
    std::string Nombre;  // its name, for people: CASTELLANO.INI
    std::string Bytes;
    TFicheroIni Ini;
};

// Throws ErrorConfiguracion when the file cannot be read.
[[nodiscard]] TVocabulario LeeVocabulario(const std::filesystem::path& fichero);

// The same from its text.
[[nodiscard]] TVocabulario VocabularioDe(std::string nombre, std::string bytes);

// An entry that the program reads.
struct TEntradaVocabulario {
    std::string Texto;  // Windows-1252; never empty
    int Numero = 0;     // in its section, from 1
    int Linea = 0;      // in the file, from 1
};

// The entries of a section, in the order of the list; empty ones left out.
[[nodiscard]] std::vector<TEntradaVocabulario> Entradas(const TFicheroIni& ini, std::string_view seccion);

// A comment line "; conocido: MAYOR MAYORES" right above an entry: the common words that contain it and are
// put up with.
struct TMarcaConocido {
    int Linea = 0;                      // of the entry, the one below the comment
    std::vector<std::string> Palabras;  // folded
};

// All of a file, by line.
[[nodiscard]] std::vector<TMarcaConocido> MarcasConocido(const TVocabulario& vocabulario);

// The words of a text (Windows-1252), which blanks separate, folded.
[[nodiscard]] std::vector<std::string> PalabrasPlegadas(std::string_view texto);

// "«texto»" in UTF-8, of a Windows-1252 text.
[[nodiscard]] std::string EntreComillas(std::string_view texto);

}  // namespace analizador
