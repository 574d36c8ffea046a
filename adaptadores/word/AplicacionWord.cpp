#include "adaptadores/word/AplicacionWord.h"

#include <optional>
#include <string>
#include <utility>

#include "adaptadores/word/DocumentoWord.h"
#include "adaptadores/word/FalloWord.h"
#include "plataforma/Ansi.h"

namespace analizador {

namespace {

TPuntero<IDispatch> WordEnMarcha() {
    CLSID clase{};
    IUnknown* hallado = nullptr;
    if (FAILED(CLSIDFromProgID(L"Word.Application", &clase)))
        throw ErrorWord(std::string("Word no está instalado"_ansi));
    if (FAILED(GetActiveObject(clase, nullptr, &hallado)))
        throw ErrorWord(std::string("Word no está abierto"_ansi));
    const TPuntero<IUnknown> guarda(hallado);
    void* aplicacion = nullptr;
    const HRESULT codigo = hallado->QueryInterface(IID_IDispatch, &aplicacion);
    EXCEPINFO sinDetalle{};
    if (FAILED(codigo)) LanzaFallo("Application", codigo, sinDetalle);
    return TPuntero<IDispatch>(static_cast<IDispatch*>(aplicacion));
}

}  // namespace

// The connection and what is held of Word's through it.
class TWordAbierto {
  public:
    TWordAbierto(TPuntero<IDispatch> aplicacion, std::chrono::milliseconds paciencia)
        : FConexion{paciencia, {}}, FDada(std::move(aplicacion)) {}

    // Takes the active document; nullptr when there is none.
    TDocumentoWord* TomaDocumento() {
        Suelta();
        try {
            FDocumento.emplace(Aplicacion().Objeto("ActiveDocument", "Document"));
        } catch (const TFalloWord& fallo) {
            if (!fallo.Es(FALLO_SIN_DOCUMENTO)) throw;
        }
        return Documento();
    }
    void Suelta() {
        FDocumento.reset();
        if (!FDada) FConexion.Miembros.clear();  // the next Word may be another
    }
    [[nodiscard]] TDocumentoWord* Documento() { return FDocumento ? &*FDocumento : nullptr; }
    [[nodiscard]] std::intptr_t Ventana() {
        try {
            return Aplicacion().Objeto("ActiveWindow", "Window").Entero("Hwnd");
        } catch (const TFalloWord& fallo) {
            if (!fallo.EsMiembroDesconocido() && !fallo.Es(FALLO_SIN_DOCUMENTO)) throw;
            return 0;
        }
    }

  private:
    [[nodiscard]] TObjetoWord Aplicacion() {
        return {FConexion, FDada ? Comparte(FDada.get()) : WordEnMarcha(), "Application"};
    }

    TApartamento FApartamento;
    TConexionWord FConexion;
    TPuntero<IDispatch> FDada;  // nullptr: the one that is running
    std::optional<TDocumentoWord> FDocumento;
};

class TAplicacionWord::TAnalisis : public TAnalisisEnCurso {
  public:
    explicit TAnalisis(TAplicacionWord& aplicacion) : FAplicacion(aplicacion) {
        FAplicacion.FWord->TomaDocumento();
        FAplicacion.FEnAnalisis = true;
    }
    ~TAnalisis() override {
        FAplicacion.FEnAnalisis = false;
        FAplicacion.FWord->Suelta();
    }
    TAnalisis(const TAnalisis&) = delete;
    TAnalisis& operator=(const TAnalisis&) = delete;
    void MuestraSeleccion() override {
        if (auto* const documento = FAplicacion.FWord->Documento()) documento->MuestraSeleccion();
    }

  private:
    TAplicacionWord& FAplicacion;
};

TAplicacionWord::TAplicacionWord(std::chrono::milliseconds paciencia)
    : FWord(std::make_unique<TWordAbierto>(nullptr, paciencia)) {}

TAplicacionWord::TAplicacionWord(IDispatch& aplicacion, std::chrono::milliseconds paciencia)
    : FWord(std::make_unique<TWordAbierto>(Comparte(&aplicacion), paciencia)) {}

TAplicacionWord::~TAplicacionWord() = default;

std::unique_ptr<TAnalisisEnCurso> TAplicacionWord::EmpiezaAnalisis() {
    return std::make_unique<TAnalisis>(*this);
}

TWordDocumentoCustom* TAplicacionWord::GetDocumentoActivo() {
    return FEnAnalisis ? FWord->Documento() : FWord->TomaDocumento();
}

std::intptr_t TAplicacionWord::Ventana() {
    return FWord->Ventana();
}

}  // namespace analizador
