#include "programas/analiza/Lote.h"

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "programas/analiza/Senales.h"

namespace analizador {

namespace {

constexpr std::size_t EN_CAMINO_POR_HILO = 4;

struct TTarea {
    std::filesystem::path Escritura;
    std::optional<TResultado> Resultado{};
};

// The deeds on their way, in order: delivered ones leave at the front, new ones come at the back.
class TCinta {
  public:
    TCinta(const TLote& lote, unsigned hilos) : FLote(lote), FCabida(EN_CAMINO_POR_HILO * hilos) {}

    // The thread that runs the batch: takes deed after deed. Never throws.
    void Abastece();
    // A thread that analyses, until there is no more. Never throws.
    void Trabaja();

    // Throws what ended the batch, once all threads have.
    void Concluye() const {
        if (FFallo) std::rethrow_exception(FFallo);
    }

  private:
    using TTurno = std::unique_lock<std::mutex>;

    [[nodiscard]] TTarea* Empieza(TTurno& turno);
    void EntregaLosPrimeros(TTurno& turno);
    void Abandona(std::exception_ptr fallo);

    const TLote& FLote;
    const std::size_t FCabida;

    std::mutex FCerrojo;
    std::condition_variable FHayTarea;
    std::condition_variable FHaySitio;
    std::deque<TTarea> FTareas;  // its ends move; what is in it stays where it is
    std::size_t FEmpezadas = 0;  // of FTareas, from the front
    bool FEntregando = false;
    bool FNoHayMas = false;
    std::exception_ptr FFallo;
};

void TCinta::Abastece() {
    try {
        for (auto escritura = FLote.Siguiente(); escritura; escritura = FLote.Siguiente()) {
            TTurno turno(FCerrojo);
            FHaySitio.wait(turno, [&] { return FTareas.size() < FCabida || FFallo; });
            if (FFallo) break;
            FTareas.push_back({std::move(*escritura)});
            FHayTarea.notify_one();
        }
    } catch (...) {
        Abandona(std::current_exception());
    }
    const TTurno turno(FCerrojo);
    FNoHayMas = true;
    FHayTarea.notify_all();
}

void TCinta::Trabaja() {
    TTurno turno(FCerrojo);
    while (TTarea* tarea = Empieza(turno)) {
        turno.unlock();
        try {
            auto resultado = FLote.Analiza(tarea->Escritura);
            turno.lock();
            tarea->Resultado = std::move(resultado);
            EntregaLosPrimeros(turno);
        } catch (...) {
            if (turno.owns_lock()) turno.unlock();
            Abandona(std::current_exception());
            turno.lock();
        }
    }
}

// The next one that nobody has begun; nullptr at the end.
TTarea* TCinta::Empieza(TTurno& turno) {
    FHayTarea.wait(turno, [&] { return FEmpezadas < FTareas.size() || FNoHayMas || FFallo; });
    if (FFallo || FEmpezadas == FTareas.size()) return nullptr;
    return &FTareas[FEmpezadas++];
}

// One thread delivers while the others go on analysing.
void TCinta::EntregaLosPrimeros(TTurno& turno) {
    if (FEntregando) return;
    FEntregando = true;
    while (!FFallo && !FTareas.empty() && FTareas.front().Resultado) {
        TTarea primera = std::move(FTareas.front());
        FTareas.pop_front();
        --FEmpezadas;
        // Woken for each deed, the thread that brings them would put one that analyses off its processor.
        if (FTareas.size() == FCabida / 2) FHaySitio.notify_one();
        turno.unlock();
        FLote.Entrega(primera.Escritura, std::move(*primera.Resultado));
        turno.lock();
    }
    FEntregando = false;
}

void TCinta::Abandona(std::exception_ptr fallo) {
    const TTurno turno(FCerrojo);
    if (!FFallo) FFallo = std::move(fallo);
    FHayTarea.notify_all();
    FHaySitio.notify_all();
}

// A signal is for the thread that waits for names, never for one that writes. Where the system gives fewer
// threads, those do it.
std::vector<std::jthread> Contrata(TCinta& cinta, unsigned hilos) {
    const TSenalesAparte aparte;
    std::vector<std::jthread> trabajadores;
    try {
        while (trabajadores.size() < hilos) trabajadores.emplace_back([&] { cinta.Trabaja(); });
    } catch (const std::system_error&) {
        if (trabajadores.empty()) throw;
    }
    return trabajadores;
}

}  // namespace

void EjecutaLote(const TLote& lote, unsigned hilos) {
    TCinta cinta(lote, hilos);
    {
        const auto trabajadores = Contrata(cinta, hilos);
        cinta.Abastece();
    }
    cinta.Concluye();
}

}  // namespace analizador
