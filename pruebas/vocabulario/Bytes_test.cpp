// The bytes of the files: Windows-1252 text with CRLF line ends, as an office's editor writes them.

#include "pruebas/vocabulario/Vocabularios.h"

namespace analizador::vocabulario {
namespace {

using Bytes = EnCadaVocabulario;
INSTANTIATE_TEST_SUITE_P(Vocabulario, Bytes, testing::Values(0, 1), NombreDeCaso);

TEST_P(Bytes, NoEstaVacio) {
    EXPECT_GT(Actual().Bytes.size(), 1000U) << Actual().Fichero;
}

TEST_P(Bytes, EsWindows1252) {
    constexpr std::string_view sinCaracter = "\x81\x8D\x8F\x90\x9D";
    EXPECT_EQ(Actual().Bytes.find_first_of(sinCaracter), std::string::npos);
    EXPECT_NE(Actual().Bytes.substr(0, 3), "\xEF\xBB\xBF");
}

TEST_P(Bytes, NoLlevaSecuenciasUtf8) {
    const auto& bytes = Actual().Bytes;
    for (std::size_t i = 1; i < bytes.size(); ++i) {
        const auto primero = static_cast<unsigned char>(bytes[i - 1]);
        const auto segundo = static_cast<unsigned char>(bytes[i]);
        EXPECT_FALSE(primero >= 0xC2 && primero <= 0xF4 && segundo >= 0x80 && segundo <= 0xBF)
            << Actual().Fichero << ", byte " << i;
    }
}

TEST_P(Bytes, CadaLineaAcabaEnCrLf) {
    const auto& bytes = Actual().Bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool tras = i > 0 && bytes[i - 1] == '\r';
        const bool ante = i + 1 < bytes.size() && bytes[i + 1] == '\n';
        EXPECT_TRUE(bytes[i] != '\n' || tras) << Actual().Fichero << ", LF suelto en " << i;
        EXPECT_TRUE(bytes[i] != '\r' || ante) << Actual().Fichero << ", CR suelto en " << i;
    }
    ASSERT_GE(bytes.size(), 2U);
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
}

}  // namespace
}  // namespace analizador::vocabulario
