// Where a party comes from: birth, parents, country.

#include <algorithm>

#include "analizador/ConstAnalizador.h"
#include "plataforma/Ansi.h"
#include "plataforma/Confnvx.h"
#include "plataforma/Rut.h"
#include "plataforma/Ruttb.h"
#include "plataforma/Rvarias.h"
#include "pruebas/literal/Cortes.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {

using namespace pruebas;

namespace {

bool EsLetra(char c) {
    return c >= 'A' && c <= 'Z';
}

// Position (from 1) of the first occurrence of the name as a whole word; 0 when none.
int PosicionEntera(const std::string& nombre, const std::string& texto) {
    if (nombre.empty()) return 0;
    for (std::size_t p = texto.find(nombre); p != std::string::npos; p = texto.find(nombre, p + 1)) {
        const std::size_t fin = p + nombre.size();
        if ((p == 0 || !EsLetra(texto[p - 1])) && (fin == texto.size() || !EsLetra(texto[fin])))
            return static_cast<int>(p) + 1;
    }
    return 0;
}

std::unique_ptr<TTabla> Provincias(std::string_view filtro) {
    auto tabla = CreaTabla(Config().GetAliasNorvex(), "PROVIN.DBF", "ALFABETICO", true, false);
    TBFiltra(*tabla, filtro);
    return tabla;
}

std::string SinTitulo(std::string_view nombre) {
    const TTratamiento titulo = BuscaTratamiento(nombre);
    if (titulo.Posicion != 1) return std::string(nombre);
    return std::string(StrRight(nombre, Largo(nombre) - Largo(titulo.Tratamiento) - 1));
}

// What each reader of the birth leaves for the next one.
struct TLecturaLugar {
    TNacimiento& Nacimiento;
    std::string Resto;
};

// The province or the country that a text names.
void TomaProvincia(TNacimiento& nacimiento, const std::string& texto) {
    const auto tabla = Provincias("GRUPO<>3");
    for (tabla->Primero(); !tabla->Fin(); tabla->Siguiente()) {
        const std::string nombre = tabla->Texto("PROVINCIA");
        if (PosicionEntera(nombre, texto) == 0) continue;
        (tabla->Entero("GRUPO") == 1 ? nacimiento.Provincia : nacimiento.Pais).Valor = nombre;
        return;
    }
}

// Reads the place at the start of the text; returns the text from what ended it on.
std::string LeeLugar(TNacimiento& nacimiento, const std::string& texto) {
    int fin = Primera(Primera(Pos(",", texto), PosicionPunto(texto)), Pos("(", texto));
    if (fin == 0) fin = Largo(texto) + 1;
    nacimiento.Lugar.Valor = RecortaDerecha(StrLeft(texto, fin - 1));
    const std::string resto = Desde(texto, fin);
    int finProvincia = 0;
    if (resto.starts_with(','))
        finProvincia = PosicionPunto(resto);
    else if (resto.starts_with('('))
        finProvincia = Pos(")", resto);
    else
        return resto;
    if (finProvincia == 0) finProvincia = Largo(resto) + 1;
    TomaProvincia(nacimiento, std::string(Recorta(StrLeft(resto, finProvincia - 1).substr(1))));
    return resto;
}

// The month that some word from the start of the text on names, and the text after that word.
int LeeMes(std::string_view& texto) {
    const std::vector<std::string> meses = ListaTokens("MESES");
    for (TPalabra palabra = PrimeraPalabra(texto); !palabra.Palabra.empty();
         palabra = PrimeraPalabra(texto)) {
        texto = palabra.Resto;
        for (std::size_t i = 0; i < meses.size(); ++i)
            if (meses[i] == palabra.Palabra) return i == 12 ? 9 : static_cast<int>(i) + 1;
        if (const int numero = Cad_Int(palabra.Palabra); numero > 0) return numero;
    }
    return 0;
}

// Reads the date at the start of the text; returns the text after it.
std::string LeeFecha(TNacimiento& nacimiento, const std::string& texto) {
    std::string limpio = texto;
    for (char& c : limpio)
        if (std::string_view(".-;,").find(c) != std::string_view::npos) c = ' ';
    const TNumeroLeido dia = NumeroInicial(limpio);
    std::string_view resto = dia.Resto;
    const int mes = LeeMes(resto);
    const TNumeroLeido anno = NumeroInicial(resto);
    if (EsFechaValida(dia.Numero, mes, anno.Numero))
        nacimiento.Fecha.Valor =
            TFecha(std::chrono::year(anno.Numero), std::chrono::month(static_cast<unsigned>(mes)),
                   std::chrono::day(static_cast<unsigned>(dia.Numero)));
    return std::string(StrRight(texto, Largo(anno.Resto)));
}

}  // namespace

TNacimiento BuscaLugaryFechaNacimiento(std::string_view parrafo) {
    TNacimiento nacimiento;
    const std::string texto = QuitaCaracteres(Pliega(parrafo), "\t\r\n");
    const TToken lugar = ContieneToken("LUGAR NACIMIENTO", texto, {.Plegado = false});
    const TToken fecha = ContieneToken("FECHA NACIMIENTO", texto, {.Plegado = false});
    const auto tras = [&](const TToken& frase) {
        return std::string(RecortaIzquierda(Desde(texto, frase.Posicion + Largo(frase.Entrada))));
    };
    if (lugar.Posicion != 0) {
        const std::string resto = LeeLugar(nacimiento, tras(lugar));
        LeeFecha(nacimiento, fecha.Posicion != 0 ? tras(fecha) : resto);
    } else if (fecha.Posicion != 0) {
        std::string resto = LeeFecha(nacimiento, tras(fecha));
        const TPalabra primera = PrimeraPalabra(resto);
        if (primera.Palabra == (EsCastellano() ? "EN" : "A")) resto = std::string(primera.Resto);
        LeeLugar(nacimiento, std::string(RecortaIzquierda(resto)));
    }
    return nacimiento;
}

namespace {

std::string NombrePadre(std::string_view texto) {
    std::string nombre = SinTitulo(Recorta(texto));
    if (StrRight(nombre, 2) == Conjuncion()) nombre.resize(nombre.size() - 2);
    return nombre;
}

int FinMadre(std::string_view texto) {
    const int fin = Primera(Pos(",", texto), PosicionPunto(texto));
    return fin == 0 ? Largo(texto) + 1 : fin;
}

std::string NombreMadre(std::string_view texto) {
    return SinTitulo(Recorta(StrLeft(texto, FinMadre(texto) - 1)));
}

// Without any form of address only the connector tells one from the other.
TPadres PadresSinTratamiento(const std::string& texto) {
    const std::string conector = Conjuncion() + " ";
    const int corte = Pos(conector, texto);
    if (corte == 0) return {{NombrePadre(StrLeft(texto, FinMadre(texto) - 1)), {}}, {}};
    return {{std::string(Recorta(StrLeft(texto, corte - 1))), {}},
            {NombreMadre(Desde(texto, corte + Largo(conector))), {}}};
}

}  // namespace

TPadres BuscaPadres(std::string_view parrafo) {
    std::string texto = QuitaCaracteres(Pliega(parrafo), "\t\r\n");
    const TToken frase = ContieneToken("PADRES", texto, {.Plegado = false});
    if (frase.Posicion == 0) return {};
    texto = RecortaIzquierda(Desde(texto, frase.Posicion + Largo(frase.Entrada)));
    const TTratamiento primero = BuscaTratamiento(texto);
    if (primero.Posicion == 0) return PadresSinTratamiento(texto);
    texto = Desde(texto, primero.Posicion + Largo(primero.Tratamiento));
    const TTratamiento segundo = BuscaTratamiento(texto);
    int fin = Primera(Pos(",", texto), segundo.Posicion);
    if (fin == 0) fin = Largo(texto) + 1;
    TPadres padres{{NombrePadre(StrLeft(texto, fin - 1)), {}}, {}};
    if (segundo.Posicion != 0)
        padres.Madre.Valor = NombreMadre(Desde(texto, segundo.Posicion + Largo(segundo.Tratamiento)));
    return padres;
}

namespace {

const std::vector<std::string> PREFERIDOS = {
    "REINO UNIDO",      "HOLANDA",   "BENIN",         "BURUNDI", "COREA NORTE",    "BURKINA FASO", "LESOTHO",
    "ISLAS SEYCHELLES", "SRI LANKA", "GUINEA BISSAU", "MALASIA", "ISLAS MALDIVAS", "MADAGASCAR",   "RUANDA"};

// The diereses as the Catalan demonyms are stored.
std::string ConAlmohadillas(const std::string& texto) {
    const std::string_view dieresis = "ÄËÏÖÜ"_ansi;
    std::string escrito;
    for (const char c : texto) {
        const std::size_t vocal = dieresis.find(c);
        if (vocal == std::string_view::npos)
            escrito += c;
        else
            escrito += std::string("#") + "AEIOU"[vocal];
    }
    return escrito;
}

using TPaises = std::vector<THallazgo<TRPais>>;

TPaises BuscaNacionalidades(TTabla& paises, const std::string& plegado) {
    const std::vector<std::string> castellanos = {"NACIONALID", "GENTIL1_MA", "GENTIL2_MA", "GENTIL1_FE",
                                                  "GENTIL2_FE"};
    const std::vector<std::string> catalanes = {"NACIONA_CA", "GEN1_MA_CA", "GEN2_MA_CA", "GEN1_FE_CA",
                                                "GEN2_FE_CA"};
    const std::string texto = EsCastellano() ? plegado : ConAlmohadillas(plegado);
    TPaises hallados;
    for (paises.Primero(); !paises.Fin(); paises.Siguiente())
        for (const std::string& campo : EsCastellano() ? castellanos : catalanes) {
            const std::string palabra = paises.Texto(campo);
            const int posicion = PosicionEntera(palabra, texto);
            if (posicion == 0) continue;
            auto sitio = hallados.begin();
            while (sitio != hallados.end() && sitio->Valor.Posicion < posicion) ++sitio;
            const TRPais pais{paises.Texto("PROVINCIA"), paises.Entero("CODIGO"), palabra, posicion};
            hallados.insert(sitio, THallazgo<TRPais>{pais, {}});
            break;
        }
    return hallados;
}

// Whether, of two countries found through the same word, the first is the one to keep.
bool SeQuedaElPrimero(const std::string& primero, const std::string& conocido) {
    if (!conocido.empty()) return primero == conocido;
    return std::find(PREFERIDOS.begin(), PREFERIDOS.end(), primero) != PREFERIDOS.end();
}

// Deletes one of the first pair of countries found through the same word; false when there is none.
bool QuitaUnRepetido(TPaises& paises, const std::string& conocido) {
    for (auto uno = paises.begin(); uno != paises.end(); ++uno)
        for (auto otro = uno + 1; otro != paises.end(); ++otro)
            if (uno->Valor.Texto == otro->Valor.Texto) {
                paises.erase(SeQuedaElPrimero(uno->Valor.Nombre, conocido) ? otro : uno);
                return true;
            }
    return false;
}

}  // namespace

TExtranjeria CompruebaExtranjeros(std::string_view parrafo) {
    const std::string plegado = Pliega(parrafo);
    const auto paises = Provincias("GRUPO=2");
    TExtranjeria extranjeria;
    extranjeria.Espannol = ContieneToken("EXTRANJEROS", plegado, {.Plegado = false}).Posicion == 0;
    std::string& pais = extranjeria.Pais.Valor;
    for (paises->Primero(); !extranjeria.Espannol && pais.empty() && !paises->Fin(); paises->Siguiente())
        if (PosicionEntera(paises->Texto("PROVINCIA"), plegado) != 0) {
            pais = paises->Texto("PROVINCIA");
            extranjeria.CodPais = paises->Entero("CODIGO");
        }
    extranjeria.Paises = BuscaNacionalidades(*paises, plegado);
    while (QuitaUnRepetido(extranjeria.Paises, pais)) {
    }
    if (!extranjeria.Espannol && pais.empty()) {
        const bool hay = !extranjeria.Paises.empty();
        pais = hay ? extranjeria.Paises.front().Valor.Nombre : "DESCONOCIDO";
        extranjeria.CodPais = hay ? extranjeria.Paises.front().Valor.Codigo : 999;
    }
    return extranjeria;
}

}  // namespace analizador
