// The shipped deed types, searched by the words of a title as the heading is: each title finds its types and
// what any deed says finds none.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"

namespace analizador {
namespace {

std::vector<std::string> Palabras(std::string_view texto) {
    std::vector<std::string> palabras;
    for (std::size_t p = 0; p < texto.size();) {
        const std::size_t fin = std::min(texto.find(' ', p), texto.size());
        if (fin > p) palabras.emplace_back(texto.substr(p, fin - p));
        p = fin + 1;
    }
    return palabras;
}

std::vector<std::string> Tipos() {
    TProveedorDbase proveedor(CARPETA_TABLAS);
    std::vector<std::string> tipos;
    for (const auto tabla = proveedor.Abre("NORVEX", "TIPOS.DBF", ""); !tabla->Fin(); tabla->Siguiente())
        tipos.push_back(tabla->Texto("NOMBRE"));
    return tipos;
}

// The types that a paragraph selects: for each word of more than three letters the first that has it.
std::vector<std::string> Hallados(std::string_view parrafo) {
    static const std::vector<std::string> tipos = Tipos();
    std::string texto = Pliega(QuitaCaracteres(TraduceCaracteresExtranosDeWord(parrafo), ".\t\r"));
    std::replace(texto.begin(), texto.end(), '-', ' ');
    std::vector<std::string> hallados;
    for (const std::string& palabra : Palabras(texto)) {
        if (palabra.size() <= 3 || palabra == "ESCRITURA") continue;
        const auto tipo = std::find_if(tipos.begin(), tipos.end(), [&](const std::string& nombre) {
            const std::vector<std::string> suyas = Palabras(Pliega(nombre));
            return std::find(suyas.begin(), suyas.end(), palabra) != suyas.end();
        });
        if (tipo != tipos.end() && std::find(hallados.begin(), hallados.end(), *tipo) == hallados.end())
            hallados.push_back(*tipo);
    }
    return hallados;
}

struct TTitulo {
    std::string_view Texto;
    std::vector<std::string_view> Comienzos;  // of the names of the types found, in their order
};

const TTitulo TITULOS[] = {
    {"ESCRITURA DE COMPRAVENTA. --------------", {"COMPRAVENTA"}},
    {"ESCRITURA DE COMPRA-VENTA", {"COMPRAVENTA"}},
    {"COMPRAVENTA DE VIVIENDA", {"COMPRAVENTA"}},
    {"ESCRIPTURA DE COMPRAVENDA", {"COMPRAVENTA"}},
    {"ESCRITURA DE COMPRAVENTA CON SUBROGACIÓN DE HIPOTECA"_ansi, {"COMPRAVENTA", "SUBROGACION"}},
    {"ESCRITURA DE PRÉSTAMO HIPOTECARIO"_ansi, {"PRESTAMO HIPOTECARIO"}},
    {"ESCRITURA DE PRÉSTAMO CON GARANTÍA HIPOTECARIA"_ansi, {"PRESTAMO HIPOTECARIO"}},
    {"para otorgar la presente escritura de PRÉSTAMO MERCANTIL CON GARANTÍA HIPOTECARIA."_ansi,
     {"PRESTAMO HIPOTECARIO"}},
    {"ESCRIPTURA DE PRÉSTEC HIPOTECARI"_ansi, {"PRESTAMO HIPOTECARIO"}},
    {"PRÉSTEC AMB GARANTIA HIPOTECÀRIA"_ansi, {"PRESTAMO HIPOTECARIO"}},
    {"ESCRITURA DE COMPRAVENTA Y PRÉSTAMO HIPOTECARIO"_ansi, {"COMPRAVENTA", "PRESTAMO HIPOTECARIO"}},
    {"NOVACIÓN DE PRÉSTAMO HIPOTECARIO"_ansi, {"NOVACION", "PRESTAMO HIPOTECARIO"}},
    {"SUBROGACIÓN DE PRÉSTAMO HIPOTECARIO (LEY 2/94)"_ansi, {"SUBROGACION", "PRESTAMO HIPOTECARIO"}},
    {"CARTA DE PAGO Y CANCELACIÓN DE HIPOTECA"_ansi, {"CARTA", "CANCELACION"}},
    {"ESCRITURA DE CANCELACIÓN DE HIPOTECA"_ansi, {"CANCELACION"}},
    {"CANCEL·LACIÓ D'HIPOTECA"_ansi, {"CANCELACION"}},
    {"CANCEL.LACIÓ D’HIPOTECA"_ansi, {"CANCELACION"}},
    {"TESTAMENTO.", {"TESTAMENTO ABIERTO"}},
    {"TESTAMENTO ABIERTO", {"TESTAMENTO ABIERTO"}},
    {"TESTAMENT OBERT", {"TESTAMENTO ABIERTO"}},
    {"PODER GENERAL", {"PODER"}},
    {"ESCRITURA DE PODER ESPECIAL", {"PODER"}},
    {"PODER GENERAL PARA PLEITOS", {"PODER"}},
    {"PODERES PARA PLEITOS", {"PODER"}},
    {"PODER PER A PLETS", {"PODER"}},
    {"REVOCACIÓN DE PODER"_ansi, {"REVOCACION", "PODER"}},
    {"ESCRITURA DE DONACIÓN"_ansi, {"DONACION"}},
    {"DONACIÓN DE BIEN INMUEBLE Y DE DINERO, a cuyo fin"_ansi, {"DONACION"}},
    {"ESCRIPTURA DE DONACIÓ"_ansi, {"DONACION"}},
    {"ACEPTACIÓN Y ADJUDICACIÓN DE HERENCIA"_ansi, {"HERENCIA"}},
    {"PARTICIÓN DE HERENCIA"_ansi, {"HERENCIA"}},
    {"MANIFESTACIÓN DE HERENCIA"_ansi, {"HERENCIA"}},
    {"ACCEPTACIÓ D'HERÈNCIA"_ansi, {"HERENCIA"}},
    {"RENUNCIA DE HERENCIA", {"RENUNCIA", "HERENCIA"}},
    {"ACTA DE DECLARACIÓN DE HEREDEROS ABINTESTATO"_ansi, {"DECLARACION: HEREDEROS"}},
    {"ACTA DE DECLARACIÓ D'HEREUS ABINTESTAT"_ansi, {"DECLARACION: HEREDEROS"}},
    {"CONSTITUCIÓN DE SOCIEDAD LIMITADA"_ansi, {"CONSTITUCION"}},
    {"CONSTITUCIÓN DE SOCIEDAD DE RESPONSABILIDAD LIMITADA UNIPERSONAL"_ansi, {"CONSTITUCION"}},
    {"CONSTITUCIÓ DE SOCIETAT LIMITADA"_ansi, {"CONSTITUCION"}},
    {"CAPITULACIONES MATRIMONIALES", {"CAPITULACIONES"}},
    {"CAPÍTOLS MATRIMONIALS -----"_ansi, {"CAPITULACIONES"}},
    {"EXTINCIÓN DE CONDOMINIO"_ansi, {"EXTINCION"}},
    {"EXTINCIÓ DE CONDOMINI"_ansi, {"EXTINCION"}},
    {"DISOLUCIÓN DE COMUNIDAD"_ansi, {"DISOLUCION"}},
    {"DISOLUCIÓN Y LIQUIDACIÓN DE SOCIEDAD"_ansi, {"DISOLUCION", "LIQUIDACION"}},
    {"LIQUIDACIÓN DE SOCIEDAD DE GANANCIALES"_ansi, {"LIQUIDACION"}},
    {"ESCRITURA DE DECLARACION DE OBRA NUEVA TERMINADA Y DIVISION HORIZONTAL",
     {"OBRA: NUEVA", "DIVISION: HORIZONTAL"}},
    {"DECLARACIÓ D'OBRA NOVA"_ansi, {"OBRA: NUEVA"}},
    {"DIVISIÓ HORITZONTAL"_ansi, {"DIVISION: HORIZONTAL"}},
    {"DIVISIÓN DE COSA COMÚN"_ansi, {"DIVISION: COSA"}},
    {"ESCRITURA DE SEGREGACIÓN Y COMPRAVENTA"_ansi, {"SEGREGACION", "COMPRAVENTA"}},
    {"AGRUPACIÓN DE FINCAS"_ansi, {"AGRUPACION"}},
    {"ACTA DE MANIFESTACIONES", {"ACTA: MANIFESTACIONES"}},
    {"ACTA DE MANIFESTACIONS", {"ACTA: MANIFESTACIONES"}},
    {"ACTA DE PRESENCIA", {"ACTA: PRESENCIA"}},
    {"ACTA DE REQUERIMIENTO", {"ACTA: REQUERIMIENTO"}},
    {"ACTA DE REQUERIMENT I NOTIFICACIÓ"_ansi, {"ACTA: REQUERIMIENTO", "ACTA: NOTIFICACION"}},
    {"ACTA DE NOTORIEDAD", {"ACTA: NOTORIEDAD"}},
    {"ACTA DE PROTOCOLIZACIÓN"_ansi, {"ACTA: PROTOCOLIZACION"}},
    {"ACTA DE PROTOCOL·LITZACIÓ"_ansi, {"ACTA: PROTOCOLIZACION"}},
    {"ACTA DE DEPÓSITO"_ansi, {"ACTA: DEPOSITO"}},
    {"ACTA DE FINAL DE OBRA", {"ACTA: FINAL"}},
    {"RATIFICACIÓN"_ansi, {"RATIFICACION"}},
    {"ESCRITURA DE SUBSANACIÓN"_ansi, {"SUBSANACION"}},
    {"ESCRITURA DE SUBSANACIÓN Y RECTIFICACIÓN"_ansi, {"SUBSANACION"}},
    {"ELEVACIÓN A PÚBLICO DE ACUERDOS SOCIALES"_ansi, {"ELEVACION"}},
    {"ELEVACIÓ A PÚBLIC D'ACORDS SOCIALS"_ansi, {"ELEVACION"}},
    {"CESE Y NOMBRAMIENTO DE ADMINISTRADOR", {"CESE"}},
    {"ESCRITURA DE AUMENTO DE CAPITAL", {"AUMENTO"}},
    {"AMPLIACIÓN DE CAPITAL SOCIAL"_ansi, {"AMPLIACION"}},
    {"TRANSFORMACIÓ DE SOCIETAT"_ansi, {"TRANSFORMACION"}},
    {"TRASLADO DE DOMICILIO SOCIAL", {"TRASLADO"}},
    {"ESCRITURA DE PERMUTA", {"PERMUTA"}},
    {"OPCIÓN DE COMPRA"_ansi, {"OPCION"}},
    {"DACIÓN EN PAGO DE DEUDA"_ansi, {"DACION"}},
    {"RECONOCIMIENTO DE DEUDA", {"RECONOCIMIENTO"}},
    {"CESIÓN DE CRÉDITO"_ansi, {"CESION"}},
    {"CONSTITUCIÓN DE HIPOTECA UNILATERAL"_ansi, {"CONSTITUCION", "HIPOTECA: UNILATERAL"}},
    {"DOCUMENTO DE VOLUNTADES ANTICIPADAS", {"VOLUNTADES: ANTICIPADAS"}},
    {"ENTREGA DE LEGADO", {"LEGADO"}},
    {"ESCRITURA DE AFIANZAMIENTO", {"AFIANZAMIENTO"}},
};

TEST(Titulos, CadaTituloEncuentraSusTipos) {
    ASSERT_GE(std::size(TITULOS), 60U);
    for (const TTitulo& titulo : TITULOS) {
        const std::vector<std::string> hallados = Hallados(titulo.Texto);
        ASSERT_EQ(hallados.size(), titulo.Comienzos.size())
            << Utf8DeAnsi(titulo.Texto) << ": " << testing::PrintToString(hallados);
        for (std::size_t i = 0; i < hallados.size(); ++i) {
            const std::string_view comienzo = titulo.Comienzos[i];
            EXPECT_TRUE(hallados[i] == comienzo || hallados[i].starts_with(std::string(comienzo) + " "))
                << Utf8DeAnsi(titulo.Texto) << ": " << hallados[i];
        }
    }
}

TEST(Titulos, LoQueDiceCualquierEscrituraNoEncuentraNinguno) {
    const std::string_view parrafos[] = {
        "NÚMERO MIL OCHOCIENTOS CUARENTA Y SIETE (1.847). ---------"_ansi,
        "NÚMERO: VUIT-CENTS TRENTA-U"_ansi,
        "EN MADRID, mi residencia, a doce de marzo de dos mil veintiuno."_ansi,
        "En Marbella, mi residencia, siendo las diecisiete horas del día uno de octubre de dos mil quince."_ansi,
        "A la ciutat de VIC, la meva residència, a dia trenta de juny de dos mil quinze."_ansi,
        "Ante mí, ALFONSO MARÍA REQUEJO BARRIENTOS, Notario del Ilustre Colegio de Madrid,"_ansi,
        "ANTE MI, NOTARIO DE ESTA CAPITAL Y DE SU ILUSTRE COLEGIO NOTARIAL, con residencia en esta ciudad",
        "Davant meu, LAURA FÀBREGAS, Notari de l'Il·lustre Col·legi Notarial de Catalunya, amb residència a Manresa,"_ansi,
        "actuando como sustituto por imposibilidad accidental de mi compañera de residencia, y para su protocolo,"_ansi,
        "COMPARECEN: DE UNA PARTE, COMO VENDEDORES:",
        "En su propio nombre y derecho. ------------------",
        "INTERVÉ en el seu propi nom i, a més, com a presidenta, en representació de l'entitat"_ansi,
        "Tienen, a mi juicio, según intervienen, la capacidad legal necesaria para otorgar la presente escritura, y"_ansi,
        "Les identifico por sus documentos de identidad y les reputo capaces, por lo que",
        "De las copias autorizadas que he tenido a la vista resultan, a mi juicio, facultades suficientes "
        "para otorgar "
        "esta escritura y obligar a la sociedad mercantil",
        "De les còpies autoritzades que m'han exhibit resulten, segons el meu judici, facultats suficients "
        "per a "
        "l'atorgament d'aquesta escriptura."_ansi,
        "Identifico els senyors compareixents pels seus documents, que m'exhibeixen i retorno.",
        "TITULARIDAD REAL. Hago constar que he cumplido con la obligación de identificación del titular real "
        "que impone "
        "la Ley 10/2010, según acta autorizada por mí, bajo el número anterior de mi protocolo."_ansi,
        "Sus facultades, que aseguran vigentes, resultan de los poderes y cargos reseñados, por tiempo indefinido"_ansi,
    };
    for (const std::string_view parrafo : parrafos)
        EXPECT_EQ(Hallados(parrafo), std::vector<std::string>{}) << Utf8DeAnsi(parrafo);
}

// A bracket marks its first and its last word alone: a long word between them would select the type.
TEST(Titulos, NingunParentesisTienePalabrasSinMarca) {
    for (const std::string& tipo : Tipos()) {
        bool dentro = false;
        for (const std::string& palabra : Palabras(tipo)) {
            const bool abre = palabra.starts_with('(');
            const bool cierra = palabra.ends_with(')');
            EXPECT_TRUE(!dentro || cierra || palabra.size() <= 3) << tipo;
            dentro = (dentro || abre) && !cierra;
        }
        EXPECT_FALSE(dentro) << tipo;
    }
}

}  // namespace
}  // namespace analizador
