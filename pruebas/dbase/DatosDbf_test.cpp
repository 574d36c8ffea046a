#include "adaptadores/dbase/DatosDbf.h"

#include <gtest/gtest.h>

#include <bit>

#include "adaptadores/dbase/PaginasCodigos.h"
#include "plataforma/Ansi.h"
#include "plataforma/Ruttb.h"
#include "pruebas/dbase/ConstructorDbf.h"

namespace analizador {
namespace {

TFichero Pequenna() {
    return {.Campos = {{"NOMBRE", 'C', 8}, {"NUMERO", 'N', 5, 1}, {"PRESTAMO", 'L', 1}},
            .Filas = {{"SALE", " 12.5", "T"}, {"*borrada*", "FUERA", "    1", "F"}, {"ULTIMA", "   7", "N"}}};
}

std::string CausaDe(const std::string& bytes) {
    try {
        const TDatosDbf datos(bytes, "/casa/PRUEBA.DBF");
        return "";
    } catch (const ErrorTabla& error) {
        return error.what();
    }
}

TEST(DatosDbf, LeeTodasLasVersiones) {
    for (const int version : {0x03, 0x04, 0x05, 0x07, 0x30, 0x31, 0x32, 0x43, 0x83, 0x8B, 0xCB, 0xF5}) {
        TFichero fichero = Pequenna();
        fichero.Version = static_cast<unsigned char>(version);
        if (version >= 0x30 && version <= 0x32) fichero.BytesTrasCampos = 263;
        const TDatosDbf datos(fichero.Bytes(), "P.DBF");
        ASSERT_EQ(datos.Filas(), 2U) << version;
        EXPECT_EQ(datos.Texto(0, datos.Campo("nombre")), "SALE") << version;
        EXPECT_EQ(datos.Texto(1, datos.Campo("NOMBRE")), "ULTIMA") << version;
        EXPECT_EQ(datos.Numero(0, datos.Campo("NUMERO")), 12.5) << version;
        EXPECT_EQ(datos.Texto(1, datos.Campo("PRESTAMO")), "F") << version;
    }
}

TEST(DatosDbf, LeeLaCabeceraLargaDeDbase7) {
    for (const int version : {0x04, 0x8C}) {
        TFichero fichero = Pequenna();
        fichero.Version = static_cast<unsigned char>(version);
        fichero.Largos = true;
        fichero.Campos.push_back({"UN_NOMBRE_DE_CAMPO_MUY_LARGO", 'I', 4});
        fichero.Campos.push_back({"REAL", 'O', 8});
        const auto doble = std::bit_cast<std::uint64_t>(2.5);
        const auto negativo = std::bit_cast<std::uint64_t>(-2.5);
        fichero.Filas = {{"A", "1", "T", Alto(0x80000000U + 9, 4), Alto(doble | 1ULL << 63U, 8)},
                         {"B", "2", "F", Alto(0x80000000U - 9, 4), Alto(~negativo, 8)}};
        const TDatosDbf datos(fichero.Bytes(), "P.DBF");
        const TCampoDbf& entero = datos.Campo("un_nombre_de_campo_muy_largo");
        EXPECT_EQ(datos.Texto(0, entero), "9");
        EXPECT_EQ(datos.Texto(1, entero), "-9");
        EXPECT_EQ(datos.Numero(0, datos.Campo("REAL")), 2.5);
        EXPECT_EQ(datos.Numero(1, datos.Campo("REAL")), -2.5);
        EXPECT_EQ(datos.Texto(1, datos.Campo("NOMBRE")), "B");
    }
}

TEST(DatosDbf, LeeCadaTipoDeCampo) {
    const std::string real = Bajo(std::bit_cast<std::uint64_t>(-0.75), 8);
    const struct {
        unsigned char Version;
        TCampoPrueba Campo;
        std::string Bytes, Texto;
        std::optional<double> Numero;
    } casos[] = {
        {3, {"X", 'C', 6}, " A B", " A B", {}},
        {3, {"X", 'C', 6}, " 028", " 028", 28},
        {3, {"X", 'C', 6}, "1.5", "1.5", {}},
        {3, {"X", 'C', 6}, std::string("AB\0\0", 4), "AB", {}},
        {3, {"X", 'C', 300}, std::string(300, 'Z'), std::string(300, 'Z'), {}},
        {3, {"X", 'N', 8, 2}, "  -12.50", "-12.50", -12.5},
        {3, {"X", 'N', 8, 2}, "   12,50", "12,50", 12.5},
        {3, {"X", 'N', 8}, "      +3", "+3", 3},
        {3, {"X", 'N', 8}, "", "", {}},
        {3, {"X", 'N', 8}, "********", "********", {}},
        {3, {"X", 'N', 8}, "     nan", "nan", {}},
        {3, {"X", 'N', 8}, "infinity", "infinity", {}},
        {3, {"X", 'N', 8}, std::string("7\0\0\0\0\0\0\0", 8), "7", 7},
        {5, {"X", 'F', 10}, "   1.5E+02", "1.5E+02", 150},
        {3, {"X", 'D', 8}, "20160923", "20160923", 20160923},
        {3, {"X", 'L', 1}, "Y", "T", {}},
        {3, {"X", 'L', 1}, "t", "T", {}},
        {3, {"X", 'L', 1}, "n", "F", {}},
        {3, {"X", 'L', 1}, "?", "", {}},
        {0x8B, {"X", 'M', 10}, "         1", "", {}},
        {0x8B, {"X", 'B', 10}, "         1", "", {}},
        {0x30, {"X", 'M', 4}, Bajo(8, 4), "", {}},
        {0x30, {"X", 'I', 4}, Bajo(static_cast<std::uint32_t>(-5), 4), "-5", -5},
        {0x30, {"X", 'B', 8}, real, "-0.75", -0.75},
        {0x30, {"X", 'B', 8}, Bajo(0x7FF0000000000000ULL, 8), "", {}},
        {0x30, {"X", 'T', 8}, Bajo(1, 8), "", {}},
        {0x30, {"X", 'I', 3}, "AAA", "", {}},
    };
    for (const auto& caso : casos) {
        const TFichero fichero{.Version = caso.Version, .Campos = {caso.Campo}, .Filas = {{caso.Bytes}}};
        const TDatosDbf datos(fichero.Bytes(), "P.DBF");
        EXPECT_EQ(datos.Texto(0, datos.Campo("X")), caso.Texto) << caso.Campo.Tipo << caso.Bytes;
        EXPECT_EQ(datos.Numero(0, datos.Campo("X")), caso.Numero) << caso.Campo.Tipo << caso.Bytes;
    }
}

TEST(DatosDbf, TraduceLaPaginaDeCodigos) {
    const struct {
        unsigned char Controlador;
        std::string_view Bytes;
        std::string_view Texto;
    } casos[] = {
        {0x00, "Mu\xF1oz \xC7", "Muñoz Ç"_ansi},
        {0x03, "Mu\xF1oz \x80", "Muñoz €"_ansi},
        {0x57, "\xC9L", "ÉL"_ansi},
        {0x01, "MU\xA5OZ \x80 \xF8", "MUÑOZ Ç °"_ansi},
        {0x02, "\xB5\xD6\xE0\xE9 \xA4", "ÁÍÓÚ ñ"_ansi},
        {0x14, "\x90LCH\x90", "ÉLCHÉ"_ansi},
        {0x02, "PASSEIG L\xFAL", "PASSEIG L·L"_ansi},
        {0x1B, "\xB0", "?"},
        {0x64, "LLANO", "LLANO"},
    };
    for (const auto& caso : casos) {
        const TFichero fichero{.Controlador = caso.Controlador,
                               .Campos = {{"X", 'C', 20}},
                               .Filas = {{std::string(caso.Bytes)}}};
        const TDatosDbf datos(fichero.Bytes(), "P.DBF");
        EXPECT_EQ(datos.Texto(0, datos.Campo("X")), caso.Texto) << int{caso.Controlador};
    }
}

TEST(DatosDbf, NoAdivinaUnaPaginaDesconocida) {
    const TFichero fichero{.Controlador = 0x64, .Campos = {{"X", 'C', 2}}, .Filas = {{"\xF1"}}};
    EXPECT_NE(CausaDe(fichero.Bytes()).find("página de códigos"_ansi), std::string::npos);
}

TEST(DatosDbf, DiceElFicheroYLaCausaDelDanno) {
    const std::string sana = Pequenna().Bytes();
    ASSERT_EQ(CausaDe(sana), "");
    const struct {
        std::string Bytes;
        std::string_view Causa;
    } casos[] = {
        {"", "demasiado corto"},
        {sana.substr(0, 32), "demasiado corto"},
        {Con(sana, 0, "P"), "versión"_ansi},
        {Con(sana, 8, Bajo(0, 2)), "cabecera"},
        {Con(sana, 8, Bajo(32, 2)), "cabecera"},
        {Con(sana, 8, Bajo(0xFFFF, 2)), "cabecera"},
        {Con(sana, 10, Bajo(0, 2)), "registros"},
        {Con(sana, 10, Bajo(16, 2)), "registros"},
        {Con(sana, 4, Bajo(4, 4)), "truncada"},
        {Con(sana, 4, Bajo(0xFFFFFFFF, 4)), "truncada"},
        {sana.substr(0, sana.size() - 2), "truncada"},
        {Con(sana, 32, std::string_view("\0", 1)), "campos"},
        {Con(sana, 48, std::string_view("\0", 1)), "campos"},
        {Con(sana, 48, "\x09"), "campos"},
        {Con(sana, 32, "\x0D"), "campos"},
    };
    for (const auto& caso : casos) {
        const std::string causa = CausaDe(caso.Bytes);
        EXPECT_NE(causa.find("/casa/PRUEBA.DBF"), std::string::npos) << causa;
        EXPECT_NE(causa.find(caso.Causa), std::string::npos) << Utf8DeAnsi(caso.Causa) << ": " << causa;
        EXPECT_EQ(causa.find('\n'), std::string::npos);
    }
}

// Reads everything that can be read.
void LeeTodo(const std::string& bytes) {
    const TDatosDbf datos(bytes, "P.DBF");
    for (std::uint32_t fila = 0; fila < datos.Filas(); ++fila)
        for (const TCampoDbf& campo : datos.Campos()) {
            EXPECT_LE(datos.Texto(fila, campo).size(), bytes.size());
            static_cast<void>(datos.Numero(fila, campo));
        }
}

TEST(DatosDbf, TruncadaEnCualquierPuntoEsUnError) {
    const std::string sana = Pequenna().Bytes();
    for (std::size_t longitud = 0; longitud + 1 < sana.size(); ++longitud)
        EXPECT_NE(CausaDe(sana.substr(0, longitud)), "") << longitud;
    EXPECT_EQ(CausaDe(sana.substr(0, sana.size() - 1)), "") << "only the end mark is missing";
}

TEST(DatosDbf, CualquierByteDeLaCabeceraCambiadoSeLeeOEsUnError) {
    int errores = 0;
    for (const bool largos : {false, true}) {
        TFichero fichero = Pequenna();
        fichero.Version = 0x04;
        fichero.Largos = largos;
        const std::string sana = fichero.Bytes();
        for (std::size_t posicion = 0; posicion < sana.size(); ++posicion)
            for (int byte = 0; byte < 256; ++byte) {
                const auto cambiado = static_cast<char>(byte);
                try {
                    LeeTodo(Con(sana, posicion, {&cambiado, 1}));
                } catch (const ErrorTabla&) {
                    ++errores;
                }
            }
    }
    EXPECT_GT(errores, 5000);
}

TEST(DatosDbf, UnCampoQueFaltaSeNombraConLaTabla) {
    const TDatosDbf datos(Pequenna().Bytes(), "/casa/TIPOS.DBF");
    EXPECT_TRUE(datos.TieneCampo("prestamo"));
    EXPECT_FALSE(datos.TieneCampo("PRESTAM"));
    try {
        static_cast<void>(datos.Campo("COD_OFICIA"));
        FAIL();
    } catch (const ErrorTabla& error) {
        EXPECT_NE(std::string(error.what()).find("/casa/TIPOS.DBF"), std::string::npos);
        EXPECT_NE(std::string(error.what()).find("COD_OFICIA"), std::string::npos);
    }
}

}  // namespace
}  // namespace analizador
