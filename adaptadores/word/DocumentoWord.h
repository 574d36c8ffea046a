#pragma once

// A document open in Word.

#include <string>
#include <string_view>
#include <vector>

#include "adaptadores/word/ObjetoWord.h"
#include "adaptadores/word/TextoWord.h"
#include "plataforma/VrkWord.h"

namespace analizador {

// Positions are Word's. The selection is this object's own: it begins as the user's and Word's is not moved
// until it is shown. Every operation costs a number of calls that does not grow with the document's length.
class TDocumentoWord : public TWordDocumentoCustom {
  public:
    // Reads the user's selection and the length of the document, which must not change from here on.
    explicit TDocumentoWord(TObjetoWord documento);
    TDocumentoWord(const TDocumentoWord&) = delete;
    TDocumentoWord& operator=(const TDocumentoWord&) = delete;

    // Makes the selection the user's.
    void MuestraSeleccion() const;

    [[nodiscard]] std::string GetTexto() const override;
    [[nodiscard]] TSeleccion& GetSeleccion() override { return FSeleccion; }
    void IrAlInicioDocumento() override { FSeleccion.PonIntervalo({0, 0}); }
    void IrAlFinalDocumento() override { FSeleccion.PonIntervalo({FLongitud, FLongitud}); }
    bool Busca(std::string_view texto, const TOpcionesBusqueda& opciones) override;
    [[nodiscard]] std::string GetTexto(TIntervalo intervalo) const override;
    [[nodiscard]] std::vector<std::string> GetParrafos(TIntervalo intervalo) const override;
    [[nodiscard]] int GetNumeroParrafo(int posicion) const override;
    [[nodiscard]] std::string VariableValor(std::string_view nombre) const override;
    TMarcador NuevoMarcador(std::string_view nombre, bool reemplaza) override;
    [[nodiscard]] std::vector<TMarcador> GetMarcadores() const override;

  private:
    class TSeleccionWord : public TSeleccion {
      public:
        explicit TSeleccionWord(const TDocumentoWord& documento) : FDocumento(documento) {}
        [[nodiscard]] TIntervalo GetIntervalo() const override { return FIntervalo; }
        void PonIntervalo(TIntervalo intervalo) override { FIntervalo = FDocumento.Acota(intervalo); }
        void SubeParrafo(bool extiende) override;
        void BajaParrafo(bool extiende) override;
        [[nodiscard]] TParrafoDocumento GetPrimerParrafo() const override;

      private:
        const TDocumentoWord& FDocumento;
        TIntervalo FIntervalo;
    };

    // The interval as a selection can be: within the document, bounds out of order an empty interval at its
    // end, an empty one before the last CR.
    [[nodiscard]] TIntervalo Acota(TIntervalo intervalo) const;
    // The paragraphs that an interval touches, whole.
    [[nodiscard]] TIntervalo Ensancha(TIntervalo intervalo) const;
    [[nodiscard]] TIntervalo ParrafoDe(int posicion) const { return Ensancha({posicion, posicion}); }
    [[nodiscard]] TObjetoWord Rango(TIntervalo intervalo) const;
    // Throws when the document is closed or its length has changed.
    void CompruebaQueSigueIgual() const;

    TObjetoWord FDocumento;
    int FLongitud;
    TTextoWord FTexto;
    TObjetoWord FRango;  // where a search begins and what it found
    TObjetoWord FBusqueda;
    TSeleccionWord FSeleccion;
};

}  // namespace analizador
