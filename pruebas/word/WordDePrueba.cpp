#include "pruebas/word/WordDePrueba.h"

#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <string>

#include "plataforma/Ansi.h"

namespace analizador::pruebas {

namespace {

std::u16string Utf16(std::string_view texto) {
    return Utf16DeUtf8(Utf8DeAnsi(texto));
}

// Never over another Word. Among the machine's classes, because Wine does not look among the user's.
void Registra() {
    CLSID otra{};
    if (SUCCEEDED(CLSIDFromProgID(L"Word.Application", &otra))) {
        if (otra != CLASE_DE_PRUEBA) throw std::runtime_error("another Word is installed here");
        return;
    }
    wchar_t clase[64] = {};
    const int longitud = StringFromGUID2(CLASE_DE_PRUEBA, clase, static_cast<int>(std::size(clase)));
    RegSetKeyValueW(HKEY_CLASSES_ROOT, L"Word.Application\\CLSID", nullptr, REG_SZ, clase,
                    static_cast<DWORD>(sizeof(wchar_t) * static_cast<std::size_t>(longitud)));
}

HANDLE Arranca() {
    std::wstring orden = std::filesystem::path(SERVIDOR_WORD).make_preferred().native();
    STARTUPINFOW como{};
    como.cb = sizeof como;
    PROCESS_INFORMATION proceso{};
    if (!CreateProcessW(nullptr, orden.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &como, &proceso))
        throw std::runtime_error("the test server does not start");
    CloseHandle(proceso.hThread);
    return proceso.hProcess;
}

TPuntero<IDispatch> Espera(HANDLE proceso) {
    constexpr DWORD TURNO = 50;
    while (WaitForSingleObject(proceso, TURNO) == WAIT_TIMEOUT) {
        IUnknown* hallado = nullptr;
        if (FAILED(GetActiveObject(CLASE_DE_PRUEBA, nullptr, &hallado))) continue;
        const TPuntero<IUnknown> guarda(hallado);
        void* aplicacion = nullptr;
        if (SUCCEEDED(hallado->QueryInterface(IID_IDispatch, &aplicacion)))
            return TPuntero<IDispatch>(static_cast<IDispatch*>(aplicacion));
    }
    throw std::runtime_error("the test server ended at once");
}

}  // namespace

TWordDePrueba::TWordDePrueba() {
    Registra();
    FProceso = Arranca();
    FAplicacion = std::make_unique<TObjetoWord>(FConexion, Espera(FProceso), "Application");
}

TWordDePrueba::~TWordDePrueba() {
    constexpr DWORD PLAZO = 5'000;
    try {
        if (Vive()) FAplicacion->Haz("Prueba_Acaba");
    } catch (const ErrorWord&) {
        // it is going away
    }
    FAplicacion.reset();
    if (WaitForSingleObject(FProceso, PLAZO) != WAIT_OBJECT_0) TerminateProcess(FProceso, 1);
    CloseHandle(FProceso);
}

TWordDePrueba& TWordDePrueba::EnMarcha() {
    static std::unique_ptr<TWordDePrueba> uno;
    if (uno && !uno->Vive()) uno.reset();
    if (!uno) uno = std::make_unique<TWordDePrueba>();
    return *uno;
}

void TWordDePrueba::Abre(const TContenidoDocumento& contenido) const {
    FAplicacion->Haz("Prueba_Abre", Utf16(contenido.Texto));
    for (const auto& [nombre, intervalo] : contenido.Marcadores)
        FAplicacion->Haz("Prueba_Marcador", Utf16(nombre), intervalo.Inicio, intervalo.Fin);
    for (const auto& [nombre, valor] : contenido.Variables)
        FAplicacion->Haz("Prueba_Variable", Utf16(nombre), Utf16(valor));
    Falla(TFallo::Ninguno, 0, 0);
}

void TWordDePrueba::Mancha(int tinta, TIntervalo indices) const {
    FAplicacion->Haz("Prueba_Mancha", tinta, indices.Inicio, indices.Fin);
}

void TWordDePrueba::Falla(TFallo fallo, int llamada, int veces) const {
    FAplicacion->Haz("Prueba_Falla", static_cast<int>(fallo), llamada, veces);
}

std::string TWordDePrueba::Llamada(int n) const {
    return AnsiDeUtf16(FAplicacion->Texto("Prueba_Llamada", n));
}

int TWordDePrueba::Referencias() const {
    Aplicacion()->AddRef();
    return static_cast<int>(Aplicacion()->Release());
}

TIntervalo TWordDePrueba::SeleccionDelUsuario() const {
    return {FAplicacion->Entero("Prueba_SeleccionInicio"), FAplicacion->Entero("Prueba_SeleccionFin")};
}

bool TWordDePrueba::Vive() const {
    return WaitForSingleObject(FProceso, 0) == WAIT_TIMEOUT;
}

}  // namespace analizador::pruebas
