#pragma once

// What every document adapter must do, through the word processor's interfaces alone. An adapter joins with a
// file of its own in this folder that instantiates the suite with its factory:
//
//   INSTANTIATE_TEST_SUITE_P(Memoria, ContratoDocumento, testing::Values(TFabricaDocumento{...}),
//                            NombreFabrica);
//
// The tests compare positions only as the document hands them back: how many a cell mark takes is the
// adapter's own. Where a selection stands is told by the text before it and the text in it.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "plataforma/VrkWord.h"

namespace analizador {

struct TFabricaDocumento {
    std::string Nombre;  // letters and digits
    // A document with this content, as a user's file that holds it would be opened.
    std::function<std::unique_ptr<TWordDocumentoCustom>(TContenidoDocumento)> Crea;
};

inline void PrintTo(const TFabricaDocumento& fabrica, std::ostream* salida) {
    *salida << fabrica.Nombre;
}

inline std::string NombreFabrica(const testing::TestParamInfo<TFabricaDocumento>& info) {
    return info.param.Nombre;
}

// Where the selection stands: the document's text before it and its own.
struct TLugar {
    std::string Antes;
    std::string Seleccionado;
    bool operator==(const TLugar&) const = default;
};

inline void PrintTo(const TLugar& lugar, std::ostream* salida) {
    *salida << testing::PrintToString(lugar.Antes) << " + " << testing::PrintToString(lugar.Seleccionado);
}

// The patterns of options that the analysis uses, and the plainest one.
inline constexpr TOpcionesBusqueda BUSCA_TITULO{true, true, false, false, false, true, true, false};
inline constexpr TOpcionesBusqueda BUSCA_PARRAFO{false, false, false, false, false, true, true, false};
inline constexpr TOpcionesBusqueda BUSCA_PALABRA{false, true, false, false, false, true, true, false};
inline constexpr TOpcionesBusqueda BUSCA_EXACTO{true, false, false, false, false, true, false, false};

class ContratoDocumento : public testing::TestWithParam<TFabricaDocumento> {
  protected:
    [[nodiscard]] static std::unique_ptr<TWordDocumentoCustom> Abre(TContenidoDocumento contenido) {
        return GetParam().Crea(std::move(contenido));
    }
    [[nodiscard]] static std::unique_ptr<TWordDocumentoCustom> Abre(std::string_view texto) {
        return Abre(TContenidoDocumento{std::string(texto), {}, {}});
    }

    // Selects the first occurrence of a text in the document and returns where it is.
    static TIntervalo Selecciona(TWordDocumentoCustom& documento, std::string_view texto) {
        documento.IrAlInicioDocumento();
        EXPECT_TRUE(documento.Busca(texto, BUSCA_EXACTO)) << texto;
        return documento.GetSeleccion().GetIntervalo();
    }

    // Leaves an empty selection where the first occurrence of a text begins.
    static int SituaAnte(TWordDocumentoCustom& documento, std::string_view texto) {
        const int inicio = Selecciona(documento, texto).Inicio;
        documento.GetSeleccion().PonIntervalo({inicio, inicio});
        return inicio;
    }

    // One of the two above.
    static void Situa(TWordDocumentoCustom& documento, std::string_view texto, bool vacia) {
        const auto [inicio, fin] = Selecciona(documento, texto);
        documento.GetSeleccion().PonIntervalo({inicio, vacia ? inicio : fin});
    }

    [[nodiscard]] static TLugar Lugar(TWordDocumentoCustom& documento) {
        const auto intervalo = documento.GetSeleccion().GetIntervalo();
        return {documento.GetTexto(TIntervalo{0, intervalo.Inicio}), documento.GetTexto(intervalo)};
    }
};

}  // namespace analizador
