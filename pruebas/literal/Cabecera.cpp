#include "analizador/ConstAnalizador.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "pruebas/literal/Cortes.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

using namespace pruebas;

namespace {

constexpr TModoBusqueda POR_ORDEN{.PrimeraEntrada = true};

// The first deed type one of whose names' words is the word; the table is at its end when there is none.
void BuscaTipo(TTabla& tipos, const std::string& palabra) {
    for (tipos.Primero(); !tipos.Fin(); tipos.Siguiente()) {
        const std::string nombre = tipos.Texto("NOMBRE");
        for (TPalabra parte = PrimeraPalabra(nombre); !parte.Palabra.empty();
             parte = PrimeraPalabra(parte.Resto))
            if (Pliega(parte.Palabra) == palabra) return;
    }
}

}  // namespace

std::vector<Tramo> BuscaConceptos(std::string_view parrafo, ListaTextos<TRConcepto>& lista) {
    const auto tipos = CreaTabla(Config().GetAliasNorvex(), "TIPOS.DBF", "", true, false);
    std::string texto = QuitaCaracteres(parrafo, ".\t\r");
    for (char& c : texto)
        if (c == '-') c = ' ';
    texto = Pliega(texto);
    std::vector<Tramo> tramos;
    for (TPalabra palabra = PrimeraPalabra(texto); !palabra.Palabra.empty();
         palabra = PrimeraPalabra(palabra.Resto)) {
        if (palabra.Palabra == "ESCRITURA" || palabra.Palabra.size() <= 3) continue;
        BuscaTipo(*tipos, std::string(palabra.Palabra));
        if (tipos->Fin() || lista.Contiene(tipos->Texto("NOMBRE"))) continue;
        lista.Anade(tipos->Texto("NOMBRE"), std::make_unique<TRConcepto>(TRConcepto{
                                                tipos->Entero("NUMEROTIPO"), tipos->Texto("NOMBRE"),
                                                tipos->Texto("COD_OFICIA"), tipos->Logico("PRESTAMO")}));
        tramos.emplace_back();
    }
    return tramos;
}

std::vector<Tramo> BuscaCuantias(std::string_view parrafo, std::vector<std::string>& lista) {
    std::string texto = Pliega(parrafo);
    for (char& c : texto)
        if (c == '\'') c = ',';
    std::vector<Tramo> tramos;
    for (TToken euro = ContieneToken("EURO", texto, {.Plegado = false}); euro.Posicion != 0;
         euro = ContieneToken("EURO", texto, {.Plegado = false})) {
        std::string cantidad(RecortaDerecha(StrLeft(texto, euro.Posicion - 1)));
        cantidad = cantidad.substr(cantidad.find_last_of(" \t\r\n") + 1);
        if (cantidad.starts_with('(')) cantidad.erase(0, 1);
        if (cantidad.ends_with(')')) cantidad.pop_back();
        cantidad = QuitaCaracteres(cantidad, ".-");
        bool nueva = Cad_Float(cantidad) > 0;
        for (const std::string& otra : lista) nueva = nueva && otra != cantidad;
        if (nueva) {
            lista.push_back(cantidad);
            tramos.emplace_back();
        }
        texto = Desde(texto, euro.Posicion + Largo(euro.Entrada));
    }
    return tramos;
}

THallazgo<int> BuscaNumeroProtocolo(std::string_view parrafo) {
    const std::string texto = QuitaCaracteres(parrafo, "\t\r");
    const TToken frase = ContieneToken("NUMERO", texto);
    if (frase.Posicion == 0) return {};
    const std::string resto(StrRight(texto, Largo(texto) - frase.Posicion - Largo(frase.Entrada)));
    const int punto = PosicionPunto(resto);
    std::string numero = QuitaCaracter(Recorta(StrLeft(resto, punto == 0 ? Largo(resto) : punto)), ':');
    for (char& c : numero)
        if (c == '-') c = ' ';
    numero = QuitaCaracter(numero, '.');
    return {ConvierteNumeroDeCadenaAEnteroNvx(Recorta(numero), EsCatalan()), {}};
}

namespace {

std::optional<THallazgo<TLugar>> BuscaLugar(const std::string& plegado) {
    const auto pueblos = CreaTabla(Config().GetAliasNorvex(), "AYUNTAM.DBF", "LUGAR", true, false);
    if (!TBRango(*pueblos, {{"LUGAR", 1}}, {{"LUGAR", 99}})) return std::nullopt;
    for (pueblos->Primero(); !pueblos->Fin(); pueblos->Siguiente())
        if (Pos(Pliega(pueblos->Texto("NOMBRE")), plegado) != 0)
            return THallazgo<TLugar>{{pueblos->Entero("LUGAR"), pueblos->Texto("ABREVIATUR")}, {}};
    return std::nullopt;
}

}  // namespace

TLugarFecha BuscaLugarFecha(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    const TToken mes = ContieneToken("MESES", plegado, POR_ORDEN);
    if (mes.Posicion == 0) return {};
    const int dia = NumeroFinal(StrLeft(plegado, mes.Posicion - 1)).Numero;
    const int anno = NumeroInicial(Desde(plegado, mes.Posicion + Largo(mes.Entrada))).Numero;
    const std::string fecha =
        StrCeros(dia, 2) + "/" + StrCeros(mes.Numero == 13 ? 9 : mes.Numero, 2) + "/" + StrCeros(anno, 2);
    return {BuscaLugar(plegado), THallazgo<std::string>{fecha, {}}};
}

namespace {

bool EsNotarioDeLaOficina(const std::string& nombre) {
    if (Config().GetnCuantos() == 0) return Pliega(nombre) == Pliega(Config().GetNombre1());
    for (const std::string& notario : Config().GetNotarios())
        if (Pliega(notario) == Pliega(nombre)) return true;
    return false;
}

std::string NotarioNombrado(std::string_view parrafo) {
    std::vector<std::string> notarios = {Config().GetNombre1()};
    if (Config().GetnCuantos() != 0) notarios = Config().GetNotarios();
    for (const std::string& notario : notarios)
        if (Pos(notario, parrafo) != 0) return notario;
    return {};
}

}  // namespace

TNotario BuscaNotario(std::string_view parrafo) {
    const std::string texto = QuitaCaracteres(parrafo, "\t\r");
    const TToken frase = ContieneToken("ANTE MI", texto);
    if (frase.Posicion == 0) return {};
    std::string nombre(StrRight(texto, Largo(texto) - frase.Posicion - Largo(frase.Entrada)));
    if (const int coma = Pos(",", nombre); coma != 0) nombre = StrLeft(nombre, coma - 1);
    nombre = Recorta(nombre);
    if (const TTratamiento titulo = BuscaTratamiento(nombre); titulo.Posicion == 1)
        nombre = StrRight(nombre, Largo(nombre) - Largo(titulo.Tratamiento) - 1);
    if (!EsNotarioDeLaOficina(nombre) && ContieneToken("SUSTITUTO", texto, POR_ORDEN).Posicion != 0)
        return {{NotarioNombrado(parrafo), {}}, {nombre, {}}};
    return {{nombre, {}}, {}};
}

}  // namespace analizador
