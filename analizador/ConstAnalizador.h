#pragma once

// The fixed vocabularies that recognisers, records, report and dialogs share, and the paths of the token
// files. Rows of a section table and of its code table go together; their order is the one in which the
// recognisers try them. Texts are Windows-1252.

#include <array>
#include <filesystem>
#include <string_view>

namespace analizador {

inline constexpr std::array<std::string_view, 2> CONST_SECCION_SEXOS = {"HOMBRE", "MUJER"};

// Second marriages are tried before CASADO, whose words they contain, and so are the other former states.
inline constexpr std::array<std::string_view, 7> CONST_SECCION_ESTADO_CIVIl = {
    "CASADO EN SEGUNDAS NUPCIAS", "DIVORCIADO", "SOLTERO", "VIUDO", "PAREJA DE HECHO", "SEPARADO", "CASADO"};
inline constexpr std::array<int, 7> CONST_ESTADO_CIVIL = {2, 3, 5, 6, 7, 4, 1};

// The last code, another regime, has no section: it is what remains when no section is found.
inline constexpr std::array<std::string_view, 3> CONST_SECCION_REGIMEN_MATRIMONIAL = {
    "GANANCIALES", "SEPARACION DE BIENES", "PARTICIPACION"};
inline constexpr std::array<int, 4> CONST_REGIMEN_MATRIMONIAL = {1, 2, 3, 4};

inline constexpr std::array<std::string_view, 3> CONST_SECCION_TIPO_INTERES = {"EURIBOR", "IRPH", "CECA"};
inline constexpr std::array<int, 3> CONST_TIPO_INTERES = {2, 3, 4};

inline constexpr std::array<std::string_view, 12> CONST_SECCION_TIPO_VIA = {
    "CALLE", "PLAZA",    "AVENIDA", "TRAVESIA",  "URBANIZACION", "RONDA",
    "PASEO", "GLORIETA", "FINCA",   "CARRETERA", "COLONIA",      "RAMBLA"};
inline constexpr std::array<std::string_view, 12> CONST_TIPO_VIA = {"CL", "PZ", "AV", "TR", "UR", "RD",
                                                                    "PS", "GL", "FN", "CR", "CN", "RB"};

// Indexed by a party's IntervencionVRK, from 0.
inline constexpr std::array<std::string_view, 7> CONST_TIPO_INTERVENCION_VRK = {
    "0. En su nombre",
    "1. En representaci\xF3n de",
    "2. Por s\xED y en representaci\xF3n de",
    "3. Mandatario verbal",
    "4. Los dos en representaci\xF3n de",
    "5. Representado",
    "6. Por s\xED y mandatario verbal"};

// The intervention's text; empty for a number outside 0..6.
[[nodiscard]] constexpr std::string_view TextoIntervencionVRK(int intervencion) {
    if (intervencion < 0 || intervencion >= static_cast<int>(CONST_TIPO_INTERVENCION_VRK.size())) return {};
    return CONST_TIPO_INTERVENCION_VRK[static_cast<std::size_t>(intervencion)];
}

// Where the program and its token files are. Set once per process, before the first analysis.
struct TRutasAnalizador {
    std::filesystem::path PATH_APLICACION;  // ends in a separator
    std::filesystem::path PATH_TOKEN_AP;    // its CONFIG folder
    std::filesystem::path CASTELLANO_INI;
    std::filesystem::path CATALAN_INI;
};

// The paths in force: those of the running program's own folder until `PonCarpetaAplicacion` says otherwise.
[[nodiscard]] const TRutasAnalizador& Rutas();

// Makes `carpeta` the host program's folder (its CONFIG holds the token files), for the whole process; the
// current token file of this thread becomes the Castilian one. Call it before any analysis begins.
void PonCarpetaAplicacion(const std::filesystem::path& carpeta);

// Makes `carpeta` itself the folder of the token files; else as above.
void PonCarpetaTokens(const std::filesystem::path& carpeta);

// The current token file. It belongs to the deed being analysed, hence to the thread; the Castilian one until
// an analysis chooses.
[[nodiscard]] const std::filesystem::path& TOKENS_INI();
void PonTOKENS_INI(std::filesystem::path fichero);

// Whether the current token file is exactly the Castilian / the Catalan one. They are not each other's
// opposite: some rules treat every file but the Castilian as Catalan, others ask for the Catalan one itself.
[[nodiscard]] bool EsCastellano();
[[nodiscard]] bool EsCatalan();

}  // namespace analizador
