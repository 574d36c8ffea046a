#pragma once

#include <zip.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace analizador {

// The zip archive that a document file is. Parts are inflated only when read, and never beyond the limits,
// whatever sizes the archive states. All functions throw FalloDocx on a damaged archive.
class TPaqueteZip {
  public:
    // Keeps no copy: `bytes` must outlive the object.
    explicit TPaqueteZip(std::string_view bytes);

    // Names are compared first exactly, then without regard to case.
    [[nodiscard]] bool Tiene(const std::string& parte) const { return Indice(parte).has_value(); }

    // True when some part's name begins with `carpeta`.
    [[nodiscard]] bool TieneCarpeta(std::string_view carpeta) const;

    // The content of a part. Throws when there is none of that name.
    [[nodiscard]] std::string Lee(const std::string& parte);

    // The bytes of the archive with another content for one of its parts: the others keep their compressed
    // bytes, and all their order.
    [[nodiscard]] std::string ConParte(const std::string& parte, std::string_view contenido) const;

  private:
    struct TDescarta {
        void operator()(zip_t* archivo) const { zip_discard(archivo); }
    };

    [[nodiscard]] std::optional<zip_uint64_t> Indice(const std::string& parte) const;

    std::string_view Bytes;
    std::unique_ptr<zip_t, TDescarta> Archivo;
    std::uint64_t Inflado = 0;  // bytes inflated so far
};

}  // namespace analizador
