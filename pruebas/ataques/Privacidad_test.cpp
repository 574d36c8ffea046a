// What a deed says of people appears in no message and in no file that is left behind, whatever goes wrong.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <csignal>

#include "adaptadores/docx/FicheroDocx.h"
#include "plataforma/Ansi.h"
#include "pruebas/ataques/Rastreo.h"
#include "pruebas/ataques/Semillas.h"

namespace analizador::pruebas {
namespace {

namespace fs = std::filesystem;

// They stand where an analysis takes a name, a document's number, an address and a notary from.
constexpr std::array<std::string_view, 6> PERSONALES = {"ZURBARANEZ",    "Quintanillona", "98765432",
                                                        "Callejonzuela", "ARANZADIERO",   "Villamarchante"};

std::string Parrafo(std::string_view texto) {
    return "<w:p><w:r><w:t xml:space=\"preserve\">" + std::string(texto) + "</w:t></w:r></w:p>";
}

std::string Cuerpo() {
    return Parrafo("NÚMERO MIL DOSCIENTOS TREINTA Y SEIS (1.236).") + Parrafo("ESCRITURA DE COMPRAVENTA.") +
           Parrafo("EN VALLADOLID, mi residencia, a nueve de octubre de dos mil veintitrés.") +
           Parrafo("Ante mí, MERCEDES ARANZADIERO, Notario del Ilustre Colegio de Castilla y León,") +
           Parrafo("COMPARECEN") + Parrafo("DE UNA PARTE, COMO VENDEDORES:") +
           Parrafo(
               "DON TELESFORO ZURBARANEZ QUINTANILLONA, mayor de edad, soltero, vecino de Villamarchante, "
               "calle "
               "Callejonzuela, número 7, con D.N.I. y N.I.F. número 98765432-M.") +
           Parrafo("INTERVIENEN en su propio nombre y derecho.") + Parrafo("EXPONEN") +
           Parrafo("I.- Que es dueño de la siguiente finca: URBANA.- Piso en Villamarchante.") +
           Parrafo("Precio: CIEN MIL EUROS (100.000,00 €).");
}

bool Contiene(const std::string& bytes, std::string_view palabra) {
    std::string utf16;
    for (const char c : palabra) utf16 += {c, '\0'};
    return bytes.find(palabra) != std::string::npos || bytes.find(utf16) != std::string::npos;
}

void EsperaSinDatos(const std::string& texto, const char* donde) {
    for (const auto palabra : PERSONALES) EXPECT_FALSE(Contiene(texto, palabra)) << donde << ": " << texto;
}

class Privacidad : public testing::Test {
  protected:
    Privacidad() { EscribeFichero(Fichero, Comprime(Partes())); }

    [[nodiscard]] static TPartes Partes() { return PartesDocumento(DocumentoXml(Cuerpo())); }

    // Runs it as a text report and as JSON: it fails, and says nothing of anyone.
    void EsperaFallo(std::vector<std::string> argumentos, const TLimites& limites = {}) {
        for (const bool json : {false, true}) {
            if (json) argumentos.insert(argumentos.begin(), "--json");
            const auto final = Banco.Corre(PROGRAMA_ANALIZA, argumentos, limites);
            EXPECT_EQ(final.Codigo, 1) << final.Salida;
            EXPECT_NE(final.Errores, "");
            EsperaSinDatos(final.Errores, "errors");
            EsperaSinDatos(final.Salida, "output");
            EsperaSinRestos();
        }
    }

    void EsperaSinRestos() {
        EXPECT_EQ(Banco.EnTemporal(), std::vector<std::string>{});
        EXPECT_EQ(Banco.EnDocumentos(), std::vector<std::string>{"escritura.docx"});
    }

    TBanco Banco;
    fs::path Fichero = Banco.Documento("escritura.docx");
};

// The words are read, so that their absence elsewhere says something.
TEST_F(Privacidad, ElInformeSiLosTiene) {
    const auto final = Banco.Corre(PROGRAMA_ANALIZA, {Fichero});
    EXPECT_EQ(final.Codigo, 0) << final.Errores;
    for (const auto palabra : {"ZURBARANEZ", "98765432", "ARANZADIERO"})
        EXPECT_TRUE(Contiene(final.Salida, palabra)) << palabra << final.Salida;
    EXPECT_EQ(final.Errores, "");
    EsperaSinRestos();
}

TEST_F(Privacidad, ConElDocumentoRotoTrasElTexto) {
    const auto xml = DocumentoXml(Cuerpo());
    const auto conXml = [](const std::string& principal) { return Comprime(PartesDocumento(principal)); };
    const auto bytes = Comprime(Partes());
    auto cambiado = bytes;
    cambiado[bytes.find("word/document.xml") + 600] ^= '\x55';
    const std::vector<std::string> rotos = {
        conXml(xml.substr(0, xml.size() - 20)),
        conXml(xml + "<otra>ZURBARANEZ"),
        conXml("<!DOCTYPE ZURBARANEZ [<!ENTITY Quintanillona \"98765432\">]>" + xml),
        conXml("<?xml version='1.0' encoding='ZURBARANEZ'?>" + xml.substr(xml.find("<w:document"))),
        conXml(DocumentoXml(Cuerpo() + Repite("<w:ins w:author=\"ZURBARANEZ\">", 300))),
        conXml(DocumentoXml(Cuerpo() + "<w:p w:ZURBARANEZ=98765432/>")),
        Comprime(PartesDocumento(xml, "<w:style ZURBARANEZ>")),
        Comprime(
            PartesDocumento(xml, "", "<w:docVars><w:docVar w:name=\"NIF\" w:val=\"98765432\"></w:docVars>")),
        bytes.substr(0, bytes.size() - 30),
        cambiado,
        "ZURBARANEZ Quintanillona 98765432",
    };
    for (std::size_t i = 0; i < rotos.size(); ++i) {
        SCOPED_TRACE(i);
        EscribeFichero(Fichero, rotos[i]);
        EsperaFallo({Fichero});
    }
}

// Each table in its turn missing, emptied, cut short and of garbage.
TEST_F(Privacidad, ConTablasMalas) {
    const auto tablas = Banco.Documento("tablas");
    int fallos = 0;
    for (const auto& tabla : fs::directory_iterator(CARPETA_TABLAS)) {
        const auto bytes = LeeBytes(tabla.path());
        for (int mal = 0; mal < 4; ++mal) {
            SCOPED_TRACE(tabla.path().filename().string() + " " + std::to_string(mal));
            fs::copy(CARPETA_TABLAS, tablas, fs::copy_options::recursive);
            const auto mala = tablas / tabla.path().filename();
            fs::remove(mala);
            if (mal > 0)
                EscribeFichero(mala, mal == 1   ? ""
                                     : mal == 2 ? bytes.substr(0, bytes.size() / 2)
                                                : "ZURBARANEZ");
            const auto final = Banco.Corre(PROGRAMA_ANALIZA, {"--tablas", tablas, Fichero});
            fs::remove_all(tablas);
            EXPECT_EQ(final.Senal, 0);
            if (final.Codigo == 0) continue;  // a table that this deed does not need
            ++fallos;
            EXPECT_EQ(final.Salida, "");
            EXPECT_EQ(std::ranges::count(final.Errores, '\n'), 1);
            EsperaSinDatos(final.Errores, "errors");
            EsperaSinRestos();
        }
    }
    EXPECT_GT(fallos, 8);
}

TEST_F(Privacidad, SiNoSePuedeGuardar) {
    EsperaFallo({"--guarda", Fichero}, {.TamanoFichero = 500});
    EsperaFallo({"--salida", Banco.Documento("no hay") / "a.docx", Fichero});
    EsperaFallo({"--salida", "/dev/null", Fichero});
    const auto bloqueo = Banco.Documento(".~lock.escritura.docx#");
    EscribeFichero(bloqueo, ",TELESFORO ZURBARANEZ,despacho,09.10.2023 10:00,file:///tmp;");
    const auto final = Banco.Corre(PROGRAMA_ANALIZA, {"--guarda", Fichero});
    fs::remove(bloqueo);
    EXPECT_EQ(final.Codigo, 1);
    EsperaSinDatos(final.Errores, "errors");
    EsperaSinRestos();
}

TEST_F(Privacidad, ConPocaMemoria) {
    if (SANEADO) GTEST_SKIP() << "the sanitizer needs all the address space";
    for (const std::uint64_t mib : {16U, 20U, 24U, 28U}) {
        const auto final = Banco.Corre(PROGRAMA_ANALIZA, {Fichero}, {.Memoria = mib << 20});
        EsperaSinDatos(final.Errores, "errors");
        if (final.Codigo != 0) {
            EsperaSinDatos(final.Salida, "output");
        }
        EsperaSinRestos();
    }
}

// Interrupted at every system call of a saving from when there is a file beside the document: what is left is
// what the next run removes.
TEST_F(Privacidad, InterrumpidoPorUnaSenal) {
    if (!SePuedeRastrear()) GTEST_SKIP() << "no process may be traced here";
    const auto original = LeeBytes(Fichero);
    int conRestos = 0;
    for (const int senal : {SIGINT, SIGTERM, SIGHUP}) {
        for (int tras = 0; tras < 12; ++tras) {
            SCOPED_TRACE(std::to_string(senal) + " " + std::to_string(tras));
            EscribeFichero(Fichero, original);
            int paradas = 0;
            const auto final = Rastrea(Banco, PROGRAMA_ANALIZA, {"--guarda", Fichero}, [&](std::uint64_t) {
                if (Banco.EnDocumentos().size() == 1) return SIGUE;
                return paradas++ == tras ? senal : SIGUE;
            });
            EsperaSinDatos(final.Errores, "errors");
            conRestos += Banco.EnDocumentos().size() > 1 ? 1 : 0;
            EXPECT_EQ(Banco.Corre(PROGRAMA_ANALIZA, {Fichero}).Codigo, 0);
            EsperaSinRestos();
        }
    }
    EXPECT_GT(conRestos, 0);
}

}  // namespace
}  // namespace analizador::pruebas
