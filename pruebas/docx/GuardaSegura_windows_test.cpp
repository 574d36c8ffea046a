#include <windows.h>
// After windows.h.
#include <aclapi.h>
#include <sddl.h>

#include <memory>
#include <string>
#include <thread>

#include "adaptadores/docx/Asa_windows.h"
#include "adaptadores/docx/FalloDocx.h"
#include "adaptadores/docx/SustitucionSegura.h"
#include "plataforma/Rficheros.h"
#include "pruebas/docx/GuardaSegura.h"

namespace analizador::pruebas {
namespace {

constexpr auto NADA = [] {};
constexpr const char* ABIERTO = "otro programa lo tiene abierto; ciérrelo antes de guardar";

// As Word opens a document: others may read it and nothing else.
TAsa ComoWord(const std::filesystem::path& fichero) {
    return AbreFichero(fichero, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING, 0);
}

// The failure of putting other bytes in the file's place; empty when they are there.
std::string Fallo(const std::filesystem::path& fichero, const std::function<void()>& justoAntes) {
    try {
        SustituyeFichero(fichero, "otros bytes", justoAntes);
    } catch (const FalloDocx& fallo) {
        return fallo.what();
    }
    return {};
}

// Who may do what with a file, as the system writes it.
std::wstring Permisos(const std::filesystem::path& fichero) {
    void* descriptor = nullptr;
    wchar_t* texto = nullptr;
    EXPECT_EQ(GetNamedSecurityInfoW(fichero.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                    nullptr, nullptr, nullptr, &descriptor),
              DWORD{ERROR_SUCCESS});
    ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1,
                                                         DACL_SECURITY_INFORMATION, &texto, nullptr);
    const std::wstring permisos = texto != nullptr ? texto : L"";
    LocalFree(texto);
    LocalFree(descriptor);
    return permisos;
}

void PonPermisos(const std::filesystem::path& fichero, const wchar_t* permisos) {
    void* descriptor = nullptr;
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(permisos, SDDL_REVISION_1, &descriptor,
                                                                     nullptr));
    EXPECT_TRUE(SetFileSecurityW(fichero.c_str(), DACL_SECURITY_INFORMATION, descriptor));
    LocalFree(descriptor);
}

TEST_F(GuardaSegura, ConservaLosAtributosYUnFicheroNuevoTieneLosCorrientes) {
    constexpr DWORD OCULTO = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE;
    ASSERT_TRUE(SetFileAttributesW(Fichero.c_str(), OCULTO));
    TFicheroDocx(Fichero).Guarda(MARCADORES, Fichero);
    EXPECT_TRUE(TieneMarcador(Fichero));
    EXPECT_EQ(GetFileAttributesW(Fichero.c_str()), OCULTO);
    TFicheroDocx(Fichero).Guarda({}, Carpeta / "nueva.docx");
    EXPECT_EQ(GetFileAttributesW((Carpeta / "nueva.docx").c_str()), DWORD{FILE_ATTRIBUTE_ARCHIVE});
}

TEST_F(GuardaSegura, ConservaLosPermisos) {
    const auto corrientes = Permisos(Fichero);
    PonPermisos(Fichero, L"D:P(A;;FA;;;WD)");
    const auto suyos = Permisos(Fichero);
    ASSERT_NE(suyos, corrientes);
    TFicheroDocx(Fichero).Guarda(MARCADORES, Fichero);
    EXPECT_TRUE(TieneMarcador(Fichero));
    EXPECT_EQ(Permisos(Fichero), suyos);
}

TEST_F(GuardaSegura, RehusaElQueOtroProgramaNoDejaSustituir) {
    const auto antes = LeeBytes(Fichero);
    TFicheroDocx documento(Fichero);
    auto word = ComoWord(Fichero);
    ASSERT_TRUE(word);
    EXPECT_EQ(TextoDe(Fichero), "Escritura\r");  // it can be analysed meanwhile
    EXPECT_TRUE(Rechazo(documento, Fichero, true).ends_with(ABIERTO)) << Rechazo(documento, Fichero, true);
    word.reset();
    EXPECT_EQ(LeeBytes(Fichero), antes);
    EXPECT_EQ(Carpeta.Nombres().size(), 1U);
    EXPECT_EQ(Rechazo(documento, Fichero), "");
    EXPECT_TRUE(TieneMarcador(Fichero));
}

TEST_F(GuardaSegura, RehusaElQueSeAbreMientrasSeGuarda) {
    const auto antes = LeeBytes(Fichero);
    TAsa word;
    const auto fallo = Fallo(Fichero, [&] { word = ComoWord(Fichero); });
    EXPECT_TRUE(fallo.ends_with(ABIERTO)) << fallo;
    word.reset();
    EXPECT_EQ(LeeBytes(Fichero), antes);
    EXPECT_EQ(Carpeta.Nombres().size(), 1U);
}

TEST_F(GuardaSegura, EsperaAQuienLoTieneAbiertoUnMomento) {
    TAsa indizador = ComoWord(Fichero);
    std::thread cierra([&] {
        Sleep(200);
        indizador.reset();
    });
    EXPECT_EQ(Fallo(Fichero, NADA), "");
    cierra.join();
    EXPECT_EQ(Fallo(Fichero,
                    [&] {
                        indizador = ComoWord(Fichero);
                        cierra = std::thread([&] {
                            Sleep(200);
                            indizador.reset();
                        });
                    }),
              "");
    cierra.join();
    EXPECT_EQ(LeeBytes(Fichero), "otros bytes");
    EXPECT_EQ(Carpeta.Nombres().size(), 1U);
}

TEST_F(GuardaSegura, RehusaUnFicheroDeSoloLectura) {
    ASSERT_TRUE(SetFileAttributesW(Fichero.c_str(), FILE_ATTRIBUTE_READONLY));
    TFicheroDocx documento(Fichero);
    const auto mensaje = Rechazo(documento, Fichero);
    ASSERT_TRUE(SetFileAttributesW(Fichero.c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_NE(mensaje.find("es de solo lectura"), std::string::npos) << mensaje;
    EXPECT_EQ(Carpeta.Nombres().size(), 1U);
}

TEST_F(GuardaSegura, ACualquierFalloElViejoQuedaEntero) {
    TFicheroDocx documento(Fichero);
    const auto antes = LeeBytes(Fichero);
    const std::vector<std::pair<std::filesystem::path, std::string>> casos = {
        {Carpeta / "no hay" / "a.docx", "la carpeta no existe"},
        {Carpeta.GetRuta(), "es una carpeta"},
        {"NUL", "no es un fichero normal"},
        {Carpeta / "a?.docx", "el sistema no admite ese nombre de fichero"},
    };
    for (const auto& [destino, causa] : casos) {
        const auto mensaje = Rechazo(documento, destino);
        EXPECT_NE(mensaje.find(causa), std::string::npos) << mensaje;
    }
    EXPECT_THROW(SustituyeFichero(Fichero, "x", [] { throw FalloDocx("no"); }), FalloDocx);
    EXPECT_EQ(LeeBytes(Fichero), antes);
    EXPECT_EQ(Carpeta.Nombres().size(), 1U);
}

TEST_F(GuardaSegura, QuitaLoQueDejaronLosMuertosYNadaMas) {
    const auto deUnMuerto = Carpeta / ".~docx-0123456789ab.tmp";
    const auto deUnVivo = Carpeta / ".~docx-ba9876543210.tmp";
    const auto ajeno = Carpeta / ".~docx-corto.tmp";
    for (const auto& fichero : {deUnMuerto, deUnVivo, ajeno}) EscribeFichero(fichero, "a medias");
    std::filesystem::create_directory(Carpeta / ".~docx-0123456789xy.tmp");
    {
        auto cerrojo = deUnVivo;
        const TAsa vivo = AbreFichero(cerrojo += L".cerrojo", GENERIC_WRITE | DELETE, CON_NADIE, CREATE_NEW,
                                      FILE_FLAG_DELETE_ON_CLOSE);
        ASSERT_TRUE(vivo);
        EXPECT_EQ(Fallo(Fichero, NADA), "");
    }
    EXPECT_FALSE(std::filesystem::exists(deUnMuerto));
    EXPECT_TRUE(std::filesystem::exists(deUnVivo));
    EXPECT_EQ(Carpeta.Nombres().size(), 4U);  // the document, the living one's, the alien one and the folder
}

TEST_F(GuardaSegura, MientrasSeEscribeEstaOcultoYNadieLoQuita) {
    EXPECT_EQ(Fallo(Fichero,
                    [&] {
                        EXPECT_EQ(Fallo(Carpeta / "otra.docx", NADA), "");  // cleans the folder
                        int ocultos = 0;
                        for (const auto& entrada : std::filesystem::directory_iterator(Carpeta.GetRuta()))
                            ocultos +=
                                (GetFileAttributesW(entrada.path().c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0;
                        EXPECT_EQ(ocultos, 2);  // it and its lock
                    }),
              "");
    EXPECT_EQ(LeeBytes(Fichero), "otros bytes");
    EXPECT_EQ(Carpeta.Nombres().size(), 2U);
}

// ---- A process that is killed while it saves

constexpr auto VARIABLE = L"GUARDA_SIN_PARAR";

std::string MuchosBytes(char c) {
    return std::string(1 << 20, c);
}

// What the killed process does: not a test by itself.
TEST(GuardaSinParar, DISABLED_HastaQueLaMaten) {
    std::wstring fichero(MAX_PATH, L'\0');
    fichero.resize(GetEnvironmentVariableW(VARIABLE, fichero.data(), MAX_PATH));
    ASSERT_FALSE(fichero.empty());
    for (;;)
        for (const char c : {'a', 'b'}) SustituyeFichero(fichero, MuchosBytes(c), NADA);
}

// This same program, saving.
TAsa QuienGuardaSinParar(const std::filesystem::path& fichero) {
    SetEnvironmentVariableW(VARIABLE, fichero.c_str());
    std::wstring programa(MAX_PATH, L'\0');
    programa.resize(GetModuleFileNameW(nullptr, programa.data(), MAX_PATH));
    std::wstring orden =
        L"\"" + programa + L"\" --gtest_also_run_disabled_tests --gtest_filter=GuardaSinParar.*";
    STARTUPINFOW arranque{};
    arranque.cb = sizeof arranque;
    PROCESS_INFORMATION proceso{};
    if (!CreateProcessW(programa.c_str(), orden.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &arranque, &proceso))
        return nullptr;
    CloseHandle(proceso.hThread);
    return TAsa(proceso.hProcess);
}

TEST_F(GuardaSegura, DeUnoQueMuereGuardandoQuedaElViejoOElNuevo) {
    constexpr DWORD ARRANQUE_MAXIMO = 60'000, POCO = 10;
    const auto inicial = MuchosBytes('0');
    int restos = 0;
    for (DWORD vez = 0; vez < 12; ++vez) {
        EscribeFichero(Fichero, inicial);
        const auto identidad = MarcaDeFichero(Fichero).Identidad;
        const auto quien = QuienGuardaSinParar(Fichero);
        ASSERT_TRUE(quien);
        const auto comienzo = GetTickCount();
        while (MarcaDeFichero(Fichero).Identidad == identidad && GetTickCount() - comienzo < ARRANQUE_MAXIMO)
            Sleep(POCO);
        Sleep(7 * vez);
        TerminateProcess(quien.get(), 1);
        WaitForSingleObject(quien.get(), ARRANQUE_MAXIMO);
        const auto queda = LeeBytes(Fichero);
        ASSERT_TRUE(queda == MuchosBytes('a') || queda == MuchosBytes('b')) << queda.size();
        restos += Carpeta.Nombres().size() > 1 ? 1 : 0;
        EXPECT_EQ(Fallo(Fichero, NADA), "");
        EXPECT_EQ(Carpeta.Nombres().size(), 1U);
    }
    EXPECT_GT(restos, 0) << "nobody died in the middle of a saving";
}

}  // namespace
}  // namespace analizador::pruebas
