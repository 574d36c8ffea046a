// The shipped first names, and where they cut the names of persons.

#include <gtest/gtest.h>

#include <set>

#include "adaptadores/dbase/ProveedorDbase.h"
#include "plataforma/Ansi.h"
#include "plataforma/Rnumcad.h"
#include "plataforma/Rut.h"
#include "rutinas/RutAnalizador.h"

namespace analizador {
namespace {

class NombresDeSerie : public testing::Test {
  protected:
    TProveedorDbase proveedor_{CARPETA_TABLAS};
    InstalaTablas instala_{proveedor_};
};

TEST_F(NombresDeSerie, SonMasDeOnceMilPlegadosYDistintos) {
    std::set<std::string> nombres;
    for (const auto pila = proveedor_.Abre("NORVEX", "PILA", ""); !pila->Fin(); pila->Siguiente()) {
        const std::string nombre = pila->Texto("NOMBRE");
        EXPECT_TRUE(nombres.insert(nombre).second) << nombre;
        EXPECT_FALSE(nombre.empty());
        EXPECT_EQ(nombre, Pliega(nombre));
        EXPECT_EQ(nombre, Recorta(nombre));
        EXPECT_EQ(nombre.find("  "), std::string::npos) << nombre;
        EXPECT_EQ(nombre.find_first_of("0123456789,;:"), std::string::npos) << nombre;
    }
    EXPECT_GE(nombres.size(), 11000U);
}

// A word that is mostly a surname, behind a first name: the compound names that are usual all the same.
TEST_F(NombresDeSerie, NingunCompuestoAcabaEnUnApellidoCorriente) {
    static constexpr std::string_view APELLIDOS[] = {
        "GARCIA", "GONZALEZ", "FERNANDEZ", "LOPEZ",    "MARTINEZ", "SANCHEZ", "PEREZ",  "GOMEZ",
        "MARTIN", "RUIZ",     "DIAZ",      "MORENO",   "GIL",      "SERRANO", "BLANCO", "CASTRO",
        "RUBIO",  "MARIN",    "IGLESIAS",  "RAMOS",    "LEON",     "VIDAL",   "ALONSO", "ROMAN",
        "GASPAR", "SIMON",    "MATEO",     "CLEMENTE", "LUCAS",    "GUZMAN",  "LUNA",   "ARIAS",
        "MORA",   "GALLARDO", "PEÑA"_ansi, "SOLER",    "FERRER",   "VENTURA", "VALERO"};
    std::set<std::string> finales;
    for (const auto pila = proveedor_.Abre("NORVEX", "PILA", ""); !pila->Fin(); pila->Siguiente()) {
        const std::string nombre = pila->Texto("NOMBRE");
        const auto blanco = nombre.rfind(' ');
        const bool particula =
            nombre.find(" DE ") != std::string::npos || nombre.find(" DEL ") != std::string::npos;
        if (blanco != std::string::npos && !particula) finales.insert(nombre.substr(blanco + 1));
    }
    EXPECT_EQ(finales.count("JOSE"), 1U);
    for (const std::string_view apellido : APELLIDOS)
        EXPECT_EQ(finales.count(std::string(apellido)), 0U) << apellido;
}

struct TPersona {
    std::string_view Nombre, Apellidos;
};

constexpr TPersona PERSONAS[] = {
    {"Antonio", "García López"_ansi},
    {"Manuel", "Fernández Ruiz"_ansi},
    {"José"_ansi, "Martínez Sánchez"_ansi},
    {"Juan", "Pérez García"_ansi},
    {"Francisco", "Moreno Muñoz"_ansi},
    {"María"_ansi, "González Rodríguez"_ansi},
    {"Carmen", "Jiménez Ortega"_ansi},
    {"Josefa", "Navarro Gil"},
    {"Isabel", "Vázquez Iglesias"_ansi},
    {"Ana", "Domínguez Castro"_ansi},
    {"Laura", "Virto Escalante"},
    {"Lucía"_ansi, "Zapata Bernal"},
    {"Begoña"_ansi, "Ibáñez Peña"_ansi},
    {"Iñigo"_ansi, "Núñez de Prado"_ansi},
    {"Íñigo"_ansi, "Urquijo Sáinz"_ansi},
    {"Montserrat", "Puigdomènech Solà"_ansi},
    {"José María"_ansi, "Álvarez Blanco"_ansi},
    {"María José"_ansi, "López Ruiz"_ansi},
    {"Juan Carlos", "Romero Vidal"},
    {"Ana Belén"_ansi, "Serrano Cano"},
    {"Josep Maria", "Ferrer i Vila"},
    {"María Teresa"_ansi, "Herrero Santos"},
    {"María Isabel"_ansi, "Marín Reyes"_ansi},
    {"María Luisa"_ansi, "de la Fuente Gallego"},
    {"Francisco Javier", "Bernal Hernández"_ansi},
    {"José Antonio"_ansi, "Primo Nieto"},
    {"José Luis"_ansi, "Calvo Campos"},
    {"José Manuel"_ansi, "Soto Prieto"},
    {"Juan José"_ansi, "Millán Lozano"_ansi},
    {"Juan Antonio", "Cortés Flores"_ansi},
    {"Juan Manuel", "de Prada Molina"},
    {"Juan Francisco", "Rojas Pascual"},
    {"Miguel Ángel"_ansi, "Blanco Garrido"},
    {"Luis Miguel", "Arias Vega"},
    {"Pedro Luis", "Gallardo Esteban"},
    {"Antonio José"_ansi, "León Ramos"_ansi},
    {"Francisco José"_ansi, "Cruz Román"_ansi},
    {"Víctor Manuel"_ansi, "Rubio Lorenzo"},
    {"Jesús María"_ansi, "Santiago Crespo"},
    {"José Ignacio"_ansi, "Alonso Martín"_ansi},
    {"José Ramón"_ansi, "Vicente Marcos"},
    {"Juan Ramón"_ansi, "Simón Andrés"_ansi},
    {"Juan Luis", "Domingo Tomás"_ansi},
    {"Juan Pablo", "Benito Clemente"},
    {"Juan Diego", "Gaspar Mateo"},
    {"Juan Miguel", "Lucas Bravo"},
    {"Carlos Alberto", "Peña Méndez"_ansi},
    {"Luis Fernando", "Guzmán Luna"_ansi},
    {"Luis Alberto", "de Cuenca Prado"},
    {"Rosa María"_ansi, "Cantalapiedra Ovejero"},
    {"Ana María"_ansi, "Matute Ausejo"},
    {"Ana Isabel", "Conde Mora"},
    {"Eva María"_ansi, "Pardo Aguilar"},
    {"María Dolores"_ansi, "Vargas Heredia"},
    {"María Ángeles"_ansi, "Caballero Rivas"},
    {"María Jesús"_ansi, "Montero Cuadrado"},
    {"María Pilar"_ansi, "Gracia Lafuente"},
    {"María Mercedes"_ansi, "Lasala Pueyo"},
    {"María Victoria"_ansi, "Sanz Bueno"},
    {"María Elena"_ansi, "Parra Segura"},
    {"María Cristina"_ansi, "Rey Varela"},
    {"María Eugenia"_ansi, "Cabrera Suárez"_ansi},
    {"María Rosa"_ansi, "Ferrándiz Soler"_ansi},
    {"María Paz"_ansi, "Vega Ferreras"},
    {"María Nieves"_ansi, "Medina Toledo"},
    {"María Cruz"_ansi, "Ochoa Belloso"},
    {"María Inmaculada"_ansi, "Carrasco Gallego"},
    {"María Concepción"_ansi, "Pastor Robles"},
    {"María Soledad"_ansi, "Duque Rincón"_ansi},
    {"María Antonia"_ansi, "Roca Mateos"},
    {"María del Carmen"_ansi, "Pérez Gómez"_ansi},
    {"María del Pilar"_ansi, "Ochando Rubio"},
    {"María del Mar"_ansi, "Flores Lobato"},
    {"María del Rosario"_ansi, "Castillo Bermúdez"_ansi},
    {"María del Rocío"_ansi, "Jurado Mohedano"},
    {"María del Valle"_ansi, "Ordóñez Carmona"_ansi},
    {"María del Prado"_ansi, "Naranjo Ruedas"},
    {"María del Pino"_ansi, "Santana Betancor"},
    {"María del Amparo"_ansi, "Llorens Chulià"_ansi},
    {"María del Coro"_ansi, "Zabala Otegui"},
    {"María del Milagro"_ansi, "Yoldi Goñi"_ansi},
    {"María de los Ángeles"_ansi, "Rodríguez Cuesta"_ansi},
    {"María de los Dolores"_ansi, "Amaya Cortés"_ansi},
    {"María de los Remedios"_ansi, "Gálvez Ruiz"_ansi},
    {"María de los Llanos"_ansi, "Tébar Ortiz"_ansi},
    {"María de los Desamparados"_ansi, "Climent Peris"},
    {"María de los Milagros"_ansi, "Feijoo Arias"},
    {"María de la Concepción"_ansi, "Morales Ávila"_ansi},
    {"María de la Soledad"_ansi, "Becerril Bustamante"},
    {"María de la Luz"_ansi, "Casal Paz"},
    {"María de la Paz"_ansi, "Padilla Díaz"_ansi},
    {"María de la Cabeza"_ansi, "Torres Jaén"_ansi},
    {"María de la Fuensanta"_ansi, "Nicolás Saura"_ansi},
    {"María de la O"_ansi, "Lejárraga García"_ansi},
    {"María de la Encarnación"_ansi, "Heredia Maya"},
    {"María de la Candelaria"_ansi, "Dorta Hernández"_ansi},
    {"María de la Esperanza"_ansi, "Aguirre Gil"},
    {"María de la Caridad"_ansi, "Conesa Madrid"},
    {"María de la Almudena"_ansi, "Grandes Hernández"_ansi},
    {"María de las Mercedes"_ansi, "Milá Nolla"_ansi},
    {"María de las Nieves"_ansi, "Trujillo Acosta"},
    {"María de las Angustias"_ansi, "Molina Titos"},
    {"María de Lourdes"_ansi, "Otero Seoane"},
    {"María de Fátima"_ansi, "Báñez Cid"_ansi},
    {"María de Gracia"_ansi, "Ibarra Pérez"_ansi},
    {"María de Guadalupe"_ansi, "Marroquín Solís"_ansi},
    {"María de Montserrat"_ansi, "Caballé Folch"_ansi},
    {"María de Regla"_ansi, "Guzmán Verano"_ansi},
    {"Juan de Dios", "Ramírez Heredia"_ansi},
    {"Juan de la Cruz", "Moreno Arroyo"},
    {"Francisco de Asís"_ansi, "Cabrero Torres"},
    {"Francisco de Paula", "Burguera Escrivá"_ansi},
    {"Francisco de Borja", "Sémper Pascual"_ansi},
    {"José de Jesús"_ansi, "Vargas Quesada"},
    {"Manuel de Jesús"_ansi, "Rosario Peralta"},
    {"Ana de la Soledad", "Rivero Salas"},
    {"Teresa de Jesús"_ansi, "Cepeda Ahumada"},
    {"Juana de la Cruz", "Vázquez Gutiérrez"_ansi},
    {"Rosa de Lima", "Manzano Rodríguez"_ansi},
    {"Ana María de los Ángeles"_ansi, "Bravo Tapia"},
    {"María José del Carmen"_ansi, "Lobo Infante"},
    {"María Teresa del Niño Jesús"_ansi, "Gallego Osuna"},
    {"Dulce Nombre de María"_ansi, "Rueda Luque"},
    {"Inmaculada Concepción"_ansi, "Serrano Ortiz"},
    {"María"_ansi, "de la Fuente Iglesias"},
    {"Ana", "de la Torre Prados"},
    {"Juan", "de la Peña Salcedo"_ansi},
    {"José"_ansi, "del Río Ortega"_ansi},
    {"Pedro", "del Olmo Barrio"},
    {"Antonio", "de la Rosa Pino"},
    {"María"_ansi, "del Río Calle"_ansi},
    {"Luis", "de la Calle Ruano"},
    {"Carmen", "de los Ríos Urruti"_ansi},
    {"Diego", "de la Cruz Alba"},
    {"Teresa", "de la Parra Sanojo"},
    {"Miguel", "de Unamuno Jugo"},
    {"Juan", "Martín García"_ansi},
    {"Ana", "Vicente Alonso"},
    {"Carlos", "Vicente Merino"},
    {"Pedro", "Pascual Sanz"},
    {"Luis", "Martín Santos"_ansi},
    {"José"_ansi, "Martín Recuerda"_ansi},
    {"Manuel", "Alonso Martínez"_ansi},
    {"José"_ansi, "Alonso Gil"},
    {"Francisco", "Gil Marín"_ansi},
    {"Antonio", "Lorenzo Cabrera"},
    {"María"_ansi, "Santos Vega"},
    {"Juan", "Reyes Cortés"_ansi},
    {"Ana", "Reyes Cano"},
    {"Carmen", "Flores Heredia"},
    {"Javier", "Marcos Simón"_ansi},
    {"Pablo", "Mateo Lucas"},
    {"Sergio", "Ramos Vidal"},
    {"David", "Esteban Benito"},
    {"Alejandro", "Vidal Román"_ansi},
    {"Jesús"_ansi, "Tomás Domingo"_ansi},
    {"Fernando", "Castillo Luna"},
    {"Elena", "Paz Gracia"},
    {"Marta", "Sierra Prado"},
    {"Miguel", "Santiago Blas"},
    {"Jorge", "Arias Bueno"},
    {"Andrés"_ansi, "Garrido Castro"},
    {"José Vicente"_ansi, "Marí Bosch"_ansi},
    {"José Andrés"_ansi, "Torres Mora"},
    {"José Tomás"_ansi, "Román Martín"_ansi},
    {"Juan Esteban", "Vicente Pascual"},
    {"Juan Bautista", "Vilaplana Sempere"},
    {"Juan Marcos", "Gil Alonso"},
    {"Jordi", "Pujol Soley"},
    {"Oriol", "Clotet Vilanova"},
    {"Núria"_ansi, "Feliu Mestres"},
    {"Meritxell", "Batet Lamaña"_ansi},
    {"Bernat", "Metge Rocabertí"_ansi},
    {"Arnau", "Clotet Vilanova"},
    {"Llorenç"_ansi, "Villalonga Pons"},
    {"Gonçal"_ansi, "Lloveras Vallès"_ansi},
    {"Raül"_ansi, "Romeva Rueda"},
    {"Marcel·lí"_ansi, "Domingo Sanjuan"},
    {"Joan", "Oró Florensa"_ansi},
    {"Joan Josep", "Amorós Pla"_ansi},
    {"Josep Lluís"_ansi, "Carod Rovira"},
    {"Josep Antoni", "Duran Lleida"},
    {"Pere Joan", "Pons Sampietro"},
    {"Antoni Maria", "Alcover Sureda"},
    {"Maria Lluïsa"_ansi, "Borràs Gonzàlez"_ansi},
    {"Maria dels Àngels"_ansi, "Barceló Rosselló"_ansi},
    {"Maria de les Neus", "Català Pallejà"_ansi},
    {"Maria del Roser", "Capdevila Valls"},
    {"Maria del Carme", "Forcadell Lluís"_ansi},
    {"Maria de la Mercè"_ansi, "Rodoreda Gurguí"_ansi},
    {"Maria de la Salut", "Sala Ribas"},
    {"Maria Mercè"_ansi, "Marçal Serra"_ansi},
    {"Francesc d'Assís"_ansi, "Cambó Batlle"_ansi},
    {"Joan de Déu"_ansi, "Prats Subirana"},
    {"Anna Maria", "Montero Canals"},
    {"Gorka", "Etxeberria Lekube"},
    {"Ainhoa", "Solozabal Andraka"},
    {"Jon Ander", "Garaikoetxea Urriza"},
    {"Miren Begoñe"_ansi, "Errazti Esnal"},
    {"Iñaki"_ansi, "Gabilondo Pujol"},
    {"Xabier", "Arzalluz Antia"},
    {"Xosé Manuel"_ansi, "Beiras Torrado"},
    {"Xoán Carlos"_ansi, "Louzán Abal"_ansi},
    {"Uxía"_ansi, "Senlle Vázquez"_ansi},
    {"Anxo", "Quintana González"_ansi},
    {"Margaret Jean", "Whitcombe"},
    {"Geoffrey Alan", "Whitcombe"},
    {"Susan Elizabeth", "Barker"},
    {"Peter John", "Sutcliffe"},
    {"Hans Jürgen"_ansi, "Krüger"_ansi},
    {"Dieter Klaus", "Hoffmeister"},
    {"Isabelle Marie-Claude", "Fournier"},
    {"Philippe André"_ansi, "Roussel"},
    {"Jean-Pierre", "Léonard"_ansi},
    {"Jekaterina", "Lebedeva"},
    {"Mohamed", "El Yazidi Benali"},
    {"Fátima Zahra"_ansi, "Benhaddou"},
    {"Andrei Ionut", "Popescu"},
    {"M.ª del Carmen"_ansi, "Ruiz Soto"},
    {"Mª José"_ansi, "Gil Vega"},
    {"Fco. Javier", "Martín Gil"_ansi},
    {"Luz Marina", "Restrepo Vélez"_ansi},
    {"Eduwiges", "Quispe Mamani"},
};

TEST_F(NombresDeSerie, LosApellidosEmpiezanDondeDeben) {
    EXPECT_GE(std::size(PERSONAS), 200U);
    for (const auto& [nombre, apellidos] : PERSONAS) {
        const std::string escrito = std::string(nombre) + " " + std::string(apellidos);
        const TNombreSeparado separado = SeparaNombreApellidos(escrito);
        EXPECT_EQ(separado.Nombre, Pliega(nombre)) << Utf8DeAnsi(escrito);
        EXPECT_EQ(separado.Apellidos, Pliega(apellidos)) << Utf8DeAnsi(escrito);
    }
}

}  // namespace
}  // namespace analizador
