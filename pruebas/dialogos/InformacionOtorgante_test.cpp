#include "dialogos/InformacionOtorgante.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "pruebas/comun/Literales.h"
#include "pruebas/dialogos/EscenaDatos.h"

namespace analizador {
namespace {

using enum TControlDatos;
using TRespuesta = TFInformacionOtorgante::TRespuesta;
using TMostrados = std::vector<std::pair<std::string, std::string>>;

const TMostrados FECHA_MAL = {{std::string(" ATENCIÓN:"_a), "La fecha introducida no es correcta"}};

std::vector<TControlDatos> Todos() {
    std::vector<TControlDatos> todos;
    for (const TDescripcionControl& control : ControlesDatos()) todos.push_back(control.Control);
    return todos;
}

class InformacionOtorgante : public testing::Test {
  protected:
    // The controls with the focus mark.
    [[nodiscard]] std::vector<TControlDatos> Marcados() const {
        std::vector<TControlDatos> marcados;
        for (const TControlDatos control : Todos())
            if (dialogo_.Control(control).ConFoco) marcados.push_back(control);
        return marcados;
    }

    [[nodiscard]] const std::string& Texto(TControlDatos control) const {
        return dialogo_.Control(control).Texto;
    }

    // Opens the dialog again, on another record.
    void Abre(const TROtorgante& otorgante) {
        otorgante_ = otorgante;
        dialogo_ = TFInformacionOtorgante(otorgante_, TEscenaDatos::HOY);
    }

    TEscenaDatos escena_;
    TROtorgante otorgante_ = OtorganteCompleto();
    TFInformacionOtorgante dialogo_{otorgante_, TEscenaDatos::HOY};
};

// ---- Focus

TEST_F(InformacionOtorgante, AbreEnElNombre) {
    for (const char* sexo : {"", "H", "M", "S"}) {
        TROtorgante otorgante = OtorganteCompleto();
        otorgante.Sexo = sexo;
        Abre(otorgante);
        EXPECT_EQ(dialogo_.Foco(), ENombre);
        EXPECT_EQ(Marcados(), std::vector{ENombre});
        EXPECT_TRUE(dialogo_.Control(ENombre).Habilitado) << sexo;
        EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
    }
}

TEST_F(InformacionOtorgante, OrdenDelFoco) {
    const std::vector<TControlDatos> orden = {
        CBSexo,        ENombre,       EApellidos,         CBTipoDocumento,
        ENumDocumento, CBEstadoCivil, CBRegimen,          EConyuge,
        CBPais_Naci,   ELugar_Naci,   CBProv_Naci,        MEFecha_Naci,
        EPadre,        EMadre,        CBTipoVia,          EDOMICILIO,
        ENUMERO,       EVECINDAD,     CBPROVINCIA,        ECODPOSTAL,
        ECODINE,       CBPais,        ECodPais,           CBNacionalid,
        CBRESIDENTE,   BLISTA,        CBIntervencion_VRK, CBIntervencion_INTI,
        BBAceptar,     BBCancelar};
    for (std::size_t i = 0; i < orden.size(); ++i) {
        const TControlDatos otro = orden[(i + 1) % orden.size()];
        EXPECT_EQ(dialogo_.Siguiente(orden[i]), otro) << i;
        EXPECT_EQ(dialogo_.Siguiente(otro, true), orden[i]) << i;
    }
}

TEST_F(InformacionOtorgante, OcultosYDeshabilitadosNoTienenFoco) {
    for (const TControlDatos oculto : {BMarcar, BDesmarcar}) {
        EXPECT_FALSE(dialogo_.Control(oculto).Visible);
        EXPECT_FALSE(dialogo_.PonFoco(oculto));
        dialogo_.Pulsa(oculto);
        EXPECT_EQ(dialogo_.Foco(), ENombre);
    }
    ASSERT_TRUE(dialogo_.PonFoco(CBSexo));
    dialogo_.Elige(CBSexo, 2);
    EXPECT_EQ(dialogo_.Siguiente(CBSexo), EApellidos);
    EXPECT_EQ(dialogo_.Siguiente(EApellidos, true), CBSexo);
    EXPECT_FALSE(dialogo_.PonFoco(ENombre));
    EXPECT_EQ(Marcados(), std::vector{CBSexo});
    EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
}

TEST_F(InformacionOtorgante, LaMarcaSigueAlFoco) {
    for (const TControlDatos control : Todos()) {
        if (!dialogo_.Control(control).Visible) continue;
        EXPECT_TRUE(dialogo_.PonFoco(control));
        EXPECT_EQ(dialogo_.Foco(), control);
        EXPECT_EQ(Marcados(), std::vector{control});
    }
    EXPECT_TRUE(dialogo_.PonFoco(BBCancelar));  // where it is
    EXPECT_EQ(Marcados(), std::vector{BBCancelar});
}

TEST_F(InformacionOtorgante, PasarPorTodosNoCambiaNada) {
    for (std::size_t i = 0; i < 2 * CONTROLES_DATOS; ++i)
        EXPECT_EQ(dialogo_.Tecla(dialogo_.Foco(), TTecla::Intro, false), TRespuesta::Tomada);
    EXPECT_EQ(dialogo_.Resultado(), std::nullopt);  // Enter passes over the buttons
    dialogo_.Pulsa(BBAceptar);
    EXPECT_EQ(otorgante_, OtorganteCompleto());
}

// ---- Sex

TEST_F(InformacionOtorgante, ElNombreSeDeshabilitaConMujer) {
    dialogo_.PonFoco(CBSexo);
    for (const int posicion : {0, 1, 2, 3, 2, 0}) {
        dialogo_.Elige(CBSexo, posicion);
        EXPECT_EQ(dialogo_.Control(ENombre).Habilitado, posicion != 2) << posicion;
        EXPECT_EQ(Texto(ENombre), "JOSE");  // not before the list is left
    }
}

TEST_F(InformacionOtorgante, DejarElSexoConMujerVaciaElNombre) {
    const struct {
        std::string_view Sexo, Nombre;
        std::string_view Queda;
    } casos[] = {{"M", "ANA", ""},     {"H", "JOSE", "JOSE"}, {"S", "JOSE", "JOSE"},
                 {"", "JOSE", "JOSE"}, {"H", "", ""},         {"M", "", ""}};
    for (const auto& [sexo, nombre, queda] : casos) {
        TROtorgante otorgante = OtorganteCompleto();
        otorgante.Sexo = sexo;
        otorgante.Nombre = nombre;
        Abre(otorgante);
        dialogo_.PonFoco(EApellidos);  // a Tab pressed first costs nobody the name
        EXPECT_EQ(Texto(ENombre), nombre);
        dialogo_.PonFoco(CBSexo);
        EXPECT_EQ(Texto(ENombre), nombre);
        dialogo_.PonFoco(EApellidos);
        EXPECT_EQ(Texto(ENombre), queda) << sexo;
        EXPECT_EQ(Marcados(), std::vector{EApellidos}) << sexo;
        EXPECT_TRUE(dialogo_.Control(ENombre).Habilitado);  // the list was left, not changed
    }
}

TEST_F(InformacionOtorgante, DejarElSexoPorUnBoton) {
    dialogo_.PonFoco(CBSexo);
    dialogo_.Elige(CBSexo, 2);
    dialogo_.Pulsa(BBAceptar);
    EXPECT_EQ(otorgante_.Sexo, "M");
    EXPECT_EQ(otorgante_.Nombre, "");
}

// ---- Country

TEST_F(InformacionOtorgante, ElPaisDaSuCodigo) {
    EXPECT_EQ(Texto(ECodPais), "250");  // loading is no change
    dialogo_.Elige(CBPais, 0);
    EXPECT_EQ(Texto(ECodPais), "068");
    EXPECT_EQ(Texto(CBPais), "BOLIVIA [068]");
    const struct {
        std::string_view Pais, Codigo;
    } casos[] = {{"FRANCIA [250]", "250"}, {"FRANCIA", ""},   {"", ""},
                 {"X [1234]", "123"},      {"X [12]", "12]"}, {"X [", ""},
                 {"X [1] [250]", "1] "},   {"X] 250", ""},    {"[724]", "724"}};
    for (const auto& [pais, codigo] : casos) {
        dialogo_.Escribe(ECodPais, "999");
        dialogo_.Escribe(CBPais, std::string(pais));
        EXPECT_EQ(Texto(ECodPais), codigo) << pais;
    }
}

TEST_F(InformacionOtorgante, CargarNoTocaElCodigoDelPais) {
    TROtorgante otorgante = OtorganteCompleto();
    otorgante.CodPais = 7;
    Abre(otorgante);
    EXPECT_EQ(Texto(ECodPais), "7");
}

TEST_F(InformacionOtorgante, UnTextoDeLaListaEsSuElemento) {
    dialogo_.Escribe(CBPROVINCIA, "MADRID [28]");
    EXPECT_EQ(dialogo_.Control(CBPROVINCIA).Elegido, 1);
    dialogo_.Escribe(CBPROVINCIA, "MADRID [2");
    EXPECT_EQ(dialogo_.Control(CBPROVINCIA).Elegido, -1);
}

TEST_F(InformacionOtorgante, ElegirLoQueNoExisteNoCambiaNada) {
    for (const int posicion : {-1, 3, 100}) {
        dialogo_.Elige(CBPais, posicion);
        EXPECT_EQ(dialogo_.Control(CBPais).Elegido, 2);
        EXPECT_EQ(Texto(CBPais), "FRANCIA [250]");
        EXPECT_EQ(Texto(ECodPais), "250");
    }
}

// ---- Date

struct TCasoFecha {
    std::string_view Escrita, Queda;
    bool Vale;
};

const TCasoFecha FECHAS[] = {{"07/03/1965", "07/03/1965", true},  {"7 /3 /1965", "07/03/1965", true},
                             {" 7/ 3/1965", "07/03/1965", true},  {"07/03/65  ", "07/03/1965", true},
                             {"07/03/24  ", "07/03/2024", true},  {"31/12/24  ", "31/12/2024", true},
                             {"07/03/25  ", "07/03/1925", true},  {"  /  /    ", "  /  /    ", true},
                             {"29/02/2000", "29/02/2000", true},  {"01/01/1900", "01/01/1900", true},
                             {"31/02/2001", "31/02/2001", false}, {"29/02/1900", "29/02/1900", false},
                             {"31/12/1899", "31/12/1899", false}, {"07/03/    ", "07/03/    ", false},
                             {"  /  /1965", "  /  /1965", false}, {"3 /  /    ", "3 /  /    ", false},
                             {"07/13/1965", "07/13/1965", false}, {"00/03/1965", "00/03/1965", false},
                             {"07/03/196 ", "07/03/196 ", false}, {"07/03/9   ", "07/03/9   ", false}};

TEST_F(InformacionOtorgante, DejarLaFechaLaComprueba) {
    for (const auto& [escrita, queda, vale] : FECHAS) {
        Abre(OtorganteCompleto());
        escena_.Mensajes.Mostrados.clear();
        dialogo_.PonFoco(MEFecha_Naci);
        dialogo_.Escribe(MEFecha_Naci, std::string(escrita));
        EXPECT_EQ(dialogo_.PonFoco(EPadre), vale) << escrita;
        EXPECT_EQ(dialogo_.Foco(), vale ? EPadre : MEFecha_Naci) << escrita;
        EXPECT_EQ(Marcados(), std::vector{vale ? EPadre : MEFecha_Naci}) << escrita;
        EXPECT_EQ(Texto(MEFecha_Naci), queda) << escrita;
        EXPECT_EQ(escena_.Mensajes.Mostrados, vale ? TMostrados{} : FECHA_MAL) << escrita;
    }
}

TEST_F(InformacionOtorgante, UnBotonQueLaFechaRechazaNoActua) {
    TVistaMunicipiosDePrueba municipios;
    const InstalaVistaMunicipios instala(municipios);
    for (const TControlDatos boton : {BBAceptar, BLISTA}) {
        Abre(OtorganteCompleto());
        escena_.Mensajes.Mostrados.clear();
        dialogo_.PonFoco(MEFecha_Naci);
        dialogo_.Escribe(MEFecha_Naci, "31/02/2001");
        dialogo_.Pulsa(boton);
        EXPECT_EQ(dialogo_.Foco(), MEFecha_Naci);
        EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
        EXPECT_EQ(municipios.Abierto, std::nullopt);
        EXPECT_EQ(otorgante_, OtorganteCompleto());
        EXPECT_EQ(escena_.Mensajes.Mostrados, FECHA_MAL);
    }
}

TEST_F(InformacionOtorgante, IntroConUnaFechaMalNoAvanza) {
    dialogo_.PonFoco(MEFecha_Naci);
    dialogo_.Escribe(MEFecha_Naci, "31/02/2001");
    EXPECT_EQ(dialogo_.Tecla(MEFecha_Naci, TTecla::Intro, false), TRespuesta::Tomada);
    EXPECT_EQ(dialogo_.Foco(), MEFecha_Naci);
    EXPECT_EQ(escena_.Mensajes.Mostrados, FECHA_MAL);
}

TEST_F(InformacionOtorgante, CancelarNoCompruebaLaFecha) {
    using TSalida = void (*)(TFInformacionOtorgante&);
    const TSalida salidas[] = {
        [](TFInformacionOtorgante& d) { d.Pulsa(BBCancelar); },
        [](TFInformacionOtorgante& d) { d.Tecla(MEFecha_Naci, TTecla::Escape, false); },
        [](TFInformacionOtorgante& d) { d.Cierra(); },
    };
    for (const TSalida salida : salidas) {
        Abre(OtorganteCompleto());
        dialogo_.PonFoco(MEFecha_Naci);
        dialogo_.Escribe(MEFecha_Naci, "31/02/2001");
        salida(dialogo_);
        EXPECT_EQ(dialogo_.Resultado(), false);
        EXPECT_EQ(Texto(MEFecha_Naci), "31/02/2001");
        EXPECT_TRUE(escena_.Mensajes.Mostrados.empty());
    }
}

// The focus can leave a wrong date by way of "&Cancelar"; it is not saved all the same.
TEST_F(InformacionOtorgante, UnaFechaMalNoSeGuardaDandoUnRodeo) {
    dialogo_.PonFoco(MEFecha_Naci);
    dialogo_.Escribe(MEFecha_Naci, "31/02/2001");
    EXPECT_TRUE(dialogo_.PonFoco(BBCancelar));
    EXPECT_TRUE(escena_.Mensajes.Mostrados.empty());
    dialogo_.Pulsa(BBAceptar);
    EXPECT_EQ(escena_.Mensajes.Mostrados, FECHA_MAL);
    EXPECT_EQ(dialogo_.Foco(), MEFecha_Naci);
    EXPECT_EQ(Marcados(), std::vector{MEFecha_Naci});
    EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
    EXPECT_EQ(otorgante_, OtorganteCompleto());
}

TEST_F(InformacionOtorgante, ActualizarDesdeLaFechaGuardaLaCompleta) {
    dialogo_.PonFoco(MEFecha_Naci);
    dialogo_.Escribe(MEFecha_Naci, "1 /2 /24  ");
    dialogo_.Pulsa(BBAceptar);
    EXPECT_EQ(otorgante_.FechaNacimiento,
              TFecha(std::chrono::year(2024), std::chrono::month(2), std::chrono::day(1)));
}

// ---- Keys

TEST_F(InformacionOtorgante, Teclas) {
    const std::vector<TControlDatos> listas = {
        CBSexo,    CBTipoDocumento, CBEstadoCivil, CBRegimen,    CBPais_Naci,        CBProv_Naci,
        CBTipoVia, CBPROVINCIA,     CBPais,        CBNacionalid, CBIntervencion_VRK, CBIntervencion_INTI};
    for (const TControlDatos control : Todos()) {
        if (!dialogo_.Control(control).Visible) continue;
        const bool esLista = std::find(listas.begin(), listas.end(), control) != listas.end();
        for (const TTecla tecla : {TTecla::Arriba, TTecla::Abajo}) {
            EXPECT_EQ(dialogo_.Tecla(control, tecla, false),
                      esLista ? TRespuesta::AbreLista : TRespuesta::NoEsMia);
            EXPECT_EQ(dialogo_.Tecla(control, tecla, true), TRespuesta::NoEsMia);
        }
        for (const TTecla tecla : {TTecla::RePag, TTecla::AvPag, TTecla::Insertar, TTecla::Suprimir})
            EXPECT_EQ(dialogo_.Tecla(control, tecla, false), TRespuesta::NoEsMia);
        EXPECT_EQ(dialogo_.Foco(), ENombre);
    }
    // With the list open Enter takes the item and Escape closes it.
    for (const TControlDatos lista : listas)
        for (const TTecla tecla : {TTecla::Intro, TTecla::Escape}) {
            EXPECT_EQ(dialogo_.Tecla(lista, tecla, true), TRespuesta::NoEsMia);
            EXPECT_EQ(dialogo_.Foco(), ENombre);
            EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
        }
}

TEST_F(InformacionOtorgante, IntroPasaAlSiguienteTambienEnBotones) {
    for (const TControlDatos control : Todos()) {
        if (!dialogo_.Control(control).Visible) continue;
        dialogo_.PonFoco(control);
        EXPECT_EQ(dialogo_.Tecla(control, TTecla::Intro, false), TRespuesta::Tomada);
        EXPECT_EQ(dialogo_.Foco(), dialogo_.Siguiente(control));
        EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
    }
}

TEST_F(InformacionOtorgante, EscapeCancelaEnCualquierControl) {
    for (const TControlDatos control : Todos()) {
        Abre(OtorganteCompleto());
        if (!dialogo_.Control(control).Visible) continue;
        dialogo_.Escribe(EApellidos, "OTROS");
        dialogo_.PonFoco(control);
        EXPECT_EQ(dialogo_.Tecla(control, TTecla::Escape, false), TRespuesta::Tomada);
        EXPECT_EQ(dialogo_.Resultado(), false);
        EXPECT_EQ(otorgante_, OtorganteCompleto());
    }
}

// ---- Closing

TEST_F(InformacionOtorgante, CancelarDejaElOtorganteComoEstaba) {
    for (const TControlDatos control : Todos()) {
        const TClaseControl clase = ControlesDatos()[static_cast<std::size_t>(control)].Clase;
        if (clase == TClaseControl::Caja) dialogo_.Escribe(control, "OTRA COSA");
        if (clase == TClaseControl::ListaFija || clase == TClaseControl::ListaEditable) {
            dialogo_.PonFoco(control);
            dialogo_.Elige(control, control == CBSexo ? 2 : 1);
        }
    }
    dialogo_.Escribe(MEFecha_Naci, "01/01/2001");
    dialogo_.Marca(true);
    dialogo_.Pulsa(BBCancelar);
    EXPECT_EQ(dialogo_.Foco(), BBCancelar);
    EXPECT_EQ(dialogo_.Resultado(), false);
    EXPECT_EQ(otorgante_, OtorganteCompleto());
}

TEST_F(InformacionOtorgante, ActualizarCierraYGuarda) {
    dialogo_.Escribe(EApellidos, "OTROS");
    dialogo_.Pulsa(BBAceptar);
    EXPECT_EQ(dialogo_.Foco(), BBAceptar);
    EXPECT_EQ(dialogo_.Resultado(), true);
    EXPECT_EQ(otorgante_.Apellidos, "OTROS");
    dialogo_.Cierra();  // the window goes
    EXPECT_EQ(dialogo_.Resultado(), true);
}

// A clerk before the dialog.
struct TVistaDePrueba : TVistaInformacion {
    std::optional<TControlDatos> Boton;
    TComponente* Propietario = nullptr;

    void MuestraModal(TFInformacionOtorgante& dialogo, TComponente* propietario) override {
        Propietario = propietario;
        dialogo.Escribe(ENombre, "PEPE");
        if (Boton) dialogo.Pulsa(*Boton);
    }
};

TEST_F(InformacionOtorgante, Muestra) {
    const struct {
        std::optional<TControlDatos> Boton;
        bool Devuelve;
        std::string_view Nombre;
    } casos[] = {{BBAceptar, true, "PEPE"}, {BBCancelar, false, "JOSE"}, {std::nullopt, false, "JOSE"}};
    EXPECT_FALSE(MuestraInformacionOtorgante(nullptr, otorgante_));  // nobody to show it
    for (const auto& [boton, devuelve, nombre] : casos) {
        TComponente ventana;
        TVistaDePrueba vista;
        vista.Boton = boton;
        const InstalaVistaInformacion instala(vista);
        TROtorgante otorgante = OtorganteCompleto();
        EXPECT_EQ(MuestraInformacionOtorgante(&ventana, otorgante), devuelve);
        EXPECT_EQ(vista.Propietario, &ventana);
        EXPECT_EQ(otorgante.Nombre, nombre);
    }
}

// ---- Municipalities

TEST_F(InformacionOtorgante, ListaINE) {
    TVistaMunicipiosDePrueba vista;
    const InstalaVistaMunicipios instala(vista);
    vista.Elige = 0;
    dialogo_.Pulsa(BLISTA);
    EXPECT_EQ(dialogo_.Foco(), BLISTA);
    EXPECT_EQ(vista.Abierto->Nombre, "OLMEDO");  // what the boxes held
    EXPECT_EQ(Texto(EVECINDAD), "A CORUÑA"_a);
    EXPECT_EQ(Texto(ECODINE), "15030");
    EXPECT_EQ(Texto(ECODPOSTAL), "15001");
    EXPECT_EQ(Texto(CBPROVINCIA), "CORUÑA [15]"_a);
    EXPECT_EQ(dialogo_.Control(CBPROVINCIA).Elegido, 0);
    EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
    dialogo_.Pulsa(BBAceptar);
    TROtorgante esperado = OtorganteCompleto();
    esperado.Vecindad = "A CORUÑA"_a;
    esperado.Provincia = "CORUÑA"_a;
    esperado.CodPostal = "15001";
    esperado.CodINE = "15030";
    EXPECT_EQ(otorgante_, esperado);
}

TEST_F(InformacionOtorgante, ListaINEAbreConLoQueAhoraHayEnLasCajas) {
    TVistaMunicipiosDePrueba vista;
    const InstalaVistaMunicipios instala(vista);
    const struct {
        TControlDatos Control;
        std::string_view Texto, Abierto;
    } casos[] = {
        {EVECINDAD, "PINTO", "PINTO"}, {ECODINE, "28161", "VALDEMORO"}, {ECODPOSTAL, "42100", "ÁGREDA"_a}};
    for (const auto& [control, texto, abierto] : casos) {
        for (const TControlDatos caja : {EVECINDAD, ECODINE, ECODPOSTAL}) dialogo_.Escribe(caja, "");
        dialogo_.Escribe(control, std::string(texto));
        dialogo_.Pulsa(BLISTA);
        EXPECT_EQ(vista.Abierto->Nombre, abierto);
        EXPECT_EQ(Texto(control), texto);  // closed: everything as it was
        EXPECT_EQ(Texto(CBPROVINCIA), "VALLADOLID [47]");
    }
}

TEST_F(InformacionOtorgante, ListaINESinTabla) {
    escena_.Tablas.Quita("MUNICIPI.DBF");
    dialogo_.Pulsa(BLISTA);
    EXPECT_EQ(escena_.Mensajes.Mostrados,
              (TMostrados{{std::string(" ATENCIÓN:"_a), "La tabla MUNICIPI.DBF no existe"}}));
    EXPECT_EQ(dialogo_.Resultado(), std::nullopt);
    dialogo_.Pulsa(BBAceptar);
    EXPECT_EQ(otorgante_, OtorganteCompleto());
}

}  // namespace
}  // namespace analizador
