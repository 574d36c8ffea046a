#include "adaptadores/docx/ComposicionDocx.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "plataforma/Ansi.h"

namespace analizador {

namespace {

constexpr char16_t FIN_PARRAFO = 13;
constexpr char16_t FIN_CELDA = 7;

// Which field events belong to a field that both begins and ends.
std::vector<bool> CamposCompletos(const std::vector<TSuceso>& sucesos) {
    struct TAbierto {
        std::size_t Inicio;
        std::optional<std::size_t> Medio;
    };
    std::vector<bool> completos(sucesos.size());
    std::vector<TAbierto> abiertos;
    for (std::size_t i = 0; i < sucesos.size(); ++i) {
        const auto tipo = sucesos[i].Tipo;
        if (tipo == TipoSuceso::InicioCampo) abiertos.push_back({i, std::nullopt});
        if (abiertos.empty()) continue;
        if (tipo == TipoSuceso::MedioCampo && !abiertos.back().Medio) abiertos.back().Medio = i;
        if (tipo != TipoSuceso::FinCampo) continue;
        completos[abiertos.back().Inicio] = completos[i] = true;
        if (const auto medio = abiertos.back().Medio) completos[*medio] = true;
        abiertos.pop_back();
    }
    return completos;
}

// Control characters have no place in a text; the tabulator alone is one of them that the format knows.
char16_t SinControl(char16_t unidad) {
    return unidad < u' ' && unidad != u'\t' ? u' ' : unidad;
}

class TCompositor {
  public:
    explicit TCompositor(const std::vector<TSuceso>& sucesos)
        : Sucesos(sucesos), Completos(CamposCompletos(sucesos)) {}

    TComposicion Compone() {
        for (std::size_t i = 0; i < Sucesos.size(); ++i) Procesa(i);
        QuitaRepetidos();
        return std::move(Hecho);
    }

  private:
    void Procesa(std::size_t i) {
        const auto& suceso = Sucesos[i];
        switch (suceso.Tipo) {
            case TipoSuceso::InicioCampo:
            case TipoSuceso::MedioCampo:
            case TipoSuceso::FinCampo:
                if (Completos[i]) Campo(suceso.Tipo);
                return;
            case TipoSuceso::InicioMarcador:
                return AbreMarcador(suceso.Nodo);
            case TipoSuceso::FinMarcador:
                return CierraMarcador(suceso.Nodo);
            case TipoSuceso::InicioFila:
                return IniciaFila(i);
            case TipoSuceso::FinFila:
                return TerminaFila(i);
            case TipoSuceso::InicioCelda:
                return Celdas.push_back(Hecho.Texto.size());
            case TipoSuceso::FinCelda:
                return TerminaCelda(i);
            default:
                if (EsVisible(i)) ProcesaVisible(i);
        }
    }

    [[nodiscard]] bool EsVisible(std::size_t i) const { return Sucesos[i].Visible && CodigosAbiertos == 0; }

    void ProcesaVisible(std::size_t i) {
        const auto& suceso = Sucesos[i];
        switch (suceso.Tipo) {
            case TipoSuceso::Texto:
                return Texto(i);
            case TipoSuceso::Caracter:
                return Emite(i, {&suceso.Caracter, 1}, true);
            case TipoSuceso::FinParrafo:
                return Emite(i, {&FIN_PARRAFO, 1}, false);
            case TipoSuceso::FinCuerpo:
                if (Abierto || !Hecho.Texto.ends_with(FIN_PARRAFO)) Emite(i, {&FIN_PARRAFO, 1}, false);
                return;
            default:
                return;
        }
    }

    // `abre`: a paragraph is open after it.
    void Emite(std::size_t i, std::u16string_view texto, bool abre) {
        if (texto.empty()) return;
        Hecho.Fuentes.push_back({Posicion(), static_cast<std::uint32_t>(i)});
        Hecho.Texto += texto;
        Abierto = abre;
    }

    [[nodiscard]] int Posicion() const { return static_cast<int>(Hecho.Texto.size()); }

    void Texto(std::size_t i) {
        const auto& suceso = Sucesos[i];
        const std::string_view valor = suceso.Nodo.value();
        auto texto = Utf16DeUtf8(valor.substr(suceso.Desde, suceso.Hasta - suceso.Desde));
        std::ranges::transform(texto, texto.begin(), SinControl);
        Emite(i, texto, true);
    }

    // A paragraph whose mark is hidden cannot be joined with a table.
    void IniciaFila(std::size_t i) {
        if (Abierto && EsVisible(i)) Emite(i, {&FIN_PARRAFO, 1}, false);
        FilasConCeldas.push_back(false);
    }

    void TerminaFila(std::size_t i) {
        const bool conCeldas = FilasConCeldas.back();
        FilasConCeldas.pop_back();
        if (conCeldas && EsVisible(i)) Emite(i, u"\r\a", false);
    }

    // The cell's mark takes the place of its last paragraph's, which may have been given already.
    void TerminaCelda(std::size_t i) {
        const auto inicio = Celdas.back();
        Celdas.pop_back();
        if (!EsVisible(i)) return;
        if (!FilasConCeldas.empty()) FilasConCeldas.back() = true;
        if (Abierto || Hecho.Texto.size() == inicio || !Hecho.Texto.ends_with(FIN_PARRAFO))
            return Emite(i, u"\r\a", false);
        const int trasParrafo = Posicion();
        Emite(i, {&FIN_CELDA, 1}, false);
        MueveLimites(trasParrafo);
    }

    // Bookmarks that begin or end after a cell's last paragraph do so after the cell's mark.
    void MueveLimites(int posicion) {
        for (auto i = Limites.size(); i > 0 && *Limite(Limites[i - 1]) == posicion; --i)
            ++*Limite(Limites[i - 1]);
    }

    void Campo(TipoSuceso tipo) {
        if (tipo == TipoSuceso::InicioCampo) {
            EnCodigo.push_back(true);
            ++CodigosAbiertos;
            return;
        }
        if (EnCodigo.back()) --CodigosAbiertos;
        EnCodigo.back() = false;
        if (tipo == TipoSuceso::FinCampo) EnCodigo.pop_back();
    }

    // A start or an end of a bookmark already read, in the order of reading.
    struct TLimite {
        std::size_t Marcador;
        bool EsFin;
    };

    [[nodiscard]] int* Limite(const TLimite& limite) {
        auto& intervalo = Leidos[limite.Marcador].Intervalo;
        return limite.EsFin ? &intervalo.Fin : &intervalo.Inicio;
    }

    void AbreMarcador(pugi::xml_node nodo) {
        Abiertos[nodo.attribute("id").value()] = Leidos.size();
        Limites.push_back({Leidos.size(), false});
        Leidos.push_back({AnsiDeUtf8(nodo.attribute("name").value()), {Posicion(), Posicion()}});
        Cerrados.push_back(false);
    }

    void CierraMarcador(pugi::xml_node nodo) {
        const auto it = Abiertos.find(nodo.attribute("id").value());
        if (it == Abiertos.end()) return;
        Leidos[it->second].Intervalo.Fin = Posicion();
        Cerrados[it->second] = true;
        Limites.push_back({it->second, true});
        Abiertos.erase(it);
    }

    void QuitaRepetidos() {
        std::unordered_set<std::string> nombres;
        for (std::size_t i = 0; i < Leidos.size(); ++i)
            if (Cerrados[i] && nombres.insert(AnsiUpperCase(Leidos[i].Nombre)).second)
                Hecho.Marcadores.push_back(std::move(Leidos[i]));
    }

    const std::vector<TSuceso>& Sucesos;
    std::vector<bool> Completos;
    TComposicion Hecho;
    bool Abierto = false;              // the text ends in the middle of a paragraph
    std::vector<bool> FilasConCeldas;  // of each open row, whether any of its cells counts
    std::vector<std::size_t> Celdas;   // length of the text where each open cell began
    std::vector<bool> EnCodigo;        // of each open field, whether its result is still to come
    int CodigosAbiertos = 0;
    std::vector<TMarcador> Leidos;
    std::vector<bool> Cerrados;
    std::vector<TLimite> Limites;
    std::unordered_map<std::string_view, std::size_t> Abiertos;  // by identifier
};

}  // namespace

TComposicion Compone(const std::vector<TSuceso>& sucesos) {
    return TCompositor(sucesos).Compone();
}

}  // namespace analizador
