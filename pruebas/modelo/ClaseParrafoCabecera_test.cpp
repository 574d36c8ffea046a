#include "modelo/ClaseParrafoCabecera.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/VocabularioDePrueba.h"

namespace analizador {
namespace {

class ParrafoCabecera : public testing::Test {
  protected:
    ParrafoCabecera() {
        tablas_.Pon("TIPOS.DBF", {{"NUMEROTIPO", "NOMBRE", "COD_OFICIA", "PRESTAMO"},
                                  {{"3", "COMPRAVENTA", "0101", "F"}, {"8", "HIPOTECA", "0304", "T"}}});
        tablas_.Pon("AYUNTAM.DBF",
                    {{"LUGAR", "ABREVIATUR", "NOMBRE"}, {{"1", "MAD", "MADRID"}, {"2", "TOL", "TOLEDO"}}});
    }

    // The texts of a stretch of a paragraph.
    static std::string Trozo(std::string_view parrafo, const std::optional<TOrigen>& origen) {
        return origen ? std::string(parrafo.substr(origen->Donde.Primera, origen->Donde.Longitud)) : "(none)";
    }

    std::vector<std::string> Conceptos() const {
        std::vector<std::string> nombres;
        for (const auto& linea : cabecera_.Conceptos) nombres.push_back(linea.Texto);
        return nombres;
    }

    TVocabularioDePrueba vocabulario_{{
        {"NUMERO", {"NUMERO"}},
        {"NUMEROS", {"DOS", "MIL", "TRES", "DOCE"}},
        {"MESES", {"ENERO", "FEBRERO", "MARZO"}},
        {"ANTE MI", {"ANTE MI"}},
        {"SUSTITUTO", {"SUSTITUTO"}},
        {"HOMBRE", {"DON"}},
        {"MUJER", {"DOÑA"_ansi}},
    }};
    TTablasDePrueba tablas_;
    InstalaTablas instalaTablas_{tablas_};
    TConfigDePrueba config_;
    InstalaConfig instalaConfig_{config_};
    TClassParrafoCabecera cabecera_;
};

constexpr std::string_view NUMERO = "NUMERO MIL DOS.\r";
constexpr std::string_view CONCEPTO = "COMPRAVENTA CON HIPOTECA\r";
constexpr std::string_view LUGAR_FECHA = "En Toledo, a doce de marzo de dos mil tres \r";
constexpr std::string_view NOTARIO = "Ante mi, DON LUIS SANZ GIL, Notario de Toledo,\r";

TEST_F(ParrafoCabecera, UnaCabeceraEntera) {
    cabecera_.Desglosa(NUMERO, 1);
    cabecera_.Desglosa(CONCEPTO, 2);
    cabecera_.Desglosa(LUGAR_FECHA, 4);
    cabecera_.Desglosa(NOTARIO, 5);
    EXPECT_EQ(cabecera_.NumeroProtocolo, 1002);
    ASSERT_EQ(Conceptos(), (std::vector<std::string>{"COMPRAVENTA", "HIPOTECA"}));
    EXPECT_EQ(*cabecera_.Conceptos[0].Objeto, (TRConcepto{3, "COMPRAVENTA", "0101", false}));
    EXPECT_EQ(*cabecera_.Conceptos[1].Objeto, (TRConcepto{8, "HIPOTECA", "0304", true}));
    EXPECT_EQ(cabecera_.Lugar, 2);
    EXPECT_EQ(cabecera_.Abreviatura, "TOL");
    EXPECT_EQ(cabecera_.Fecha, "12/03/2003");
    EXPECT_EQ(cabecera_.Notario, "LUIS SANZ GIL");
    EXPECT_EQ(cabecera_.NotarioSustituto, "");

    ASSERT_EQ(cabecera_.Origen.Conceptos.size(), 2U);
    EXPECT_EQ(Trozo(CONCEPTO, cabecera_.Origen.Conceptos[1]), "HIPOTECA");
    EXPECT_EQ(Trozo(LUGAR_FECHA, cabecera_.Origen.Lugar), "Toledo");
    EXPECT_EQ(Trozo(LUGAR_FECHA, cabecera_.Origen.Fecha), "doce de marzo de dos mil tres");
    EXPECT_EQ(Trozo(NOTARIO, cabecera_.Origen.Notario), "LUIS SANZ GIL");
    EXPECT_EQ(cabecera_.Origen.NumeroProtocolo->Parrafo, 1);
    EXPECT_EQ(cabecera_.Origen.Conceptos[0].Parrafo, 2);
    EXPECT_EQ(cabecera_.Origen.Lugar->Parrafo, 4);
    EXPECT_EQ(cabecera_.Origen.Fecha->Parrafo, 4);
    EXPECT_EQ(cabecera_.Origen.Notario->Parrafo, 5);
    EXPECT_FALSE(cabecera_.Origen.NotarioSustituto);
}

TEST_F(ParrafoCabecera, UnParrafoDaUnSoloDato) {
    const std::string todo =
        "NUMERO MIL DOS. Compraventa. En Toledo, a 12 de marzo de 2003, ante mi, DON LUIS SANZ, ";
    cabecera_.Desglosa(todo);
    EXPECT_EQ(cabecera_.NumeroProtocolo, 1002);
    EXPECT_TRUE(cabecera_.Conceptos.Vacia());
    EXPECT_EQ(cabecera_.Fecha, "");
    cabecera_.Desglosa(todo);
    EXPECT_EQ(Conceptos(), std::vector<std::string>{"COMPRAVENTA"});
    EXPECT_EQ(cabecera_.Fecha, "");
    cabecera_.Desglosa(todo);
    EXPECT_EQ(cabecera_.Fecha, "12/03/2003");
    EXPECT_EQ(cabecera_.Abreviatura, "TOL");
    EXPECT_EQ(cabecera_.Notario, "");
    cabecera_.Desglosa(todo);
    EXPECT_EQ(cabecera_.Notario, "LUIS SANZ");
}

TEST_F(ParrafoCabecera, LoHalladoNoSeSobrescribe) {
    for (const auto parrafo : {NUMERO, CONCEPTO, LUGAR_FECHA, NOTARIO}) cabecera_.Desglosa(parrafo, 1);
    cabecera_.Desglosa("NUMERO TRES.\r", 9);
    cabecera_.Desglosa("En Madrid, a 2 de enero de 2010.\r", 9);
    cabecera_.Desglosa("ante mi, DON PABLO ROIG, \r", 9);
    EXPECT_EQ(cabecera_.NumeroProtocolo, 1002);
    EXPECT_EQ(cabecera_.Abreviatura, "TOL");
    EXPECT_EQ(cabecera_.Fecha, "12/03/2003");
    EXPECT_EQ(cabecera_.Notario, "LUIS SANZ GIL");
    EXPECT_EQ(cabecera_.Origen.Notario->Parrafo, 1);
}

TEST_F(ParrafoCabecera, ConFechaYSinLugarElLugarNoSeBuscaMas) {
    cabecera_.Desglosa("En Getafe, a 12 de marzo de 2003.\r");
    EXPECT_EQ(cabecera_.Fecha, "12/03/2003");
    EXPECT_EQ(cabecera_.Abreviatura, "");
    cabecera_.Desglosa(LUGAR_FECHA);
    EXPECT_EQ(cabecera_.Abreviatura, "");
    EXPECT_FALSE(cabecera_.Origen.Lugar);
}

// A date without a town lets the same paragraph be searched for the notary.
TEST_F(ParrafoCabecera, ConFechaYSinLugarSeSigueConElNotario) {
    cabecera_.Desglosa("En Getafe, a 12 de marzo de 2003, ante mi, DON LUIS SANZ, \r");
    EXPECT_EQ(cabecera_.Fecha, "12/03/2003");
    EXPECT_EQ(cabecera_.Notario, "LUIS SANZ");
}

TEST_F(ParrafoCabecera, ElSustitutoNoLoBorraUnParrafoSinNotario) {
    config_.Nombre1 = "LUIS SANZ GIL";
    cabecera_.Desglosa("ante mi, DON PABLO ROIG, como sustituto de mi compañero DON LUIS SANZ GIL, \r"_ansi,
                       3);
    EXPECT_EQ(cabecera_.Notario, "LUIS SANZ GIL");
    EXPECT_EQ(cabecera_.NotarioSustituto, "PABLO ROIG");
    EXPECT_EQ(cabecera_.Origen.NotarioSustituto->Parrafo, 3);

    cabecera_.Limpia();
    cabecera_.Desglosa("ante mi, DON PABLO ROIG, como sustituto, \r", 3);
    EXPECT_EQ(cabecera_.Notario, "");
    cabecera_.Desglosa("Otro texto.\r", 4);
    EXPECT_EQ(cabecera_.NotarioSustituto, "PABLO ROIG");
    cabecera_.Desglosa(NOTARIO, 5);
    EXPECT_EQ(cabecera_.Notario, "LUIS SANZ GIL");
    EXPECT_EQ(cabecera_.NotarioSustituto, "");
}

TEST_F(ParrafoCabecera, MasConceptosSeAnadenAunqueYaLosHaya) {
    cabecera_.Desglosa("Compraventa\r", 2);
    cabecera_.Desglosa("Hipoteca\r", 3);
    EXPECT_EQ(Conceptos(), std::vector<std::string>{"COMPRAVENTA"});
    cabecera_.DesglosaConceptos("Compraventa e hipoteca\r", 3);
    EXPECT_EQ(Conceptos(), (std::vector<std::string>{"COMPRAVENTA", "HIPOTECA"}));
    ASSERT_EQ(cabecera_.Origen.Conceptos.size(), 2U);
    EXPECT_EQ(cabecera_.Origen.Conceptos[1], (TOrigen{3, {14, 8}}));
}

TEST_F(ParrafoCabecera, LimpiaDejaElLugar) {
    cabecera_.Limpia();
    EXPECT_EQ(cabecera_.Lugar, 0);
    config_.Nombre1 = "LUIS SANZ";
    for (const auto parrafo : {NUMERO, CONCEPTO, LUGAR_FECHA}) cabecera_.Desglosa(parrafo, 1);
    cabecera_.Desglosa("ante mi, DON PABLO ROIG, sustituto de LUIS SANZ, \r", 1);
    ASSERT_EQ(cabecera_.NotarioSustituto, "PABLO ROIG");
    cabecera_.Limpia();
    EXPECT_EQ(cabecera_.NumeroProtocolo, 0);
    EXPECT_TRUE(cabecera_.Conceptos.Vacia());
    EXPECT_EQ(cabecera_.Abreviatura, "");
    EXPECT_EQ(cabecera_.Fecha, "");
    EXPECT_EQ(cabecera_.Notario, "");
    EXPECT_EQ(cabecera_.NotarioSustituto, "");
    EXPECT_EQ(cabecera_.Lugar, 2);
    EXPECT_FALSE(cabecera_.Origen.NumeroProtocolo || cabecera_.Origen.Lugar || cabecera_.Origen.Fecha ||
                 cabecera_.Origen.Notario || cabecera_.Origen.NotarioSustituto);
    EXPECT_TRUE(cabecera_.Origen.Conceptos.empty());
}

TEST_F(ParrafoCabecera, SinLaTablaDeTiposEsUnErrorDeTabla) {
    tablas_.Quita("TIPOS.DBF");
    EXPECT_THROW(cabecera_.Desglosa("Compraventa\r"), ErrorTabla);
}

// What the user does with the notary list while it is shown, and what it was given before.
struct TGuion {
    int Elige = -2;  // -2: closes it as it is
    int Creados = 0;
    int Mostrados = 0;
    std::string Titulo;
    int Propuesta = -2;
};

class TSeleccionaNotarioDePrueba : public TFSeleccionaNotario {
  public:
    explicit TSeleccionaNotarioDePrueba(TGuion& guion) : guion_(guion), entradas_(Config().GetNotarios()) {}
    void PonTitulo(std::string_view titulo) override { guion_.Titulo = titulo; }
    [[nodiscard]] const std::vector<std::string>& Entradas() const override { return entradas_; }
    [[nodiscard]] int Seleccionada() const override { return seleccionada_; }
    void Selecciona(int posicion) override {
        seleccionada_ = posicion < static_cast<int>(entradas_.size()) && posicion >= 0 ? posicion : -1;
    }
    void MuestraModal() override {
        ++guion_.Mostrados;
        guion_.Propuesta = seleccionada_;
        if (guion_.Elige != -2) Selecciona(guion_.Elige);
    }

  private:
    TGuion& guion_;
    std::vector<std::string> entradas_;
    int seleccionada_ = -1;
};

class TCreadorDePrueba : public TCreadorSeleccionaNotario {
  public:
    explicit TCreadorDePrueba(TGuion& guion) : guion_(guion) {}
    [[nodiscard]] std::unique_ptr<TFSeleccionaNotario> Crea() override {
        ++guion_.Creados;
        return std::make_unique<TSeleccionaNotarioDePrueba>(guion_);
    }

  private:
    TGuion& guion_;
};

TEST(RevisaNotario, SinListaDeNotariosNoPreguntaNada) {
    TConfigDePrueba config;
    config.Nombre1 = "LUIS SANZ";
    const InstalaConfig instalaConfig(config);
    TGuion guion;
    TCreadorDePrueba creador(guion);
    const InstalaSeleccionaNotario instala(creador);
    TClassParrafoCabecera cabecera;
    cabecera.Notario = "PABLO ROIG";
    cabecera.RevisaNotarioEnConvenio();
    EXPECT_EQ(cabecera.Notario, "PABLO ROIG");
    EXPECT_EQ(guion.Creados, 0);
}

TEST(RevisaNotario, LoQueQuedaElegidoEsElNotario) {
    struct Caso {
        const char* Que;
        std::string Hallado, PorDefecto;
        int Elige, Propuesta;
        std::string Notario;
    };
    const std::vector<Caso> casos = {
        {"found in the list, closed as it is", "ANA GIL", "1", -2, 1, "ANA GIL"},
        {"not in the list: the default one", "PABLO ROIG", "3", -2, 2, "EVA MAS"},
        {"nothing found: the default one", "", "1", -2, 0, "LUIS SANZ"},
        {"capitals count", "Ana Gil", "1", -2, 0, "LUIS SANZ"},
        {"of equal entries the last one", "LUIS SANZ", "2", -2, 3, "LUIS SANZ"},
        {"the user chooses another", "ANA GIL", "1", 2, 1, "EVA MAS"},
        {"no default and not in the list: nothing is selected", "PABLO ROIG", "", -2, -1, "PABLO ROIG"},
        {"a default beyond the list", "PABLO ROIG", "9", -2, -1, "PABLO ROIG"},
        {"a default that is no number", "PABLO ROIG", "dos", -2, -1, "PABLO ROIG"},
        {"the user selects none", "ANA GIL", "1", -1, 1, "ANA GIL"},
    };
    for (const auto& [que, hallado, porDefecto, elige, propuesta, notario] : casos) {
        TConfigDePrueba config;
        config.Notarios = {"LUIS SANZ", "ANA GIL", "EVA MAS", "LUIS SANZ"};
        config.NotarioPorDefecto = porDefecto;
        const InstalaConfig instalaConfig(config);
        TGuion guion;
        guion.Elige = elige;
        TCreadorDePrueba creador(guion);
        const InstalaSeleccionaNotario instala(creador);
        TClassParrafoCabecera cabecera;
        cabecera.Notario = hallado;
        cabecera.NotarioSustituto = "JUAN SUSTITUTO";
        cabecera.Origen.Notario = TOrigen{4, {9, 7}};
        cabecera.RevisaNotarioEnConvenio();
        EXPECT_EQ(guion.Titulo, "Seleccione el notario: ") << que;
        EXPECT_EQ(guion.Mostrados, 1) << que;
        EXPECT_EQ(guion.Propuesta, propuesta) << que;
        EXPECT_EQ(cabecera.Notario, notario) << que;
        EXPECT_EQ(cabecera.NotarioSustituto, "JUAN SUSTITUTO") << que;
        EXPECT_EQ(cabecera.Origen.Notario.has_value(), notario == hallado) << que;
    }
}

TEST(RevisaNotario, SinDialogoInstaladoQuedaElHallado) {
    TConfigDePrueba config;
    config.Notarios = {"LUIS SANZ"};
    config.NotarioPorDefecto = "1";
    const InstalaConfig instalaConfig(config);
    TClassParrafoCabecera cabecera;
    cabecera.Notario = "PABLO ROIG";
    cabecera.RevisaNotarioEnConvenio();
    EXPECT_EQ(cabecera.Notario, "PABLO ROIG");
}

}  // namespace
}  // namespace analizador
