#include "pruebas/docx/GuardaSegura.h"

#include <string>
#include <utility>
#include <vector>

#include "plataforma/Rficheros.h"

namespace analizador::pruebas {
namespace {

TEST_F(GuardaSegura, NoDejaNadaMas) {
    TFicheroDocx documento(Fichero);
    documento.Guarda(MARCADORES, Fichero);
    EXPECT_TRUE(TieneMarcador(Fichero));
    EXPECT_EQ(Carpeta.Nombres(), (std::vector<std::string>{"escritura de venta.docx"}));
    documento.Guarda(MARCADORES, Carpeta / "nueva.docx");
    EXPECT_TRUE(TieneMarcador(Carpeta / "nueva.docx"));
}

TEST_F(GuardaSegura, SinNadaQueCambiarNoEscribe) {
    TFicheroDocx documento(Fichero);
    const auto antes = MarcaDeFichero(Fichero).Identidad;
    documento.Guarda({}, Fichero);
    EXPECT_EQ(MarcaDeFichero(Fichero).Identidad, antes);
    documento.Guarda({}, Carpeta / "copia.docx");
    EXPECT_EQ(LeeBytes(Carpeta / "copia.docx"), LeeBytes(Fichero));
}

TEST_F(GuardaSegura, RehusaElDocumentoQueOtroProgramaTieneAbierto) {
    EscribeDocumento(Carpeta / "corto.docx", "<w:p><w:r><w:t>a</w:t></w:r></w:p>");
    const std::vector<std::pair<std::string, std::string>> casos = {
        {"escritura de venta.docx", "~$critura de venta.docx"},
        {"escritura de venta.docx", "~$escritura de venta.docx"},
        {"escritura de venta.docx", ".~lock.escritura de venta.docx#"},
        {"corto.docx", "~$corto.docx"},
        {"corto.docx", "~$rto.docx"},
    };
    for (const auto& [nombre, bloqueo] : casos) {
        SCOPED_TRACE(bloqueo);
        const auto fichero = Carpeta / nombre;
        const auto antes = LeeBytes(fichero);
        EscribeFichero(Carpeta / bloqueo, "");
        TFicheroDocx documento(fichero);
        const auto mensaje = Rechazo(documento, fichero);
        EXPECT_NE(mensaje.find("otro programa tiene abierto el documento"), std::string::npos) << mensaje;
        EXPECT_NE(mensaje.find(bloqueo), std::string::npos) << mensaje;
        EXPECT_EQ(LeeBytes(fichero), antes);
        EXPECT_EQ(Rechazo(documento, fichero, true), "");
        EXPECT_TRUE(TieneMarcador(fichero));
        std::filesystem::remove(Carpeta / bloqueo);
        EscribeFichero(fichero, antes);
    }
}

TEST_F(GuardaSegura, RehusaElQueHaCambiadoDesdeQueSeLeyo) {
    TFicheroDocx documento(Fichero);
    EscribeDocumento(Fichero, "<w:p><w:r><w:t>Cambiada!</w:t></w:r></w:p>");
    const auto cambiado = LeeBytes(Fichero);
    EXPECT_NE(Rechazo(documento, Fichero).find("otro programa ha cambiado el documento"), std::string::npos);
    EXPECT_EQ(LeeBytes(Fichero), cambiado);
    EXPECT_EQ(Rechazo(documento, Carpeta / "otra.docx"), "");
    EXPECT_EQ(Rechazo(documento, Fichero, true), "");
    EXPECT_EQ(TextoDe(Fichero), "Escritura\r");
    // and its own change is none
    documento.Guarda({{"N", {0, 0}}}, Fichero);
    EXPECT_EQ(TFicheroDocx(Fichero).Contenido().Marcadores.size(), 2U);
}

TEST_F(GuardaSegura, ElMismoContenidoEscritoOtraVezNoEsUnCambio) {
    TFicheroDocx documento(Fichero);
    EscribeFichero(Fichero, LeeBytes(Fichero));
    EXPECT_EQ(Rechazo(documento, Fichero), "");
}

TEST_F(GuardaSegura, RehusaRomperUnaFirma) {
    auto partes = PartesDocumento("<w:document xmlns:w=\"" + std::string(ESPACIO_W) +
                                  "\"><w:body><w:p/></w:body></w:document>");
    partes.emplace_back("_xmlsignatures/sig1.xml", "<a/>");
    EscribeFichero(Fichero, Comprime(partes));
    const auto antes = LeeBytes(Fichero);
    TFicheroDocx documento(Fichero);
    EXPECT_NE(Rechazo(documento, Fichero).find("se rompería la firma"), std::string::npos);
    EXPECT_EQ(LeeBytes(Fichero), antes);
    EXPECT_EQ(Rechazo(documento, Fichero, true), "");
    EXPECT_NE(LeeBytes(Fichero), antes);
}

}  // namespace
}  // namespace analizador::pruebas
