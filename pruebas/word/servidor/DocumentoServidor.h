#pragma once

// A document of the test server: the one in memory, seen with Word's positions and through Word's objects.

#include <memory>
#include <string>
#include <vector>

#include "adaptadores/memoria/DocumentoMemoria.h"
#include "pruebas/word/servidor/ObjetoServidor.h"

namespace analizador::pruebas {

// What a stretch of text is to Word besides being text.
enum class TTinta { Oculta, CodigoDeCampo, Borrada };

struct TMancha {
    TTinta Tinta;
    TIntervalo Intervalo;  // indexes into the text
};

// In Word a cell mark takes one position, though its text is CR and 7.
class TDocumentoServidor {
  public:
    explicit TDocumentoServidor(TContenidoDocumento contenido);

    // Takes another content, as when the user types.
    void Cambia(TContenidoDocumento contenido);

    [[nodiscard]] int Longitud() const { return static_cast<int>(FIndices.size()) - 1; }
    [[nodiscard]] int Indice(int posicion) const { return FIndices[static_cast<std::size_t>(posicion)]; }
    [[nodiscard]] int Posicion(int indice) const;
    [[nodiscard]] TIntervalo Posiciones(TIntervalo indices) const;
    // Positions; throws Word's error when they are no range of the document.
    void CompruebaRango(TIntervalo rango) const;
    void CompruebaAbierto() const;
    [[nodiscard]] std::u16string Texto(TIntervalo rango, bool ocultos, bool codigos) const;

    [[nodiscard]] TDocumentoMemoria& Memoria() { return *FMemoria; }
    [[nodiscard]] const TContenidoDocumento& Contenido() const { return FMemoria->Contenido(); }
    [[nodiscard]] const TParrafos& Parrafos() const { return FParrafos; }

    std::vector<TMancha> Manchas;
    TIntervalo Seleccion;  // the user's, positions
    int Historia = 1;      // where it is: 1 the main story
    bool Abierto = true;

  private:
    std::unique_ptr<TDocumentoMemoria> FMemoria;
    TParrafos FParrafos;
    std::vector<int> FIndices;  // of each position, and of the end
};

[[nodiscard]] TVariante EntregaVentana(const std::shared_ptr<TLibros>& libros,
                                       const std::shared_ptr<TDocumentoServidor>& documento);
[[nodiscard]] TVariante EntregaDocumento(const std::shared_ptr<TLibros>& libros,
                                         const std::shared_ptr<TDocumentoServidor>& documento);

}  // namespace analizador::pruebas
