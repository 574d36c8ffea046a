#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/docx/ArbolXml.h"
#include "adaptadores/docx/ComposicionDocx.h"
#include "adaptadores/docx/PaqueteZip.h"
#include "adaptadores/docx/PartesDocx.h"
#include "adaptadores/docx/RecorridoDocx.h"
#include "adaptadores/docx/TextoXml.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// A document file's bytes read from end to end, with all that is needed to change its bookmarks. Throws
// FalloDocx.
class TLecturaDocx {
  public:
    // Keeps no copy: `bytes` must outlive the object.
    explicit TLecturaDocx(std::string_view bytes);

    [[nodiscard]] TContenidoDocumento Contenido();

    TPaqueteZip Paquete;
    const TPartesDocx Partes;
    const TTextoXml Principal;
    const TArbolXml Arbol;  // of Principal
    const std::vector<TSuceso> Sucesos;
    const TComposicion Composicion;
};

}  // namespace analizador
