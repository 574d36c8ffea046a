#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "adaptadores/docx/Asa_windows.h"

namespace analizador {

// The file that a document is written to before it takes its place: hidden, of the same folder, locked as
// long as the object lives, and gone with it unless it took its place. All functions throw FalloDocx.
//
// The lock is a file beside it, which the system removes when the process ends in whatever way, since the
// file itself may not be open while it takes its place.
class TFicheroProvisional {
  public:
    // `cifrado`: the system keeps it ciphered for this user (FILE_ATTRIBUTE_ENCRYPTED).
    TFicheroProvisional(const std::filesystem::path& carpeta, bool cifrado);
    ~TFicheroProvisional();
    TFicheroProvisional(const TFicheroProvisional&) = delete;
    TFicheroProvisional& operator=(const TFicheroProvisional&) = delete;

    void Escribe(std::string_view bytes);

    // Takes from another file who may do what with it, when it was made, and whether it came from outside.
    void TomaDe(const std::filesystem::path& anterior);

    // Nothing can be written to it any more.
    void LlevaAlDisco();

    // In one step, with those attributes; from then on it is that file.
    void OcupaElSitioDe(const std::filesystem::path& fichero, DWORD atributos);

  private:
    [[nodiscard]] bool Crea(DWORD atributos);

    std::filesystem::path Ruta;
    TAsa Cerrojo;
    TAsa Abierto;
    bool Colocado = false;
};

// Does it until it goes well, for a second at most as long as the reason may be that somebody has a file
// open: a virus scanner and an indexer have it so for a moment. Returns the last error, or ERROR_SUCCESS. (To
// replace such a file, the system also says that there is no permission.)
[[nodiscard]] DWORD Insiste(const std::function<bool()>& accion);

// The failure to save for an error that the system gives.
[[noreturn]] void FallaAlGuardar(DWORD error);

}  // namespace analizador
