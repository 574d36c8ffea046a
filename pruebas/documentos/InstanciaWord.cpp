#include "adaptadores/word/DocumentoWord.h"
#include "pruebas/documentos/ContratoDocumento.h"
#include "pruebas/word/WordDePrueba.h"

namespace analizador {
namespace {

struct TConexionPropia {
    TConexionWord Conexion{};
};

// The active document of the server, with what it needs to live alone.
class TDocumentoConectado : private TConexionPropia, public TDocumentoWord {
  public:
    explicit TDocumentoConectado(IDispatch* aplicacion)
        : TDocumentoWord(TObjetoWord(Conexion, Comparte(aplicacion), "Application")
                             .Objeto("ActiveDocument", "Document")) {}
};

std::unique_ptr<TWordDocumentoCustom> EnWord(TContenidoDocumento contenido) {
    const auto& word = pruebas::TWordDePrueba::EnMarcha();
    word.Abre(contenido);
    return std::make_unique<TDocumentoConectado>(word.Aplicacion());
}

INSTANTIATE_TEST_SUITE_P(Word, ContratoDocumento, testing::Values(TFabricaDocumento{"EnWord", EnWord}),
                         NombreFabrica);

}  // namespace
}  // namespace analizador
