#include "adaptadores/qt/VisoresQt.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTextLayout>

#include "adaptadores/qt/VisorXml.h"
#include "plataforma/Ansi.h"
#include "pruebas/qt/Atiende.h"

namespace analizador {
namespace {

class VisoresQt : public testing::Test {
  protected:
    [[nodiscard]] QString Ruta(const QString& nombre) const { return carpeta_.filePath(nombre); }
    [[nodiscard]] std::filesystem::path Escribe(const QString& nombre, const QByteArray& bytes) const {
        QFile fichero(Ruta(nombre));
        if (!fichero.open(QIODevice::WriteOnly) || fichero.write(bytes) != bytes.size())
            throw std::runtime_error("cannot write " + nombre.toStdString());
        return fichero.filesystemFileName();
    }

  private:
    QTemporaryDir carpeta_;
};

#ifndef Q_OS_WIN  // the viewer of the test is a script of the shell
TEST_F(VisoresQt, TextIsOpenedWithTheProgramAndTheFileAsItsArgument) {
    const auto visor = Escribe("visor", "#!/bin/sh\ncp \"$1\" \"$1.visto\"\n");
    std::filesystem::permissions(visor, std::filesystem::perms::owner_all);
    const auto informe = Escribe("un informe.TXT", "PIZARRA");
    TVisoresQt visores(QString::fromStdString(visor.string()));
    ASSERT_TRUE(visores.AbreTexto(informe));
    QFile visto(Ruta("un informe.TXT.visto"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return visto.size() == 7; }));
}
#endif

TEST_F(VisoresQt, AViewerThatIsMissingIsTold) {
    TVisoresQt visores("este-programa-no-existe");
    EXPECT_FALSE(visores.AbreTexto(Escribe("a.TXT", "x")));
}

TEST_F(VisoresQt, XmlWindowShowsTheFileUnderItsTitleUntilItIsClosed) {
    TVisoresQt visores;
    const auto fichero = Escribe("a.xml", "<a><b>ni\xC3\xB1o</b></a>");
    QString titulo, texto;
    bool soloLectura = false;
    const TAtiende clerk([&](QDialog& ventana) {
        auto& caja = *ventana.findChild<QPlainTextEdit*>("TextoXML");
        titulo = ventana.windowTitle();
        texto = caja.toPlainText();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
        QTest::keyClicks(ventana.focusWidget(), "x");
        soloLectura = caja.toPlainText() == texto;
        QTest::keyClick(ventana.focusWidget(), Qt::Key_Escape);
    });
    visores.CreateVisorEmbeddedWB(nullptr, fichero, "Situación"_ansi);
    EXPECT_EQ(titulo, QStringLiteral("Situación"));
    EXPECT_EQ(texto, QStringLiteral("<a>\n  <b>niño</b>\n</a>"));
    EXPECT_TRUE(soloLectura);
}

TEST_F(VisoresQt, FilesAreReadInTheEncodingThatTheyDeclare) {
    const struct {
        QByteArray Bytes;
        QString Letras;
    } casos[] = {
        {"<a>\xC3\xB1</a>", QStringLiteral("ñ")},
        {"\xEF\xBB\xBF<a>\xC3\xB1</a>", QStringLiteral("ñ")},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xF1</a>", QStringLiteral("ñ")},
        {"<?xml version='1.0' encoding='windows-1252'?><a>\x80</a>", QStringLiteral("€")},
        {QByteArray("\xFF\xFE<\0a\0>\0\xF1\0<\0/\0a\0>\0", 18), QStringLiteral("ñ")},
    };
    for (const auto& caso : casos) {
        TVisorXml visor;
        visor.MuestraFichero(Escribe("a.xml", caso.Bytes));
        EXPECT_TRUE(visor.Texto().endsWith("<a>" + caso.Letras + "</a>")) << visor.Texto().toStdString();
        EXPECT_EQ(visor.Aviso(), QString());
    }
}

TEST_F(VisoresQt, MalformedXmlStandsAsItIsUnderALineThatTellsWhere) {
    TVisorXml visor;
    visor.MuestraTexto("<a>\n<b></a>");
    visor.show();
    const auto& aviso = *visor.findChild<QLabel*>("AvisoXML");
    EXPECT_TRUE(aviso.isVisible());
    EXPECT_TRUE(aviso.text().contains(QStringLiteral("línea 2")));
    EXPECT_EQ(visor.Texto(), QStringLiteral("<a>\n<b></a>"));
    visor.MuestraTexto("<a/>");
    EXPECT_FALSE(aviso.isVisible());
}

TEST_F(VisoresQt, AFileThatCannotBeReadIsTold) {
    TVisorXml visor;
    visor.MuestraFichero(Ruta("no está.xml").toStdU16String());
    EXPECT_EQ(visor.Texto(), QString());
    EXPECT_TRUE(visor.Aviso().startsWith("No se puede leer el fichero ")) << visor.Aviso().toStdString();
    EXPECT_TRUE(visor.Aviso().contains(QStringLiteral("no está.xml")));
}

// The colours of the letters of the first line, one a letter.
std::vector<QColor> ColoresDeLetras(const TVisorXml& visor) {
    const auto& documento = *visor.findChild<QPlainTextEdit*>()->document();
    std::vector<QColor> colores(static_cast<std::size_t>(documento.firstBlock().length()));
    for (const auto& trozo : documento.firstBlock().layout()->formats())
        for (int i = 0; i < trozo.length; ++i)
            colores[static_cast<std::size_t>(trozo.start + i)] = trozo.format.foreground().color();
    return colores;
}

double Contraste(const QColor& uno, const QColor& otro) {
    const auto luz = [](const QColor& c) {
        return 0.2126 * c.redF() + 0.7152 * c.greenF() + 0.0722 * c.blueF();
    };
    return std::abs(luz(uno) - luz(otro));
}

TEST_F(VisoresQt, ColoursTellThePartsApartAndCanBeReadOnLightAndDark) {
    for (const bool oscuro : {false, true}) {
        const QColor fondo = oscuro ? QColor(30, 30, 30) : QColor(255, 255, 255);
        TVisorXml visor;
        QPalette paleta;
        paleta.setColor(QPalette::Base, fondo);
        paleta.setColor(QPalette::Text, oscuro ? Qt::white : Qt::black);
        visor.setPalette(paleta);
        visor.MuestraTexto("<a b=\"1\">&amp;</a>");
        const auto colores = ColoresDeLetras(visor);
        ASSERT_GE(colores.size(), 10U);
        const QColor etiqueta = colores[1], atributo = colores[3], valor = colores[6],
                     referencia = colores[10];
        EXPECT_NE(etiqueta, atributo);
        EXPECT_NE(atributo, valor);
        EXPECT_NE(valor, referencia);
        for (const auto& color : {etiqueta, atributo, valor, referencia})
            EXPECT_GT(Contraste(color, fondo), 0.4) << color.name().toStdString() << " " << oscuro;
    }
}

}  // namespace
}  // namespace analizador
