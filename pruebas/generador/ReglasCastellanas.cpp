#include "pruebas/generador/Reglas.h"

namespace analizador::pruebas {

namespace {

constexpr std::string_view CASTELLANAS = R"reglas(
:cabecera
NÚMERO {en_letra}.{relleno}|{titulo}{relleno}|{lugar_fecha}{relleno}|{ante_mi}{relleno}
NÚMERO {en_letra} ({1-9999}).{relleno}|{titulo}{relleno}|{lugar_fecha}|{ante_mi}
{titulo}{relleno}|NÚMERO {100-9999}.{relleno}|{lugar_fecha}{relleno}|{ante_mi}
Nº {100-4000}|{titulo}|{lugar_fecha} {ante_mi}

:relleno
{}
 ---------------
 -----------------------------
.-

:titulo
ESCRITURA DE COMPRAVENTA
ESCRITURA DE COMPRAVENTA.
ESCRITURA DE PRÉSTAMO HIPOTECARIO
ESCRITURA DE COMPRAVENTA Y PRÉSTAMO CON GARANTÍA HIPOTECARIA
TESTAMENTO ABIERTO
ESCRITURA DE PODER ESPECIAL
ESCRITURA DE DONACIÓN
ACTA DE MANIFESTACIONES
ESCRITURA DE CANCELACIÓN DE HIPOTECA
ESCRITURA DE HERENCIA Y EXTINCIÓN DE CONDOMINIO

:lugar_fecha
En {municipio}, mi residencia, a {en_letra_dia} de {mes} de dos mil {en_letra_dia}.
EN {municipio}, mi residencia, a {1-31} de {mes} de {1985-2025}.
En mi despacho de {municipio}, siendo las once horas del día {en_letra_dia} de {mes} de dos mil {en_letra_dia}.
En {municipio}, a {en_letra_dia} de {mes} de mil novecientos noventa y {unidad}.

:ante_mi
Ante mí, {conocido_nuevo}, Notario del Ilustre Colegio de {municipio},
Ante mí, DON {conocido_nuevo}, Notario de {municipio} y del Ilustre Colegio de {municipio}
Ante mí, {conocido_nuevo}, Notario de {municipio}, como sustituto de mi compañero de residencia DON {conocido_nuevo}, por imposibilidad accidental, y para su protocolo,
YO, {conocido_nuevo}, Notario del Ilustre Colegio de {municipio}, con residencia en esta ciudad,

:conocido_nuevo
{nombre_v} {apellido} {apellido}
{nombre_m} {apellido} DE {apellido}

:titulo_comparecientes
COMPARECEN
COMPARECE
COMPARECEN:
--------------- C O M P A R E C E N ---------------
----------------- COMPARECEN -----------------

:titulo_intervienen
INTERVIENEN
INTERVIENEN en su propio nombre y derecho.
----------------- I N T E R V I E N E N -----------------
INTERVIENE

:titulo_exponen
EXPONEN
EXPONE:
--------------- E X P O N E N ---------------
MANIFIESTAN

:titulo_otorgan
ESTIPULACIONES
OTORGAN
CLÁUSULAS
--------------- E S T I P U L A C I O N E S ---------------

:comparecientes
DE UNA PARTE, COMO {papel}:|{compareciente}
Y DE OTRA, COMO {papel}:|{compareciente}
{compareciente}
{compareciente}
Y DE OTRA PARTE, {compareciente}

:papel
VENDEDORES
COMPRADORES
PARTE PRESTATARIA
DONANTES
COMPRADORA

:compareciente
{don}, {edad}, {estado_v}, {oficio}{vecino}{domicilio}; con {documento_uno}.{relleno}
{dona}, {edad}, {estado_m}, {oficio}{vecino}{domicilio}; con {documento_uno}.{relleno}
Los cónyuges {don}, {oficio}y {dona}, {oficio}mayores de edad, {casados}{vecinos}{domicilio}; con D.N.I. y N.I.F. números {nif} y {nif}, respectivamente.{relleno}
{don} y {dona}, mayores de edad, solteros{vecinos}{domicilio}; con Documentos Nacionales de Identidad números {nif} y {nif}.
{don}, {edad}, de nacionalidad {gentilicio}, no residente en España{domicilio_fuera}; con pasaporte de su nacionalidad número {10000000-99999999} y N.I.E. {nie}.
{dona}, de nacionalidad {gentilicio}, {estado_m}{vecino}{domicilio}; con tarjeta de residencia y N.I.E. número {nie}.
{don}, {edad}, {estado_v}, nacido el día {1-31} de {mes} de {1930-2000} en {municipio}, hijo de {varon} y de {mujer}{vecino}{domicilio}, D.N.I. {nif}.
{don}, {edad}, {vecino}{domicilio}; con D.N.I. número {nif}; y {dona}, {edad}, {estado_m}, del mismo domicilio, con N.I.F. {nif}.

:don
DON {varon}
DON {varon}
D. {varon}
Don {varon}
:dona
DOÑA {mujer}
DOÑA {mujer}
Dª {mujer}
Doña {mujer}
:varon
{nombre_v} {apellido} {apellido}
{nombre_v} {apellido} {apellido}
{nombre_v} {nombre_v} {apellido} {apellido}
{nombre_v} DE {apellido} Y {apellido}
:mujer
{nombre_m} {apellido} {apellido}
{nombre_m} {apellido} {apellido}
MARÍA DEL {nombre_m} {apellido} {apellido}
{nombre_m} {nombre_m} DE LA {apellido}

:edad
mayor de edad
mayor de edad
de {18-99} años de edad
:oficio
{}
{}
jubilado, 
maestra, 
ingeniero, 
empleado, 
sus labores, 
:estado_v
soltero
viudo
divorciado
casado en régimen de gananciales
casado en segundas nupcias con DOÑA {mujer}
separado judicialmente
casado con DOÑA {mujer}, en régimen de separación de bienes
:estado_m
soltera
viuda
divorciada
casada
separada
casada bajo el régimen de participación con DON {varon}
pareja de hecho de DON {varon}
:casados
casados en régimen legal de gananciales
casados en régimen de separación de bienes, pactado en capitulaciones
casados en segundas nupcias
casados
casados en régimen económico de participación en las ganancias
:vecino
{}
, vecino de {postal}{municipio}
, vecina de {municipio} ({municipio})
, vecino de {municipio}

:vecinos
, vecinos de {postal}{municipio}
, vecinos de {municipio} ({municipio})
, ambos vecinos de {municipio}
:postal
{}
{10000-52999}-

:domicilio
{}
, con domicilio en la {via} {nombre_via}, número {1-250}{piso}
, con domicilio en {via} {nombre_via} {1-99}, {piso}
, con domicilio en el {via} de {nombre_via}, nº {1-80}, código postal {10000-52999}
, domiciliado en {via} {nombre_via}, número {en_letra_dia}{piso} ({10000-52999})
, con domicilio en la {via} {nombre_via}, sin número

:domicilio_fuera
, con domicilio en {nombre_via} {1-99}, {ciudad_fuera} ({pais})
, con domicilio en {nombre_via} {1-99}, {ciudad_fuera} (REINO UNIDO), y a efectos de notificaciones en {municipio}
:via
calle
calle
avenida
Plaza
paseo
C/
Avda.
ronda
carretera
urbanización
rambla
travesía
:piso
{}
, piso {1-9}º, letra {letra}
, {1-9}º {letra}
, bajo

:letra
A
B
C
D
:documento_uno
D.N.I. y N.I.F. número {nif}
D.N.I. {nif}
Documento Nacional de Identidad número {nif}
DNI/NIF {nif}
N.I.E. {nie}
pasaporte de su nacionalidad número {100000-9999999}
carta de identidad de su país número AX{1000000-9999999}

:intervienen
Todos ellos en su propio nombre y derecho.
DON {conocido}, en nombre y representación de la mercantil "{sociedad}", con domicilio en {municipio}, {via} {nombre_via}, número {1-99}; con C.I.F. número {cif}.
{don}, {edad}, {oficio}{vecino}{domicilio}, con D.N.I. {nif}, como apoderado de «{sociedad}», C.I.F. {cif}, en virtud de poder otorgado ante el Notario de {municipio} Don {conocido_nuevo}.
DOÑA {conocido}, por sí y en representación de DON {varon}, {edad}, {estado_v}{vecino}{domicilio}, con N.I.F. {nif}.
Les identifico por sus reseñados documentos de identidad, que me exhiben y devuelvo.
Tienen, a mi juicio, la capacidad legal necesaria para otorgar la presente {titulo}, y a tal fin,
DON {conocido}, como administrador único de la entidad "{sociedad}", con N.I.F. {cif}.
:sociedad
{apellido} E HIJOS, S.L.
BANCO DE {municipio}, S.A.
PROMOCIONES {apellido}, SOCIEDAD LIMITADA
CONSTRUCCIONES {apellido} Y {apellido}, S.A.
CAJA RURAL DE {municipio}, SOCIEDAD COOPERATIVA DE CRÉDITO

:exponen
{romano}.- Que {don_conocido} es dueño del pleno dominio de la siguiente finca:
{finca}
{finca}
LINDA: al frente, con rellano de escalera; derecha entrando, con la vivienda letra {letra}; izquierda, con la calle de su situación; y fondo, con la casa número {en_letra_dia} de la misma calle.{relleno}
CUOTA: {unidad} enteros y diez centésimas por ciento.{relleno}
INSCRIPCIÓN.- Registro de la Propiedad número {1-20} de {municipio}, tomo {1-4}.{100-999}, libro {1-999}, folio {1-225}, finca {1000-59999}, inscripción {1-9}ª.
TÍTULO.- Les pertenece por compra a la mercantil "{sociedad}", en escritura autorizada por el que fue Notario de {municipio} Don {varon}, el día {1-31} de {mes} de {1970-2020}.
CARGAS.- Libre de cargas y gravámenes, según aseguran {don_conocido}, {edad}.
Primero.- Que nació en {municipio} ({municipio}), el día {1-31} de {mes} de {1930-1990}, y que es hija de Don {varon} y de Doña {mujer}, ya fallecidos.
Segundo.- Que contrajo matrimonio en únicas nupcias con {don}, del que se halla viuda, y de dicho matrimonio tiene {unidad} hijos.
Que {don_conocido} ha solicitado del Banco un préstamo de {importe}.
{don}, {estado_v}{vecino}{domicilio}, D.N.I. {nif}, comparece igualmente como testigo.
:finca
URBANA.- NÚMERO {en_letra}. Vivienda en planta {en_letra_dia}, letra {letra}, del edificio en {municipio}, calle {nombre_via}, número {en_letra_dia}. Ocupa una superficie construida de {10-300} metros cuadrados.
RÚSTICA.- Tierra de secano en término de {municipio}, al sitio de {nombre_via}, de {1-99} áreas.
:romano
I
II
III
:don_conocido
DON {conocido}
DOÑA {conocido}
los cónyuges DON {conocido} y DOÑA {conocido}
{conocido}

:otorgan
{ordinal}.- {don_conocido} VENDEN Y TRANSMITEN, como cuerpo cierto, a {don_conocido}, que COMPRAN Y ADQUIEREN, el pleno dominio de la finca descrita.
{ordinal}.- {don_conocido} VENDE a {don_conocido}, que compra para su sociedad de gananciales.
{ordinal}.- El precio de esta compraventa es el de {importe}, que la parte vendedora confiesa recibidos.
{ordinal}.- Comparecen COMO PARTE PRESTATARIA {don_conocido}, {edad}, y {don_conocido}.
a)	{importe}, en concepto de arras, mediante transferencia ordenada el día {1-31} de {mes} de {2000-2025}.
{ordinal}.- AMORTIZACIÓN. El plazo de devolución del préstamo es de {en_letra} ({12-480}) MESES, en {12-480} cuotas mensuales.
{ordinal}.- PLAZO. El préstamo durará {unidad} años, y se pagará en un plazo de {12-480} meses, prorrogable por otros {en_letra_dia} meses.
{ordinal}.- INTERESES. El tipo será el que resulte de sumar al índice {indice} un diferencial de 0,{10-99} puntos, con un interés inicial del {1-9},{10-99} %.
{ordinal}.- La T.A.E. del préstamo es del {1-9},{10-99} por ciento, y la variable del {1-9},{10-99} POR CIENTO.
{ordinal}.- Lega a su hija {mujer} la casa de {municipio}, e instituye herederos a sus hijos.
{ordinal}.- Todos los gastos e impuestos que se deriven de este otorgamiento serán de cuenta de la parte compradora, excepto el impuesto municipal.
{ordinal}.- La entrega de la posesión se entiende verificada por el otorgamiento de la presente.
Solicitan de mí, el Notario, que remita copia simple electrónica al Ayuntamiento de {municipio}.
Faculta a {don}, con D.N.I. {nif}, para que venda, hipoteque o grave la finca por {importe}.
{ordinal}.- Responde la finca de {10-999}.{100-999},00 € de capital, de {1-9}.{100-999},50 euros de intereses y de {importe} para costas.
:ordinal
PRIMERA
SEGUNDA
TERCERA
CUARTA
QUINTA
SEXTA BIS
DÉCIMA
:indice
EURIBOR a un año
IRPH de entidades
CECA, tipo activo
que publique el Banco de España
:importe
{centena} MIL {centena} EUROS ({10-999}.{100-999},{10-99} €)
{10-999}.{100-999} euros
{centena} MIL EUROS ({10-999}.000,00 EUROS)
{1-99}.{100-999}.{100-999} PESETAS ({1000-9999},{10-99} €)
{1-9},5 euros
:centena
CIEN
DOSCIENTOS TREINTA
CUATROCIENTOS DOCE
MIL
NOVENTA Y CINCO

:cierre
Así lo dicen y otorgan, y leída esta escritura por mí, el Notario, la aprueban y firman.|Y yo, el Notario, doy fe.
OTORGAMIENTO Y AUTORIZACIÓN|Formulo las reservas y advertencias legales.|De todo lo cual, y de quedar extendida en {1-20} folios de papel exclusivo para documentos notariales, yo, el Notario, DOY FE.{relleno}

:en_letra
MIL DOSCIENTOS TREINTA Y SEIS
CUATROCIENTOS SETENTA
DOS MIL CIENTO CINCO
OCHO
TRESCIENTOS
CIENTO VEINTE
TRESCIENTAS SESENTA
VEINTIDÓS
:en_letra_dia
uno
nueve
quince
veinte y dos
veintitrés
dieciséis
treinta y uno
primero
:unidad
dos
tres
cinco
nueve
:mes
enero
febrero
marzo
abril
mayo
junio
julio
agosto
septiembre
octubre
noviembre
diciembre
setiembre
:municipio
VALLADOLID
MADRID
Barcelona
ALCALÁ DE HENARES
Cuenca
Cáceres
LEGANÉS
Fuengirola
SAN SEBASTIÁN
PALMA
La Coruña
Utebo
MÁLAGA
Palencia
L'Hospitalet de Llobregat
Zaragoza
Jerez de la Frontera
Trujillo
:nombre_via
MAYOR
de la Mantería
de Castilla
DEL PRADO
Doctor Fleming
los Olmos
de la Constitución
GRAN VÍA
Embajadores
San Isidro Labrador
Goya
:nombre_v
TEODORO
JUAN
JOSÉ MARÍA
ÁLVARO
LUIS
FRANCISCO JAVIER
RAMIRO
ÍÑIGO
JESÚS
LARS HENRIK
MANUEL
ANTONIO
:nombre_m
ASUNCIÓN
MARÍA JOSÉ
IRENE
PILAR
BEATRIZ
CARMEN
MARÍA ÁNGELES
INGRID
ROSALÍA
ANA
BEGOÑA
LUISA FERNANDA
:apellido
MANRIQUE
CASTRILLO
VILLAFRUELA
PASTOR
REBOLLEDO
SANTANDER
MUÑOZ
GARCÍA
DEL RÍO
PEÑALBA
LÓPEZ
CID
QUINTANILLA
BURÓN
AGÜERO
SÖDERQVIST
O'DONNELL
GARCÍA-LUENGO
DONOSO
:gentilicio
sueca
británica
alemana
francesa
italiana
rumana
marroquí
noruega
holandesa
:ciudad_fuera
Uppsala
Londres
Colonia
Utrecht
:pais
Suecia
Alemania
FRANCIA
Holanda
Noruega
)reglas";

}  // namespace

const TGramatica& ReglasCastellanas() {
    static const TGramatica reglas(CASTELLANAS);
    return reglas;
}

}  // namespace analizador::pruebas
