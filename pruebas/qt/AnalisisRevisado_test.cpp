// A whole run with the real parts: a document, the shipped words and tables, and the windows.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adaptadores/qt/InstalaVentanasQt.h"
#include "plataforma/CarpetaPrivada.h"
#include "plataforma/Rficheros.h"
#include "programas/analiza/AnalisisFichero.h"
#include "programas/analiza/Entorno.h"
#include "programas/analiza/SalidaJson.h"
#include "programas/analiza/SalidaTexto.h"
#include "pruebas/qt/Atiende.h"
#include "pruebas/qt/Controles.h"

namespace analizador {
namespace {

namespace fs = std::filesystem;

// An office with two notaries and tables of its own.
class AnalisisRevisado : public testing::Test {
  protected:
    AnalisisRevisado() {
        fs::create_directories(FCarpeta);
        fs::copy(CARPETA_BIN "/CONFIG", FCarpeta / "CONFIG", fs::copy_options::recursive);
        fs::copy(CARPETA_BIN "/TABLAS", FCarpeta / "TABLAS", fs::copy_options::recursive);
        std::ofstream(FCarpeta / "CONFIG" / "OFICINA.INI")
            << "\xEF\xBB\xBF[NOTARIOS]\nNumPalabras=2\n1=PEDRO SANZ\n2=MERCEDES ARANGÜENA "
               "LLORENTE\nPorDefecto=1\n";
    }
    ~AnalisisRevisado() override { fs::remove_all(FCarpeta); }

    [[nodiscard]] TEntorno Entorno() const { return {FCarpeta / "CONFIG", FCarpeta / "TABLAS"}; }

    // The example analysed; the clerk presses these keys in the notary's window, where the deed's notary is
    // selected, and then does `que` in the list.
    [[nodiscard]] static TAnalisisFichero Revisa(const std::vector<Qt::Key>& teclas,
                                                 const std::function<void(QDialog&)>& que) {
        std::unique_ptr<TAtiende> enLaLista;
        const TAtiende alNotario([&](QDialog& notario) {
            enLaLista = std::make_unique<TAtiende>(que);
            EXPECT_EQ(notario.windowTitle(), "Seleccione el notario: ");
            for (const Qt::Key tecla : teclas)
                QTest::keyClick(notario.findChild<QAbstractItemView*>(), tecla);
        });
        return {EJEMPLO, {.Salida = {}, .Revisa = true}};
    }

    const fs::path FCarpeta = CarpetaPrivada() / "oficina";
};

TEST_F(AnalisisRevisado, LoQueSeEligeYCorrigeEsLoQueSeEscribe) {
    const TEntorno entorno = Entorno();
    const TInstalaVentanasQt ventanas;
    const auto analisis = Revisa({Qt::Key_Up, Qt::Key_Return}, [](QDialog& lista) {
        EXPECT_EQ(Filas(lista, "LBPosiblesOtorgantes"),
                  QStringList{"MANRIQUE CASTRILLO, TEODORO - 12213874T"});
        Lista(lista, "LBPosiblesConceptos").selectAll();
        Pulsa(lista, "BMas");
        auto& validos = Lista(lista, "LBOtorgantes");
        const TAtiende enLosDatos([](QDialog& datos) {
            auto& nombre = Control<QLineEdit>(datos, "ENombre");
            nombre.selectAll();
            QTest::keyClicks(&nombre, "maria");
            Pulsa(datos, "BBAceptar");
        });
        validos.setCurrentIndex(validos.model()->index(0, 0));
        Pulsa(lista, "BDetallesOtorgante");
        validos.setCurrentIndex(validos.model()->index(1, 0));
        Pulsa(lista, "BMenosOtor");
        Pulsa(lista, "BContinuar");
    });
    ASSERT_EQ(analisis.Error(), "");
    const TClassAnalizadorAbierto& sesion = analisis.Sesion();
    EXPECT_TRUE(sesion.Aceptado);
    EXPECT_EQ(sesion.Cabecera.Notario, "PEDRO SANZ");
    ASSERT_EQ(sesion.ConceptosValidos.Cuenta(), 1U);
    EXPECT_EQ(*sesion.ConceptosValidos[0].Objeto,
              (TRConcepto{1, "COMPRAVENTA / COMPRAVENDA / VENTA / VENDA", "", false}));
    ASSERT_EQ(sesion.Otorgantes.Lista.Cuenta(), 2U);
    EXPECT_EQ(sesion.Otorgantes.Lista[0].Texto, "MARIA VILLAFRUELA PASTOR");
    EXPECT_EQ(sesion.Otorgantes.Lista[1].Texto, "IRENE QUINTANILLA BURON");

    const std::string texto = EleccionTexto(sesion);
    EXPECT_NE(texto.find("NOMBRE       : MARIA\n"), std::string::npos);
    EXPECT_EQ(texto.find("TEODORO\nAPELLIDOS"), std::string::npos);
    const std::string json = LineaJson(EJEMPLO, analisis, {.Origen = false, .Revisado = true});
    EXPECT_NE(json.find(R"("Aceptado":true)"), std::string::npos);
    EXPECT_NE(json.find(R"("ConceptosValidos":[{"NumeroTipo":1,)"), std::string::npos);
}

TEST_F(AnalisisRevisado, LoCanceladoQuedaComoSinRevisar) {
    const TEntorno entorno = Entorno();
    const std::string sinVentanas = LineaJson(EJEMPLO, TAnalisisFichero(EJEMPLO, {}));
    const TInstalaVentanasQt ventanas;
    const auto cancelado = Revisa({Qt::Key_Return}, [](QDialog& lista) {
        Lista(lista, "LBPosiblesConceptos").selectAll();
        Pulsa(lista, "BMas");
        Lista(lista, "LBOtorgantes").selectAll();
        Pulsa(lista, "BMenosOtor");
        QTest::keyClick(&lista, Qt::Key_Escape);
    });
    EXPECT_FALSE(cancelado.Sesion().Aceptado);
    EXPECT_TRUE(cancelado.Sesion().ConceptosValidos.Vacia());
    EXPECT_EQ(LineaJson(EJEMPLO, cancelado), sinVentanas);
}

TEST_F(AnalisisRevisado, UnaTablaQueFaltaSeDiceYLaListaSigue) {
    fs::remove(FCarpeta / "TABLAS" / "TIPO_VIA.DBF");
    const TEntorno entorno = Entorno();
    const TInstalaVentanasQt ventanas;
    QString aviso;
    const auto analisis = Revisa({Qt::Key_Escape}, [&](QDialog& lista) {
        const TAtiende alAviso([&](QDialog& mensaje) {
            aviso = mensaje.windowTitle() + "|" + dynamic_cast<QMessageBox&>(mensaje).text();
            mensaje.accept();
        });
        auto& validos = Lista(lista, "LBOtorgantes");
        validos.setCurrentIndex(validos.model()->index(0, 0));
        Pulsa(lista, "BDetallesOtorgante");
        EXPECT_EQ(Filas(lista, "LBOtorgantes").size(), 3);
        Pulsa(lista, "BContinuar");
    });
    EXPECT_TRUE(aviso.startsWith(" ATENCIÓN:|La tabla TIPO_VIA.DBF no está en la carpeta "))
        << qPrintable(aviso);
    EXPECT_TRUE(analisis.Sesion().Aceptado);
}

}  // namespace
}  // namespace analizador
