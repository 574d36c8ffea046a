#include "pruebas/generador/Reglas.h"

namespace analizador::pruebas {

namespace {

constexpr std::string_view CATALANAS = R"reglas(
:cabecera
NÚMERO {en_letra}{relleno}|{titulo}{relleno}|{lugar_fecha}{relleno}|{ante_mi}{relleno}
NÚMERO {en_letra} ({1-9999}){relleno}|{titulo}|{lugar_fecha}{relleno}|{ante_mi}
{titulo}{relleno}|NÚMERO {100-9999}.{relleno}|{lugar_fecha}|{ante_mi}

:relleno
{}
 -------------
 -----------------------------

:titulo
ESCRIPTURA DE COMPRAVENDA
ESCRIPTURA DE PRÉSTEC HIPOTECARI
TESTAMENT OBERT
ESCRIPTURA DE PODER
ESCRIPTURA DE DONACIÓ
ACTA DE MANIFESTACIONS
ESCRIPTURA DE CANCEL·LACIÓ D'HIPOTECA

:lugar_fecha
{municipio}, la meva residència, {en_letra_dia} de {mes} de dos mil {en_letra_dia}.
A {municipio}, la meva residència, a les dotze hores del dia {en_letra_dia} {de_mes} de dos mil {en_letra_dia}.
A {municipio}, el {1-31} {de_mes} de {1985-2025}.

:de_mes
de {mes}
d'abril
d'agost
d'octubre

:ante_mi
Davant meu, {conocido_nuevo}, Notari de l'Il·lustre Col·legi de Catalunya,
Davant meu, {conocido_nuevo}, Notari de l'Il.lustre Col.legi de Catalunya, amb residència a {municipio},
Davant meu, {conocido_nuevo}, Notari de {municipio}, com a substitut del meu company el senyor {conocido_nuevo}, per impossibilitat accidental, i per al seu protocol,

:conocido_nuevo
{nombre_v} {apellido} I {apellido}
{nombre_m} {apellido} {apellido}

:titulo_comparecientes
COMPAREIXEN
COMPAREIXEN:
COMPAREIX
C O M P A R E I X E N

:titulo_intervienen
INTERVENEN en nom propi.
INTERVENEN
INTERVÉ en nom propi.

:titulo_exponen
EXPOSEN:
EXPOSA
E X P O S E N
MANIFESTEN

:titulo_otorgan
ATORGUEN:
ESTIPULACIONS
CLÀUSULES

:comparecientes
D'UNA PART, COM A {papel}:|{compareciente}
I DE L'ALTRA, COM A {papel}:|{compareciente}
{compareciente}
{compareciente}

:papel
VENEDORS
COMPRADORA
PART PRESTATÀRIA
DONANTS

:compareciente
{don}, {edad}, {estado_v}, {oficio}{vecino}{domicilio}; amb {documento_uno}.{relleno}
{dona}, {edad}, {estado_m}, {oficio}{vecino}{domicilio}; amb {documento_uno}.{relleno}
{don}, {oficio}i {dona}, {oficio}majors d'edat, {casados}, veïns de {municipio} ({municipio}){domicilio}; amb DNI-NIF números {nif} i {nif}, respectivament.{relleno}
Els consorts {don} i {dona}, majors d'edat, {casados}, veïns de {municipio}{domicilio}; amb documents nacionals d'identitat números {nif} i {nif}.
{don}, {edad}, de nacionalitat {gentilicio}, no resident a Espanya, amb domicili a {nombre_via} {1-99}, {pais} ({pais}); amb passaport número {10000000-99999999} i NIE {nie}.
{don}, {edad}, {estado_v}, nascut el dia {1-31} {de_mes} de {1930-2000} a {municipio}, fill de {varon} i de {mujer}{vecino}{domicilio}, DNI {nif}.

:don
El senyor {varon}
El senyor {varon}
El Sr. {varon}
DON {varon}

:dona
La senyora {mujer}
La senyora {mujer}
la Sra. {mujer}
DONYA {mujer}

:varon
{nombre_v} {apellido} {apellido}
{nombre_v} {apellido} {apellido}
{nombre_v} {apellido} I {apellido}

:mujer
{nombre_m} {apellido} {apellido}
{nombre_m} {apellido} {apellido}
MARIA {nombre_m} {apellido} I {apellido}

:edad
major d'edat
major d'edat
de {18-99} anys d'edat

:oficio
{}
{}
fuster, 
mestra, 
bibliotecària, 
pagès jubilat, 

:estado_v
solter
vidu
divorciat
casat en règim legal de separació de béns
casat amb la senyora {mujer}
separat judicialment

:estado_m
soltera
vídua
divorciada
casada
separada
casada en règim de guanys amb el senyor {varon}
parella de fet

:casados
casats en règim legal de separació de béns
casats en règim de guanys
casats en segones núpcies
casats en règim de participació en els guanys

:vecino
{}
, veí de {municipio} ({municipio})
, veïna de {municipio}
, de veïnatge civil català, veí de {10000-52999}-{municipio}

:domicilio
{}
, amb domicili al {via} {nombre_via}, número {1-250}{piso}
, amb domicili al {via} {nombre_via}, número {1-250}{piso} ({10000-52999})
, domiciliat a {municipio}, {via} {nombre_via}, núm. {1-99}
, amb domicili a la {via} {nombre_via} {1-50}, {piso}

:via
carrer
carrer
carrer
plaça
avinguda
passeig
rambla
C/
ronda
carretera
urbanització

:piso
{}
, {1-9}r {1-4}a
, 3r B
, baixos

:documento_uno
DNI-NIF número {nif}
DNI {nif}
document nacional d'identitat número {nif}
NIE {nie}
passaport número {100000-9999999}

:intervienen
DON {conocido}, en nom i representació de la mercantil "{sociedad}", amb domicili a {municipio}, {via} {nombre_via}, número {1-99}; amb CIF número {cif}.
{don}, {edad}, {oficio}{vecino}{domicilio}, amb DNI {nif}, com a apoderat de «{sociedad}», CIF {cif}, segons poder autoritzat pel Notari de {municipio} senyor {conocido_nuevo}.
La senyora {conocido}, per si i en representació de {don}, {edad}, {estado_v}{vecino}{domicilio}, amb NIF {nif}.
Identifico els senyors compareixents pels seus documents d'identitat, que m'exhibeixen i retorno.
Tenen, a judici meu, la capacitat legal necessària per a aquesta {titulo}, i

:sociedad
L'{apellido} I FILLS, S.L.
CAIXA DE {municipio}, S.A.
PROMOCIONS {apellido}, SL
CONSTRUCCIONS {apellido} I {apellido}, S.A.

:exponen
I.- Que {don_conocido} són propietaris, per meitats indivises, de la finca següent:
{finca}
{finca}
Llinda: al front, amb replà de l'escala; a la dreta, entrant, amb la porta segona; i al fons, amb el carrer de la seva situació.{relleno}
Quota: sis enters i {unidad} centèsimes per cent.{relleno}
INSCRIPCIÓ.- Registre de la Propietat de {municipio}, volum {1-4}.{100-999}, llibre {1-999}, foli {1-225}, finca {1000-9999}, inscripció 3a.
TÍTOL.- Els pertany per compra al senyor {varon}, en escriptura autoritzada pel Notari que fou de {municipio} senyor {conocido_nuevo}, el dia {1-31} {de_mes} de {1970-2020}.
CÀRREGUES.- Lliure de càrregues i gravàmens, segons manifesten {don_conocido}.
Primer.- Que va néixer a {municipio} ({municipio}), el dia {1-31} {de_mes} de {1930-1990}, i que és fill del senyor {varon} i de la senyora {mujer}.
Que {don_conocido} ha sol·licitat un préstec de {importe}.
{don}, {estado_v}{vecino}{domicilio}, DNI {nif}, compareix també com a testimoni.

:finca
URBANA.- ENTITAT NÚMERO {en_letra}. Habitatge al pis segon, porta primera, de l'edifici situat a {municipio}, carrer {nombre_via}, número {en_letra_dia}.
RÚSTICA.- Peça de terra al terme de {municipio}, de {1-99} àrees.

:don_conocido
el senyor {conocido}
la senyora {conocido}
el senyor {conocido} i la senyora {conocido}
{conocido}

:otorgan
{ordinal}.- {don_conocido} VENEN I TRANSMETEN la finca descrita, com a cos cert, a {don_conocido}, que la COMPRA I ADQUIREIX.
{ordinal}.- {don_conocido} VEN a {don_conocido}, que compra.
{ordinal}.- El preu de la compravenda és de {importe}, que la part venedora rep.
{ordinal}.- Compareixen COM A PART PRESTATÀRIA {don_conocido}, {edad}, i {don_conocido}.
a)	{importe}, abans d'aquest acte, mitjançant transferència ordenada el dia {1-31} {de_mes} de {2000-2025}.
{ordinal}.- AMORTITZACIÓ. El termini de devolució del préstec és de {en_letra} ({12-480}) MESOS, en {12-480} quotes mensuals.
{ordinal}.- INTERESSOS. El tipus serà el que resulti de sumar a l'índex {indice} un diferencial de 0,{10-99} punts, amb un interès inicial del {1-9},{10-99} %.
{ordinal}.- La TAE del préstec és del {1-9},{10-99} per cent, i la variable del {1-9},{10-99} PER CENT.
{ordinal}.- Llega a la seva filla {mujer} la casa de {municipio}, i institueix hereus els seus fills.
{ordinal}.- Les despeses i els impostos seran a càrrec de la compradora, excepte l'impost municipal.
Sol·liciten que trameti còpia simple electrònica a l'Ajuntament de {municipio}.
{ordinal}.- Respon la finca de {10-999}.{100-999},00 € de capital i de {importe} per a costes.

:ordinal
PRIMER
SEGON
TERCER
CINQUENA
SISÈ

:indice
EURIBOR a un any
IRPH d'entitats
CECA

:importe
{centena} MIL {centena} EUROS ({10-999}.{100-999},{10-99} €)
{10-999}.{100-999} euros
{centena} MIL EUROS ({10-999}.000,00 EUROS)
{1-99}.{100-999}.{100-999} PESSETES

:centena
CENT DISSET
DOS-CENTS TRENTA
VUIT-CENTS
ONZE

:cierre
Així ho diuen i atorguen. Llegeixo aquesta escriptura, la troben conforme i la signen amb mi.|I jo, el notari, dono fe.
ATORGAMENT I AUTORITZACIÓ|Faig les reserves i els advertiments legals.|De tot el que conté aquest instrument, jo, el notari, en DONO FE.{relleno}

:en_letra
SET-CENTS QUARANTA-DOS
TRES-CENTS NORANTA-VUIT
MIL DOS-CENTS TRENTA-SIS
VUIT
DOS MIL CENT CINC
VINT-I-DOS

:en_letra_dia
quinze
vint-i-dos
vint i un
trenta-u
dos
primer

:unidad
dos
tres
cinc
nou

:mes
gener
febrer
març
maig
juny
juliol
setembre
novembre
desembre

:municipio
Girona
Figueres
REUS
Banyoles
Barcelona
L'HOSPITALET DE LLOBREGAT
Falset
Móra d'Ebre
Sant Cugat del Vallès
VIC
Tarragona

:nombre_via
de la Rutlla
de Peralada
de Sant Martirià
dels Arbres
MAJOR
d'en Robador
Monterols
de Catalunya
GRAN VIA

:nombre_v
NARCÍS
JORDI
BONAVENTURA
ORIOL
JOSEP MARIA
ENRIC
LLUÍS
JAUME
RAÜL

:nombre_m
CONXITA
GEMMA
MERITXELL
MARIA CINTA
NÚRIA
DOLORS
MONTSERRAT
JÚLIA

:apellido
GELABERTÓ
PUIGDEMUNT
BUSQUETS
FREIXA
TORRENTÓ
SERRET
ANGUERA
MUNTÉ
CASTELLVÍ
GÜELL
COL·LELL
SALELLAS
D'ABADAL

:gentilicio
francesa
alemanya
britànica
italiana
marroquina

:pais
FRANÇA
Alemanya
Itàlia
ANDORRA
)reglas";

}  // namespace

const TGramatica& ReglasCatalanas() {
    static const TGramatica reglas(CATALANAS);
    return reglas;
}

}  // namespace analizador::pruebas
