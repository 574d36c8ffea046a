#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "adaptadores/memoria/DocumentoMemoria.h"
#include "analizador/ClaseAnalizadorAbierto.h"
#include "dialogos/ListaConceptosPreseleccionados.h"
#include "plataforma/Pantalla.h"
#include "pruebas/comun/ConfigDePrueba.h"
#include "pruebas/comun/TablasDePrueba.h"
#include "pruebas/comun/VocabularioDePrueba.h"

namespace analizador {

// What happened during an analysis, in order.
using TDiario = std::vector<std::string>;

// A document that writes down what is asked of it and can be told to fail.
class TDocumentoGrabado : public TWordDocumentoCustom {
  public:
    TDocumentoGrabado(TContenidoDocumento contenido, TDiario& diario)
        : FReal(std::move(contenido)), FDiario(diario) {}

    // The operation of this name (and, for a bookmark, this argument) fails from now on; "" none.
    void FallaEn(std::string operacion) { FFallo = std::move(operacion); }
    [[nodiscard]] int Operaciones() const { return FOperaciones; }
    // The n-th operation (from 1) from now on fails; 0 none.
    void FallaEnLaOperacion(int n) {
        FFalloNumero = n;
        FOperaciones = 0;
    }

    [[nodiscard]] std::string GetTexto() const override { return Anota("GetTexto"), FReal.GetTexto(); }
    [[nodiscard]] TSeleccion& GetSeleccion() override { return Anota("GetSeleccion"), FReal.GetSeleccion(); }
    void IrAlInicioDocumento() override { Anota("IrAlInicioDocumento"), FReal.IrAlInicioDocumento(); }
    void IrAlFinalDocumento() override { Anota("IrAlFinalDocumento"), FReal.IrAlFinalDocumento(); }
    bool Busca(std::string_view texto, const TOpcionesBusqueda& opciones) override {
        Anota("Busca");
        Busquedas.emplace_back(texto, opciones);
        return FReal.Busca(texto, opciones);
    }
    [[nodiscard]] std::string GetTexto(TIntervalo intervalo) const override {
        return Anota("GetTexto"), FReal.GetTexto(intervalo);
    }
    [[nodiscard]] std::vector<std::string> GetParrafos(TIntervalo intervalo) const override {
        return Anota("GetParrafos"), FReal.GetParrafos(intervalo);
    }
    [[nodiscard]] int GetNumeroParrafo(int posicion) const override {
        return Anota("GetNumeroParrafo"), FReal.GetNumeroParrafo(posicion);
    }
    [[nodiscard]] std::string VariableValor(std::string_view nombre) const override {
        return Anota("VariableValor"), FReal.VariableValor(nombre);
    }
    TMarcador NuevoMarcador(std::string_view nombre, bool reemplaza) override {
        Anota("NuevoMarcador");
        FDiario.push_back("marcador " + std::string(nombre) + (reemplaza ? "" : " sin reemplazar"));
        return FReal.NuevoMarcador(nombre, reemplaza);
    }
    [[nodiscard]] std::vector<TMarcador> GetMarcadores() const override {
        return Anota("GetMarcadores"), FReal.GetMarcadores();
    }

    std::vector<std::pair<std::string, TOpcionesBusqueda>> Busquedas;

  private:
    void Anota(const std::string& operacion) const {
        ++FOperaciones;
        if (operacion == FFallo || FOperaciones == FFalloNumero) throw ErrorWord("fallo de " + operacion);
    }

    TDocumentoMemoria FReal;
    TDiario& FDiario;
    std::string FFallo;
    int FFalloNumero = 0;
    mutable int FOperaciones = 0;
};

// A screen that writes down its messages.
class TPantallaGrabada : public TPantalla {
  public:
    explicit TPantallaGrabada(TDiario& diario) : FDiario(diario) {}
    [[nodiscard]] std::unique_ptr<TVentanaMensaje> Abre(std::string_view texto,
                                                        TComponente* propietario) override {
        Propietario = propietario;
        FDiario.push_back("abre " + std::string(texto));
        return std::make_unique<TVentana>(FDiario);
    }
    TComponente* Propietario = nullptr;

  private:
    class TVentana : public TVentanaMensaje {
      public:
        explicit TVentana(TDiario& diario) : FDiario(diario) {}
        ~TVentana() override { FDiario.emplace_back("cierra"); }
        TVentana(const TVentana&) = delete;
        TVentana& operator=(const TVentana&) = delete;
        void Cambia(std::string_view texto) override { FDiario.push_back("dice " + std::string(texto)); }

      private:
        TDiario& FDiario;
    };
    TDiario& FDiario;
};

// A review answered beforehand, which keeps what it was shown.
class TRevisorDePrueba : public TVistaPreseleccion {
  public:
    explicit TRevisorDePrueba(TDiario& diario) : FDiario(diario) {}
    [[nodiscard]] bool MuestraModal(TFListaConceptosPreseleccionados& dialogo,
                                    TComponente* propietario) override {
        FDiario.emplace_back("dialogo");
        Propietario = propietario;
        Informe = dialogo.Informe();
        Xml = dialogo.Xml();
        for (const auto& linea : dialogo.LBOtorgantes.Lineas()) Propuestos.push_back(linea.Texto);
        for (const auto& linea : dialogo.LBPosiblesOtorgantes.Lineas()) NoPropuestos.push_back(linea.Texto);
        if (Hace) Hace(dialogo);
        if (!Acepta) return false;
        dialogo.LBPosiblesConceptos.SeleccionaTodo();
        dialogo.Pulsa(TControlPreseleccion::BMas);
        dialogo.Pulsa(TControlPreseleccion::BContinuar);
        return dialogo.Resultado().value_or(false);
    }
    bool Acepta = false;
    std::function<void(TFListaConceptosPreseleccionados&)> Hace;  // what the user does before that
    TComponente* Propietario = nullptr;
    std::string Informe, Xml;
    std::vector<std::string> Propuestos, NoPropuestos;

  private:
    TDiario& FDiario;
};

// A notary dialog answered beforehand.
class TSelectorDePrueba : public TCreadorSeleccionaNotario {
  public:
    explicit TSelectorDePrueba(TDiario& diario) : FDiario(diario) {}
    [[nodiscard]] std::unique_ptr<TFSeleccionaNotario> Crea() override {
        class TDialogo : public TFSeleccionaNotario {
          public:
            explicit TDialogo(TDiario& diario) : FDiario(diario), FEntradas(Config().GetNotarios()) {}
            void PonTitulo(std::string_view /*titulo*/) override {}
            [[nodiscard]] const std::vector<std::string>& Entradas() const override { return FEntradas; }
            [[nodiscard]] int Seleccionada() const override { return FSeleccionada; }
            void Selecciona(int posicion) override { FSeleccionada = posicion; }
            void MuestraModal() override { FDiario.emplace_back("notario"); }

          private:
            TDiario& FDiario;
            std::vector<std::string> FEntradas;
            int FSeleccionada = -1;
        };
        return std::make_unique<TDialogo>(FDiario);
    }

  private:
    TDiario& FDiario;
};

// The text of a document from its paragraphs.
inline std::string Parrafos(const std::vector<std::string_view>& parrafos) {
    std::string texto;
    for (const auto parrafo : parrafos) texto.append(parrafo).append("\r");
    return texto;
}

// Everything an analysis needs around it, with a vocabulary and tables just large enough to read by eye.
class TEscena {
  public:
    explicit TEscena(const std::vector<std::string_view>& parrafos, std::vector<TVariable> variables = {},
                     std::vector<TMarcador> marcadores = {});

    [[nodiscard]] TDocumentoGrabado& Documento() { return *FDocumento; }
    // From now on nobody reviews.
    void QuitaRevisor() { FInstalaRevisor.reset(); }

    TDiario Diario;
    TVocabularioDePrueba Vocabulario;
    TTablasDePrueba Tablas;
    TConfigDePrueba Configuracion;
    TPantallaGrabada Pantalla{Diario};
    TRevisorDePrueba Revisor{Diario};
    TSelectorDePrueba Selector{Diario};

  private:
    InstalaTablas FInstalaTablas{Tablas};
    InstalaConfig FInstalaConfig{Configuracion};
    InstalaPantalla FInstalaPantalla{Pantalla};
    std::optional<InstalaVistaPreseleccion> FInstalaRevisor{std::in_place, Revisor};
    InstalaSeleccionaNotario FInstalaSelector{Selector};
    TDocumentoGrabado* FDocumento;

  public:
    TAplicacionMemoria Aplicacion;
    TClassAnalizadorAbierto Sesion{nullptr, &Aplicacion};

  private:
    [[nodiscard]] std::unique_ptr<TWordDocumentoCustom> Crea(TContenidoDocumento contenido);
};

}  // namespace analizador
