// Texts that no deed holds but a document may: every recogniser of a party's data must come back from them,
// soon and with nothing told as read outside the text.

#include <gtest/gtest.h>

#include <functional>

#include "analizador/ConstAnalizador.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "pruebas/rutinas/ProvinciasDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

constexpr std::size_t MEGA = 1U << 20U;
constexpr std::size_t MUCHO = 1U << 16U;

TSeccionesDePrueba Secciones() {
    TSeccionesDePrueba secciones = {
        {"VECINDAD", {"VECINO DE"}},
        {"DOMICILIO", {"CON DOMICILIO EN"}},
        {"NUMERO", {"NUMERO"}},
        {"LUGAR NACIMIENTO", {"NATURAL DE"}},
        {"FECHA NACIMIENTO", {"NACIDO EL"}},
        {"MESES", {"ENERO"}},
        {"NUMEROS", {"UNO"}},
        {"PADRES", {"HIJO DE"}},
        {"HOMBRE", {"DON"}},
        {"MUJER", {"SRA."}},
        {"EXTRANJEROS", {"NO RESIDENTE"}},
    };
    for (const std::string_view seccion : CONST_SECCION_TIPO_VIA) secciones.push_back({seccion, {seccion}});
    return secciones;
}

std::string Repite(std::string_view parte, std::size_t longitud) {
    std::string texto;
    while (texto.size() < longitud) texto += parte;
    return texto;
}

std::string TodosLosBytes() {
    std::string texto;
    for (int byte = 0; byte < 256; ++byte) texto += static_cast<char>(byte);
    return texto;
}

std::vector<std::string> TextosDificiles() {
    return {
        "",
        " ",
        std::string(1000, ' '),
        std::string(1000, '\r'),
        " \t\r\n",
        "((((",
        "))))",
        ")(",
        ",(,(,)",
        "\"\"\"",
        "1234567890",
        Repite("0123456789 ", 1000),
        std::string(1000, '9'),
        Repite(std::string_view("\x00\x01\x02\x07\x0B\x0C\x0E\x1E\x1F", 9), 1000),
        TodosLosBytes(),
        "-",
        "----",
        ",",
        ".",
        "Y",
        " Y ",
        ", NUMERO",
        std::string(MEGA, 'A'),
        std::string(MUCHO, '\xC4'),
        std::string(MUCHO, ' '),
        std::string(MUCHO, '('),
        std::string(MUCHO, '7'),
        Repite("-, ", MUCHO),
        // What the recognisers look for, again and again, false or true.
        Repite("CORDON ", MUCHO),
        Repite("DON ANA ", MUCHO),
        Repite("VECINO DE ", MUCHO),
        Repite("LEONX XLEON ", MUCHO),
        Repite("HIJO DE ", MUCHO),
        Repite("UNO ", MUCHO),
        Repite("L.L", MUCHO),
    };
}

using TTramos = std::vector<Tramo>;

struct TReconocedor {
    std::string_view Nombre;
    std::vector<std::string_view> Introducciones;
    std::function<TTramos(std::string_view)> Lee;
};

const std::vector<TReconocedor> RECONOCEDORES = {
    {"BuscaVecindad",
     {"VECINO DE ", "VECINO DE 28001-"},
     [](std::string_view texto) {
         const auto h = BuscaVecindad(texto);
         return TTramos{h.Municipio.Donde, h.CodPostal.Donde};
     }},
    {"BuscaDomicilio",
     {"CON DOMICILIO EN ", "CALLE ", "CON DOMICILIO EN LA CALLE DE LA ", "CALLE MAYOR NUMERO "},
     [](std::string_view texto) {
         const auto h = BuscaDomicilio(texto);
         return TTramos{h.TipoVia.Donde, h.Via.Donde, h.Numero.Donde};
     }},
    {"BuscaDomicilioExtranjero",
     {"CON DOMICILIO EN "},
     [](std::string_view texto) { return TTramos{BuscaDomicilioExtranjero(texto).Donde}; }},
    {"BuscaLugaryFechaNacimiento",
     {"NATURAL DE ", "NACIDO EL ", "NACIDO EL 3 DE ENERO DE ", "NACIDO EL 3 DE ENERO DE 1970 EN ",
      "NATURAL DE X (", "NATURAL DE X, ", "NATURAL DE X, NACIDO EL "},
     [](std::string_view texto) {
         const auto h = BuscaLugaryFechaNacimiento(texto);
         return TTramos{h.Lugar.Donde, h.Provincia.Donde, h.Pais.Donde, h.Fecha.Donde};
     }},
    {"BuscaPadres",
     {"HIJO DE ", "HIJO DE DON ", "HIJO DE DON PEDRO Y SRA. "},
     [](std::string_view texto) {
         const auto h = BuscaPadres(texto);
         return TTramos{h.Padre.Donde, h.Madre.Donde};
     }},
    {"CompruebaExtranjeros",
     {"NO RESIDENTE "},
     [](std::string_view texto) {
         const auto h = CompruebaExtranjeros(texto);
         TTramos tramos{h.Pais.Donde};
         for (const auto& pais : h.Paises) tramos.push_back(pais.Donde);
         return tramos;
     }},
};

class DatosPersonalesDificiles : public testing::TestWithParam<std::size_t> {
  protected:
    DatosPersonalesDificiles() {
        tablas_.Pon("PROVIN.DBF", Provincias({{"24", "LEON", "1"},
                                              {"110", "FRANCIA", "2", {"LEON", "A", "CORDON"}, {"#A"}}}));
    }

    TVocabularioDePrueba vocabulario_{Secciones(), Secciones()};
    TTablasDePrueba tablas_;
    InstalaTablas guarda_{tablas_};
};

void Comprueba(const TReconocedor& reconocedor, const std::string& texto) {
    for (const Tramo& tramo : reconocedor.Lee(texto)) {
        EXPECT_NO_THROW((void)EnTramo(texto, tramo)) << texto.substr(0, 60);
        EXPECT_TRUE(tramo.Longitud != 0 || tramo.Primera == 0) << texto.substr(0, 60);
    }
}

}  // namespace

TEST_P(DatosPersonalesDificiles, NadaSeLeeFueraDelTexto) {
    const TReconocedor& reconocedor = RECONOCEDORES[GetParam()];
    for (const TIdioma idioma : {TIdioma::Castellano, TIdioma::Catalan}) {
        vocabulario_.Elige(idioma);
        for (const std::string& texto : TextosDificiles()) {
            Comprueba(reconocedor, texto);
            for (const std::string_view introduccion : reconocedor.Introducciones) {
                std::string introducido(introduccion);
                introducido += texto;
                Comprueba(reconocedor, introducido);
                if (texto.size() < MUCHO) Comprueba(reconocedor, texto + introducido + texto);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Todos, DatosPersonalesDificiles,
                         testing::Range<std::size_t>(0, RECONOCEDORES.size()),
                         [](const auto& caso) { return std::string(RECONOCEDORES[caso.param].Nombre); });

TEST(OtorgantesConocidosDificiles, NombresEnTextosDificiles) {
    ListaTextos<TROtorgante> lista;
    auto otorgante = std::make_unique<TROtorgante>();
    otorgante->Apellidos = "AAAB";
    otorgante->NumDocumento = "77778";
    TROtorgante* const esperado = lista.Anade("AAAB", std::move(otorgante));
    for (const std::string& texto : TextosDificiles()) {
        EXPECT_EQ(Otorgante(texto, lista), nullptr);
        EXPECT_FALSE(EsUnOtorgante(texto, lista));
        EXPECT_FALSE(EsUnDocumentoDeOtorgante(texto, lista));
        EXPECT_EQ(Otorgante(texto + "AAAB", lista), esperado);
        EXPECT_TRUE(EsUnDocumentoDeOtorgante(texto + "77778", lista));
    }
}

}  // namespace analizador
