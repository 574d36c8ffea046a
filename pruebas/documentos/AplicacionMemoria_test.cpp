#include <gtest/gtest.h>

#include "adaptadores/memoria/DocumentoMemoria.h"

namespace analizador {
namespace {

TEST(AplicacionMemoria, DaElDocumentoQueTiene) {
    auto documento = std::make_unique<TDocumentoMemoria>(TContenidoDocumento{"Uno\r", {}, {}});
    const auto* const esperado = documento.get();
    TAplicacionMemoria aplicacion(std::move(documento));
    EXPECT_EQ(aplicacion.GetDocumentoActivo(), esperado);
    EXPECT_EQ(aplicacion.GetDocumentoActivo()->GetTexto(), "Uno\r");
}

TEST(AplicacionMemoria, SinDocumentoNoDaNinguno) {
    TAplicacionMemoria aplicacion(nullptr);
    EXPECT_EQ(aplicacion.GetDocumentoActivo(), nullptr);
}

}  // namespace
}  // namespace analizador
