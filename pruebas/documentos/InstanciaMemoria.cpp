#include "adaptadores/memoria/DocumentoMemoria.h"
#include "pruebas/documentos/ContratoDocumento.h"

namespace analizador {
namespace {

std::unique_ptr<TWordDocumentoCustom> EnMemoria(TContenidoDocumento contenido) {
    return std::make_unique<TDocumentoMemoria>(std::move(contenido));
}

INSTANTIATE_TEST_SUITE_P(Memoria, ContratoDocumento,
                         testing::Values(TFabricaDocumento{"EnMemoria", EnMemoria}), NombreFabrica);

}  // namespace
}  // namespace analizador
