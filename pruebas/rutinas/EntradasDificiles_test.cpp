#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "pruebas/comun/Literales.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/Tramos.h"
#include "pruebas/comun/VocabularioDePrueba.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

namespace {

// Words of one letter and of signs, so that every kind of text is full of them.
const TSeccionesDePrueba SECCIONES = {
    {"HOMBRE", {"DON", "D.", "A"}},
    {"MUJER", {"DOÑA"_a}},
    {"NOTARIO DE", {"NOTARIO DE"}},
    {"REPRESENTACION", {"EN NOMBRE DE", "A"}},
    {"NIF", {"D.N.I.", "1"}},
    {"NIE", {"N.I.E."}},
    {"PASAPORTE", {"PASAPORTE", "A"}},
    {"NUMEROS", {"DOS", "MIL", "A"}},
    {"NUMERO", {"NUMERO", "A"}},
    {"MESES", {"ENERO", "A"}},
    {"ANTE MI", {"ANTE MI", "A"}},
    {"SUSTITUTO", {"SUSTITUTO", "A"}},
    {"EURO", {"EURO", "\x80", "A"}},
    {"MES", {"MES", "A"}},
    {"PORCENTAJE", {"%", "A"}},
    {"EURIBOR", {"EURIBOR"}},
    {"CASADO", {"CASAD"}},
    {"GANANCIALES", {"GANANCIALES"}},
    {"TRANSMISION", {"VENDE", "A"}},
    {"PARTE DEUDORA", {"DEUDOR", "A"}},
};

// A recogniser and the stretches that it tells.
struct TReconocedor {
    std::string_view Nombre;
    std::function<std::vector<Tramo>(std::string_view)> Lee;
};

const std::vector<TReconocedor> RECONOCEDORES = {
    {"NumeroInicial", [](auto texto) { return std::vector{NumeroInicial(texto).Donde}; }},
    {"NumeroFinal", [](auto texto) { return std::vector{NumeroFinal(texto).Donde}; }},
    {"BuscaTratamiento", [](auto texto) { return std::vector{BuscaTratamiento(texto).Donde}; }},
    {"BuscaPersonas",
     [](auto texto) {
         std::vector<Tramo> tramos;
         for (const auto& persona : BuscaPersonas(texto)) tramos.push_back(persona.Donde);
         return tramos;
     }},
    {"BuscaSociedades",
     [](auto texto) {
         std::vector<Tramo> tramos;
         for (const auto& sociedad : BuscaSociedades(texto)) {
             tramos.push_back(sociedad.Nombre);
             tramos.push_back(sociedad.Documento);
         }
         return tramos;
     }},
    {"BuscaDocumentos",
     [](auto texto) {
         std::vector<Tramo> tramos;
         for (const auto& documento : BuscaDocumentos(texto)) tramos.push_back(documento.Donde);
         return tramos;
     }},
    {"BuscaCif", [](auto texto) { return std::vector{BuscaCif(texto).Donde}; }},
    {"EsCliente",
     [](auto texto) {
         (void)EsCliente(texto);
         (void)EsUnParrafoDeRepresentacion(texto);
         (void)PosicionPunto(texto);
         return std::vector<Tramo>{};
     }},
    {"BuscaEstadoCivil",
     [](auto texto) {
         const TEstadoCivil estado = BuscaEstadoCivil(texto);
         return std::vector{estado.Estado.Donde, estado.Regimen.Donde};
     }},
    {"BuscaIntervenciones",
     [](auto texto) {
         return std::vector{BuscaIntervencionVenden(texto, "JUAN").Donde,
                            BuscaIntervencionParteDeudora(texto, "JUAN").Donde,
                            BuscaIntervencionVenden(texto, texto).Donde};
     }},
    {"BuscaPlazo",
     [](auto texto) {
         std::vector<std::string> lista;
         return BuscaPlazo(texto, lista);
     }},
    {"BuscaTAE",
     [](auto texto) {
         std::vector<std::string> lista;
         return BuscaTAE(texto, lista);
     }},
    {"BuscaTipoInteres", [](auto texto) { return std::vector{BuscaTipoInteres(texto).Donde}; }},
    {"BuscaConceptos",
     [](auto texto) {
         ListaTextos<TRConcepto> lista;
         return BuscaConceptos(texto, lista);
     }},
    {"BuscaCuantias",
     [](auto texto) {
         std::vector<std::string> lista;
         return BuscaCuantias(texto, lista);
     }},
    {"BuscaNumeroProtocolo", [](auto texto) { return std::vector{BuscaNumeroProtocolo(texto).Donde}; }},
    {"BuscaLugarFecha",
     [](auto texto) {
         const TLugarFecha hallado = BuscaLugarFecha(texto);
         std::vector<Tramo> tramos;
         if (hallado.Lugar) tramos.push_back(hallado.Lugar->Donde);
         if (hallado.Fecha) tramos.push_back(hallado.Fecha->Donde);
         return tramos;
     }},
    {"BuscaNotario",
     [](auto texto) {
         const TNotario hallado = BuscaNotario(texto);
         return std::vector{hallado.Notario.Donde, hallado.Sustituto.Donde};
     }},
};

std::string Repite(std::string_view trozo, std::size_t longitud) {
    std::string texto;
    texto.reserve(longitud + trozo.size());
    while (texto.size() < longitud) texto += trozo;
    return texto;
}

std::string TodosLosBytes() {
    std::string texto;
    for (int c = 0; c < 256; ++c) texto += static_cast<char>(c);
    return texto;
}

class EntradasDificiles : public testing::Test {
  protected:
    void SetUp() override {
        tablas_.Pon("PILA.DBF", {{"NOMBRE"}, {{"JUAN"}, {"A"}}});
        tablas_.Pon("TIPOS.DBF", {{"NOMBRE", "NUMEROTIPO", "COD_OFICIA", "PRESTAMO"},
                                  {{"COMPRAVENTA", "1", "0101", "F"}}});
        tablas_.Pon("AYUNTAM.DBF", {{"NOMBRE", "LUGAR", "ABREVIATUR"}, {{"A", "1", "A"}}});
    }

    // Every stretch must lie within the text.
    static void Comprueba(std::string_view texto) {
        for (const auto& reconocedor : RECONOCEDORES) {
            SCOPED_TRACE(reconocedor.Nombre);
            for (const Tramo tramo : reconocedor.Lee(texto)) ASSERT_NO_THROW((void)EnTramo(texto, tramo));
        }
    }

    TVocabularioDePrueba vocabulario_{SECCIONES, SECCIONES};
    TTablasDePrueba tablas_;
    InstalaTablas instala_{tablas_};
};

TEST_F(EntradasDificiles, Cortas) {
    for (const TIdioma idioma : {TIdioma::Castellano, TIdioma::Catalan}) {
        vocabulario_.Elige(idioma);
        const std::string bytes = TodosLosBytes();
        for (const char c : bytes) {
            SCOPED_TRACE(static_cast<int>(c));
            Comprueba(std::string(1, c));
            Comprueba(std::string("A ") + c);
            Comprueba(std::string("EN NOMBRE DE \"") + c);
            Comprueba(std::string(3, c) + "DON " + std::string(3, c) + "12345678Z" + std::string(3, c));
        }
        Comprueba(bytes);
        Comprueba(bytes + bytes + bytes);
        Comprueba(Repite("\t\r\n\v\f\x01\x07\x1F\x7F", 1000));
        Comprueba("\"");
        Comprueba("\"\"\"");
    }
}

constexpr std::size_t MEGA = std::size_t{1} << 20U;
constexpr std::size_t LARGO = MEGA / 4;  // for texts in which there is much to find

// None of these takes a time that one notices; a reader that looks at the rest of the text at each step takes
// minutes.
TEST_F(EntradasDificiles, TextosLargos) {
    const std::vector<std::string> textos = {
        std::string(MEGA, ' '),
        std::string(MEGA, 'X'),
        std::string(MEGA, '1'),
        std::string(MEGA, '"'),
        std::string(MEGA, '.'),
        std::string(MEGA, '\r'),
        std::string(MEGA, '\0'),
        Repite("1 ", LARGO),
        Repite("PEREZ ", MEGA),
        "DON " + Repite("PEREZ ", MEGA),
        "DON J" + std::string(MEGA, ' ') + "P",
        Repite("DON JUAN PEREZ GIL Y ", LARGO),
        Repite("DON JUAN PEREZ, D.N.I. 12345678Z, PASAPORTE AB123456 ", LARGO),
        Repite("CORDON ", LARGO),
        Repite("EN NOMBRE DE \"UNO\", CIF B12345674 ", LARGO),
        Repite("EN NOMBRE DE \"UNO\", CIF X12 ", LARGO),
        Repite("EN NOMBRE DE \"UNO\" ", LARGO),
        Repite("EN NOMBRE DE DON JUAN ", LARGO) + "\"",
        Repite("ABC1234 ", LARGO),
        Repite("12 MESES AL 3,5 % SON 1.000 EUROS ", LARGO),
        Repite("ANTE MI, NUMERO DOS MIL ", LARGO),
        Repite(TodosLosBytes(), LARGO),
    };
    for (const std::string& texto : textos) {
        SCOPED_TRACE(texto.substr(0, 30));
        Comprueba(texto);
    }
}

TEST_F(EntradasDificiles, UnParrafoLargoSeLeeEntero) {
    constexpr std::size_t VECES = 5000;
    const std::string_view trozo = "DON JUAN PEREZ, D.N.I. 12345678Z, ";
    const std::string texto = Repite(trozo, VECES * trozo.size());
    EXPECT_EQ(BuscaPersonas(texto).size(), VECES);
    EXPECT_EQ(BuscaDocumentos(texto).size(), VECES);
    const std::string_view sociedad = "EN NOMBRE DE \"UNO\" ";
    const auto sociedades = BuscaSociedades(Repite(sociedad, VECES * sociedad.size()) + "B12345674");
    ASSERT_EQ(sociedades.size(), VECES);
    EXPECT_EQ(sociedades.front().Sociedad.NumDocumento, "B12345674");
    EXPECT_EQ(sociedades.back().Sociedad.NumDocumento, "B12345674");
}

}  // namespace

}  // namespace analizador
