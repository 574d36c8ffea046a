#pragma once

// Where the deeds of a host come from, as far as the system has it. What it has not throws ErrorInterfaz
// (ANALIZADOR_NO_ANALIZADA).

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

#include "programas/analiza/AnalisisEscritura.h"

namespace analizador {

// Analyses a document file.
[[nodiscard]] std::unique_ptr<TAnalisisEscritura> AnalizaDocx(const std::filesystem::path& fichero,
                                                              bool revisa);

// Saves a file's analysis, made by AnalizaDocx without an error. Throws ErrorDocumento.
void GuardaDocx(TAnalisisEscritura& analisis, const std::filesystem::path& destino, bool forzar);

// Analyses the document that is active in Word; in a review the windows show over Word's. `aplicacion`: the
// IDispatch of its Application object; null: the one that is running. The result is of this thread, and
// Documento() is not for it.
[[nodiscard]] std::unique_ptr<TAnalisisEscritura> AnalizaWord(void* aplicacion, bool revisa);

// The window of the host that has the keyboard, as the number of its HWND; 0 none.
[[nodiscard]] std::intptr_t VentanaDelAnfitrion();

// The folder of the library's file where its CONFIG and TABLAS may be; none where they are only looked for
// beside the host program.
[[nodiscard]] std::optional<std::filesystem::path> CarpetaDeLaBiblioteca();

}  // namespace analizador
