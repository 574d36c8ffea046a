#pragma once

// A document held in memory: the reference for how selection, search, paragraphs, bookmarks and variables
// behave.

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adaptadores/memoria/Buscador.h"
#include "adaptadores/memoria/Parrafos.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// The selection of a document in memory; at its start when created.
class TSeleccionMemoria : public TSeleccion {
  public:
    // Both belong to the document and outlive the selection.
    TSeleccionMemoria(const std::string& texto, const TParrafos& parrafos)
        : FTexto(texto), FParrafos(parrafos) {}

    [[nodiscard]] TIntervalo GetIntervalo() const override { return FIntervalo; }
    void PonIntervalo(TIntervalo intervalo) override { FIntervalo = FParrafos.Acota(intervalo); }
    void SubeParrafo(bool extiende) override;
    void BajaParrafo(bool extiende) override;
    [[nodiscard]] TParrafoDocumento GetPrimerParrafo() const override;

  private:
    const std::string& FTexto;
    const TParrafos& FParrafos;
    TIntervalo FIntervalo;
};

// Positions are byte indexes into the text, a cell mark taking two. Neither copied nor moved: its selection
// refers to it.
class TDocumentoMemoria : public TWordDocumentoCustom {
  public:
    // Puts right what a file may say wrongly: a missing last CR is added, bookmarks outside the text are
    // brought into it, and of two bookmarks of one name (ignoring case) the first counts, as it does of two
    // variables.
    explicit TDocumentoMemoria(TContenidoDocumento contenido);
    TDocumentoMemoria(const TDocumentoMemoria&) = delete;
    TDocumentoMemoria& operator=(const TDocumentoMemoria&) = delete;

    // What the document holds now, hidden bookmarks too, for who writes it to a file. Bookmarks are in the
    // order of their names, ignoring case. Valid as long as the document; a new bookmark changes it.
    [[nodiscard]] const TContenidoDocumento& Contenido() const { return FContenido; }

    [[nodiscard]] std::string GetTexto() const override { return FContenido.Texto; }
    [[nodiscard]] TSeleccion& GetSeleccion() override { return FSeleccion; }
    void IrAlInicioDocumento() override { FSeleccion.PonIntervalo({0, 0}); }
    void IrAlFinalDocumento() override { FSeleccion.PonIntervalo({FParrafos.Fin(), FParrafos.Fin()}); }
    bool Busca(std::string_view texto, const TOpcionesBusqueda& opciones) override;
    [[nodiscard]] std::string GetTexto(TIntervalo intervalo) const override;
    [[nodiscard]] std::vector<std::string> GetParrafos(TIntervalo intervalo) const override;
    [[nodiscard]] int GetNumeroParrafo(int posicion) const override { return FParrafos.Indice(posicion) + 1; }
    [[nodiscard]] std::string VariableValor(std::string_view nombre) const override;
    TMarcador NuevoMarcador(std::string_view nombre, bool reemplaza) override;
    [[nodiscard]] std::vector<TMarcador> GetMarcadores() const override;

  private:
    TContenidoDocumento FContenido;
    TParrafos FParrafos;
    TBuscador FBuscador;
    TSeleccionMemoria FSeleccion;
};

// A word processor with one document or none.
class TAplicacionMemoria : public TWordApplicationConDocumentos {
  public:
    // `documento` may be nullptr: no active document.
    explicit TAplicacionMemoria(std::unique_ptr<TWordDocumentoCustom> documento)
        : FDocumento(std::move(documento)) {}

    [[nodiscard]] TWordDocumentoCustom* GetDocumentoActivo() override { return FDocumento.get(); }

  private:
    std::unique_ptr<TWordDocumentoCustom> FDocumento;
};

}  // namespace analizador
