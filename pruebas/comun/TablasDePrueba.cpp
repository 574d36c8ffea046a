#include "pruebas/comun/TablasDePrueba.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"

namespace analizador {

namespace {

using TColumna = std::size_t;

std::string SinBlancosFinales(std::string_view texto) {
    return std::string(texto.substr(0, texto.find_last_not_of(' ') + 1));
}

int Signo(auto a, auto b) {
    return a == b ? 0 : a < b ? -1 : 1;
}

class TTablaDePrueba : public TTabla {
  public:
    TTablaDePrueba(std::string nombre, std::shared_ptr<const TDatosDePrueba> datos, std::string_view indice)
        : nombre_(std::move(nombre)), datos_(std::move(datos)) {
        Indexa(indice);
    }

    void Primero() override { posicion_ = 0; }
    void Siguiente() override { posicion_ = std::min(posicion_ + 1, visibles_.size()); }
    [[nodiscard]] bool Fin() const override { return posicion_ == visibles_.size(); }
    [[nodiscard]] std::shared_ptr<const void> Contenido() const override { return datos_; }
    [[nodiscard]] int CuentaFilas() override { return static_cast<int>(visibles_.size()); }

    [[nodiscard]] std::string Texto(std::string_view campo) const override {
        const TColumna columna = Columna(campo);
        return Fin() ? std::string() : SinBlancosFinales(Valor(visibles_[posicion_], columna));
    }
    [[nodiscard]] int Entero(std::string_view campo) const override { return Cad_Int(Texto(campo)); }
    [[nodiscard]] bool Logico(std::string_view campo) const override { return Texto(campo) == "T"; }

    void Indexa(std::string_view indice) override {
        indice_.clear();
        if (indice == "NUMERO")
            indice_ = {Columna("NUMEROTIPO")};
        else if (indice == "ALFABETICO")
            indice_ = {Columna("PROVINCIA")};
        else if (indice == "NOMBREVIA")
            indice_ = {Columna("PROVINCIA"), Columna("VIA")};
        else if (!indice.empty())
            indice_ = {Columna(indice)};
        CancelaRango();
    }

    bool Busca(TClave clave) override {
        posicion_ = 0;
        while (!Fin() && !(!indice_.empty() && ComparaClave(visibles_[posicion_], clave) == 0)) ++posicion_;
        return !Fin();
    }

    bool Rango(TClave desde, TClave hasta) override {
        if (indice_.empty()) return false;
        CancelaRango();
        std::erase_if(enRango_, [&](std::size_t fila) {
            return ComparaClave(fila, desde) < 0 || ComparaClave(fila, hasta) > 0;
        });
        AplicaFiltro();
        return true;
    }

    void CancelaRango() override {
        enRango_.resize(datos_->Filas.size());
        std::iota(enRango_.begin(), enRango_.end(), std::size_t{0});
        std::stable_sort(enRango_.begin(), enRango_.end(),
                         [&](std::size_t a, std::size_t b) { return Antes(a, b); });
        AplicaFiltro();
    }

    void Filtra(std::string_view condicion) override {
        filtro_.reset();
        if (!condicion.empty()) {
            const auto signo = condicion.find_first_of("<=");
            if (signo == std::string_view::npos) throw ErrorTabla(nombre_ + ": " + std::string(condicion));
            const bool distinto = condicion.substr(signo, 2) == "<>";
            const auto valor = EnteroDeCadena(condicion.substr(signo + (distinto ? 2 : 1)));
            if (!valor) throw ErrorTabla(nombre_ + ": " + std::string(condicion));
            filtro_ = {Columna(Recorta(condicion.substr(0, signo))), *valor, distinto};
        }
        AplicaFiltro();
    }

  private:
    struct TFiltro {
        TColumna Campo;
        int Valor;
        bool Distinto;
    };

    [[nodiscard]] TColumna Columna(std::string_view campo) const {
        const auto& campos = datos_->Campos;
        const auto donde = std::find(campos.begin(), campos.end(), AnsiUpperCase(campo));
        if (donde == campos.end()) throw ErrorTabla(nombre_ + " no tiene el campo " + std::string(campo));
        return static_cast<TColumna>(donde - campos.begin());
    }

    [[nodiscard]] const std::string& Valor(std::size_t fila, TColumna columna) const {
        return datos_->Filas[fila].at(columna);
    }

    [[nodiscard]] bool SonNumeros(TColumna columna) const {
        return std::all_of(datos_->Filas.begin(), datos_->Filas.end(),
                           [&](const auto& fila) { return EnteroDeCadena(fila.at(columna)).has_value(); });
    }

    [[nodiscard]] bool Antes(std::size_t a, std::size_t b) const {
        for (const TColumna columna : indice_)
            if (const int orden = ComparaValor(columna, Valor(a, columna), Valor(b, columna)); orden != 0)
                return orden < 0;
        return false;
    }

    [[nodiscard]] int ComparaValor(TColumna columna, std::string_view a, std::string_view b) const {
        if (SonNumeros(columna) && EnteroDeCadena(b)) return Signo(Cad_Int(a), Cad_Int(b));
        return Signo(Pliega(SinBlancosFinales(a)), Pliega(SinBlancosFinales(b)));
    }

    [[nodiscard]] int ComparaClave(std::size_t fila, TClave clave) const {
        std::size_t parte = 0;
        for (const TParteClave& buscada : clave) {
            const TColumna columna = indice_.at(parte++);
            const std::string& valor = Valor(fila, columna);
            const int* const numero = std::get_if<int>(&buscada.Valor);
            const int orden = numero == nullptr
                                  ? ComparaValor(columna, valor, std::get<std::string_view>(buscada.Valor))
                              : EnteroDeCadena(valor) ? Signo(Cad_Int(valor), *numero)
                                                      : -1;
            if (orden != 0) return orden;
        }
        return 0;
    }

    void AplicaFiltro() {
        visibles_ = enRango_;
        if (filtro_)
            std::erase_if(visibles_, [&](std::size_t fila) {
                return (Cad_Int(Valor(fila, filtro_->Campo)) == filtro_->Valor) == filtro_->Distinto;
            });
        Primero();
    }

    std::string nombre_;
    std::shared_ptr<const TDatosDePrueba> datos_;
    std::vector<TColumna> indice_;
    std::vector<std::size_t> enRango_;   // rows in the order of the index
    std::vector<std::size_t> visibles_;  // those of them that the filter lets through
    std::optional<TFiltro> filtro_;
    std::size_t posicion_ = 0;
};

}  // namespace

void TTablasDePrueba::Pon(std::string fichero, TDatosDePrueba datos) {
    tablas_[std::move(fichero)] = std::make_shared<const TDatosDePrueba>(std::move(datos));
}

void TTablasDePrueba::Quita(std::string_view fichero) {
    const auto donde = tablas_.find(fichero);
    if (donde != tablas_.end()) tablas_.erase(donde);
}

std::unique_ptr<TTabla> TTablasDePrueba::Abre(std::string_view alias, std::string_view fichero,
                                              std::string_view indice) {
    if (alias != alias_) throw ErrorTabla("El alias " + std::string(alias) + " no existe");
    const auto donde = tablas_.find(fichero);
    if (donde == tablas_.end()) throw ErrorTabla("La tabla " + std::string(fichero) + " no existe");
    return std::make_unique<TTablaDePrueba>(donde->first, donde->second, indice);
}

}  // namespace analizador
