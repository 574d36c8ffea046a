#pragma once

// Word as the word processor of the analysis. Nothing here needs Windows' headers.

#include <chrono>
#include <cstdint>
#include <memory>

#include "plataforma/VrkWord.h"

struct IDispatch;

namespace analizador {

class TWordAbierto;

// The Word that the user has open. Used from one thread, the one with the windows. ErrorWord carries Word's
// own explanation, never text of the deed.
class TAplicacionWord : public TWordApplicationConDocumentos {
  public:
    // How long a call is repeated while Word is too busy to take it (a dialog of its own is open).
    static constexpr std::chrono::milliseconds PACIENCIA{10'000};

    // The Word that is running when an analysis begins. Of several, the one that was started first.
    explicit TAplicacionWord(std::chrono::milliseconds paciencia = PACIENCIA);
    // The Word whose Application object this is; shared.
    explicit TAplicacionWord(IDispatch& aplicacion, std::chrono::milliseconds paciencia = PACIENCIA);
    ~TAplicacionWord() override;
    TAplicacionWord(const TAplicacionWord&) = delete;
    TAplicacionWord& operator=(const TAplicacionWord&) = delete;

    // Keeps the document that is active now, its selection, and nothing of Word's after the result is gone.
    // Throws ErrorWord when Word is not open.
    [[nodiscard]] std::unique_ptr<TAnalisisEnCurso> EmpiezaAnalisis() override;

    // During an analysis, its document; otherwise the one that is active now, with the user's selection as it
    // is now, valid until the next call. Nullptr when Word has none open. Throws ErrorWord when Word is not
    // open.
    [[nodiscard]] TWordDocumentoCustom* GetDocumentoActivo() override;

    // The window that is active in Word, as the number of its HWND; 0 when there is none or this Word does
    // not tell it (those before 2013). Throws ErrorWord when Word is not open or stays busy.
    [[nodiscard]] std::intptr_t Ventana();

  private:
    class TAnalisis;

    std::unique_ptr<TWordAbierto> FWord;
    bool FEnAnalisis = false;
};

}  // namespace analizador
