#include "adaptadores/dbase/ProveedorDbase.h"
#include "pruebas/literal/AbreTablas.h"

namespace analizador::pruebas {

std::unique_ptr<TProveedorTablas> AbreTablas(const std::filesystem::path& carpeta) {
    return std::make_unique<TProveedorDbase>(carpeta);
}

}  // namespace analizador::pruebas
