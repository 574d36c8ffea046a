#pragma once

// What every call from a host has in common: nothing is thrown, the reason of a failure is kept, and the
// host's floating-point settings (some trap what is harmless here) are put aside.

#include <array>
#include <atomic>
#include <cfenv>
#include <cstddef>
#include <exception>
#include <new>
#include <type_traits>

#include "adaptadores/ini/ConfigIni.h"
#include "programas/biblioteca/ErrorInterfaz.h"
#include "programas/biblioteca/Sesion.h"
#include "programas/biblioteca/analizador.h"

namespace analizador {

// Why the last call failed, in both encodings; empty when it did not. There is one for each thread, and the
// code that would destroy it may be gone, or (MinGW) come after its memory: so it has nothing to destroy.
class TMotivo {
  public:
    void Olvida() noexcept;
    // On one line; what is longer than a host shows is cut at a letter. Without memory a fixed text stands
    // for it.
    void Pon(const char* motivo) noexcept;

    [[nodiscard]] const char* Texto() const { return FTexto.data(); }
    [[nodiscard]] const analizador_utf16* Texto16() const { return FTexto16.data(); }

  private:
    static constexpr std::size_t MAXIMO = 4096;  // units, with the zero
    std::array<char, MAXIMO> FTexto{};
    std::array<analizador_utf16, MAXIMO> FTexto16{};
};
static_assert(std::is_trivially_destructible_v<TMotivo>);

// That of the calls of this thread that have no session.
[[nodiscard]] TMotivo& MotivoDelHilo();

}  // namespace analizador

struct analizador_sesion {
    explicit analizador_sesion(const analizador::TCarpetas& carpetas) : Sesion(carpetas) {}

    analizador::TSesionAnfitrion Sesion;
    analizador::TMotivo Motivo;
    std::atomic<bool> EnLlamada = false;
};

namespace analizador {

class TComaFlotantePropia {
  public:
    TComaFlotantePropia() {
        std::fegetenv(&FDelAnfitrion);
        std::fesetenv(FE_DFL_ENV);
    }
    ~TComaFlotantePropia() { std::fesetenv(&FDelAnfitrion); }
    TComaFlotantePropia(const TComaFlotantePropia&) = delete;
    TComaFlotantePropia& operator=(const TComaFlotantePropia&) = delete;

  private:
    std::fenv_t FDelAnfitrion{};
};

// Runs `accion`; the code of its failure, whose reason goes to `motivo`, or ANALIZADOR_BIEN.
template <class TAccion>
int Llama(TMotivo& motivo, TAccion accion) noexcept {
    const TComaFlotantePropia propia;
    motivo.Olvida();
    try {
        accion();
        return ANALIZADOR_BIEN;
    } catch (const ErrorInterfaz& error) {
        motivo.Pon(error.what());
        return error.Codigo();
    } catch (const ErrorConfiguracion& error) {
        motivo.Pon(error.what());
        return ANALIZADOR_CONFIGURACION;
    } catch (const std::bad_alloc&) {
        motivo.Pon("no hay memoria");
    } catch (const std::exception& error) {
        motivo.Pon(error.what());
    } catch (...) {
        motivo.Pon("fallo inesperado");
    }
    return ANALIZADOR_FALLO;
}

// A session's turn for one call, when no other call has it: another thread's, or one that waits for Word
// while the host goes on.
class TTurno {
  public:
    explicit TTurno(analizador_sesion& sesion) : FSesion(sesion), FEsSuyo(!sesion.EnLlamada.exchange(true)) {}
    ~TTurno() {
        if (FEsSuyo) FSesion.EnLlamada = false;
    }
    TTurno(const TTurno&) = delete;
    TTurno& operator=(const TTurno&) = delete;

    [[nodiscard]] bool EsSuyo() const { return FEsSuyo; }

  private:
    analizador_sesion& FSesion;
    bool FEsSuyo;
};

// A call that no session takes; its reason is the thread's.
inline int Rechaza(const char* motivo) noexcept {
    return Llama(MotivoDelHilo(), [=] { throw ErrorInterfaz(ANALIZADOR_MAL_USO, motivo); });
}

// The same with the session of a call, which may be null or busy.
template <class TAccion>
int LlamaSesion(analizador_sesion* sesion, TAccion accion) noexcept {
    if (sesion == nullptr) return Rechaza("la sesión es nula");
    const TTurno turno(*sesion);
    if (!turno.EsSuyo()) return Rechaza("la sesión está ocupada con otra llamada");
    return Llama(sesion->Motivo, [&] { accion(sesion->Sesion); });
}

}  // namespace analizador
