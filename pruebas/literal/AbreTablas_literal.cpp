#include "pruebas/literal/AbreTablas.h"
#include "pruebas/literal/TablasLiteral.h"

namespace analizador::pruebas {

std::unique_ptr<TProveedorTablas> AbreTablas(const std::filesystem::path& carpeta) {
    return std::make_unique<TTablasLiterales>(carpeta);
}

}  // namespace analizador::pruebas
