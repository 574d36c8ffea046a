/*
 * analizador.h: the analysis of Spanish notarial deeds for host programs in any language that can call C.
 *
 *   analizador_sesion* sesion;
 *   if (analizador_abre(ANALIZADOR_VERSION_INTERFAZ, NULL, NULL, &sesion) != ANALIZADOR_BIEN)
 *       fail(analizador_error(NULL));
 *   if (analizador_analiza_fichero(sesion, "deed.docx", 0) != ANALIZADOR_BIEN)
 *       fail(analizador_error(sesion));
 *   for (int i = 0; i < analizador_cuenta(sesion, "/Otorgantes"); ++i) ...
 *   puts(analizador_texto(sesion, "/Pizarra"));
 *   analizador_cierra(sesion);
 *
 * Texts. Every text ends in a zero. A function whose name ends in 16 takes or returns UTF-16 in the machine's
 * byte order, without a byte-order mark; the one without takes or returns UTF-8; both do the same. File and
 * folder names are such texts too. A text in another encoding is refused (ANALIZADOR_MAL_TEXTO).
 *
 * Ownership. A text that is handed over is copied. A text that is returned belongs to the session: the host
 * never frees it, and copies it when it wants it for longer than the function says. A session is all that a
 * host must give back.
 *
 * Results. A function that returns int returns one of the codes below unless it says otherwise. Nothing is
 * ever thrown. The reason of a failure, one line of Castilian for the user, is what analizador_error returns.
 *
 * Threads. Sessions are independent: each may be used from any thread, by one thread at a time, and several
 * may analyse at once; while the windows of a review are open the others wait. Opening and closing sessions
 * is safe from any thread. An analysis keeps the calling thread until it is done. A call with a session that
 * is in another call (of another thread; or of the same one, from an event that comes in while Word answers)
 * does nothing and fails with ANALIZADOR_MAL_USO; until that other call ends, analizador_error of the session
 * is the reason of the calls that it refused to this thread.
 *
 * Calls use the C convention of the platform (cdecl). The floating-point settings of the calling thread are
 * put aside during each call and put back after it.
 */
#ifndef ANALIZADOR_H
#define ANALIZADOR_H

#include <stdint.h>

#if defined(_WIN32) && defined(ANALIZADOR_EXPORTA)
#define ANALIZADOR_API __declspec(dllexport)
#elif defined(_WIN32)
#define ANALIZADOR_API __declspec(dllimport)
#elif defined(__GNUC__)
#define ANALIZADOR_API __attribute__((visibility("default")))
#else
#define ANALIZADOR_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The functions that this header declares: raised by one whenever some are added. None is ever removed or
   changed under the same name of the library's file. */
#define ANALIZADOR_VERSION_INTERFAZ 2

/* What the functions return. */
enum {
    ANALIZADOR_BIEN = 0,
    ANALIZADOR_MAL_USO = 1,        /* an argument is null or has no meaning there */
    ANALIZADOR_MAL_TEXTO = 2,      /* a text is not UTF-8, or not UTF-16 */
    ANALIZADOR_OTRA_INTERFAZ = 3,  /* the library is older than the header of the host */
    ANALIZADOR_CONFIGURACION = 4,  /* folders, vocabularies or OFICINA.INI that cannot be used */
    ANALIZADOR_NO_ANALIZADA = 5,   /* the deed could not be read or analysed */
    ANALIZADOR_NO_GUARDADA = 6,    /* the document could not be saved; the file that was there is whole */
    ANALIZADOR_SIN_RESULTADOS = 7, /* nothing was analysed, or the last analysis failed */
    ANALIZADOR_NO_HAY = 8,         /* no such fact in the results */
    ANALIZADOR_SIN_VENTANAS = 9,   /* a review was asked for and no windows are installed */
    ANALIZADOR_FALLO = 10          /* anything else: no memory, for instance */
};

/* Options: 0, or some of these added. */
enum {
    ANALIZADOR_CON_REVISION = 1, /* analysing: the user reviews what was found, in windows */
    ANALIZADOR_CON_ORIGEN = 2,   /* analysing: the results also tell where each fact was read, in /Origen */
    ANALIZADOR_FORZAR = 4        /* saving: even a document that is open elsewhere, changed or signed */
};

/* A unit of UTF-16. On Windows it is wchar_t by another name. */
typedef uint16_t analizador_utf16;

typedef struct analizador_sesion analizador_sesion;

/* ---- Versions */

/* The version of the library as text, "1.2.3". Valid for ever. */
ANALIZADOR_API const char* analizador_version(void);

/* The ANALIZADOR_VERSION_INTERFAZ of the library. */
ANALIZADOR_API int analizador_interfaz(void);

/* Whether the library has all that a host compiled with the header `interfaz` may call: ANALIZADOR_BIEN or
   ANALIZADOR_OTRA_INTERFAZ. analizador_abre asks the same. */
ANALIZADOR_API int analizador_comprueba(int interfaz);

/* ---- Sessions */

/* Opens a session and leaves it in `*sesion`; NULL there when it fails, and then analizador_error(NULL) tells
   why.

   `interfaz`: ANALIZADOR_VERSION_INTERFAZ. `vocabularios`: the folder of CASTELLANO.INI, CATALAN.INI and,
   where there is one, OFICINA.INI; NULL: CONFIG beside the host program, else in its installed share folder,
   else, on Windows, beside the library. `tablas`: the folder of the reference tables; NULL: the one that
   OFICINA.INI says, else TABLAS in the folder where CONFIG was looked for.

   The folders are the same for all the sessions of a process: while some are open, NULL means theirs and
   other folders are refused (ANALIZADOR_CONFIGURACION). Names that are not absolute count from the current
   folder as it is now. */
ANALIZADOR_API int analizador_abre(int interfaz, const char* vocabularios, const char* tablas,
                                   analizador_sesion** sesion);
ANALIZADOR_API int analizador_abre16(int interfaz, const analizador_utf16* vocabularios,
                                     const analizador_utf16* tablas, analizador_sesion** sesion);

/* Ends a session: it and its texts no longer exist. NULL is nothing to do; a busy one stays. */
ANALIZADOR_API void analizador_cierra(analizador_sesion* sesion);

/* Why the last call with this session failed; "" when it did not. NULL: the same of the last call of this
   thread that had no session. Valid until the next call with the session (of the thread). Never NULL. What is
   longer than 4,095 bytes of UTF-8 is cut at a letter. */
ANALIZADOR_API const char* analizador_error(analizador_sesion* sesion);
ANALIZADOR_API const analizador_utf16* analizador_error16(analizador_sesion* sesion);

/* ---- Analyses. Each one first forgets the results of the one before, and with them their texts. */

/* Analyses a document file (.docx, .docm, .dotx, .dotm), which is read whole and never written. `opciones`:
   ANALIZADOR_CON_REVISION, ANALIZADOR_CON_ORIGEN. ANALIZADOR_NO_ANALIZADA where the library was built without
   what reads files, as it may be on Windows. */
ANALIZADOR_API int analizador_analiza_fichero(analizador_sesion* sesion, const char* fichero,
                                              unsigned opciones);
ANALIZADOR_API int analizador_analiza_fichero16(analizador_sesion* sesion, const analizador_utf16* fichero,
                                                unsigned opciones);

/* Analyses a deed that the host holds: its paragraphs, each ended by CR, LF or both, as the word processor
   gives them (a table cell ends in CR and 7, a manual line break is 11, ...). `opciones` as above. The
   variables and bookmarks set before belong to this deed and are forgotten by the next analysis of any kind,
   failed or not. */
ANALIZADOR_API int analizador_analiza_texto(analizador_sesion* sesion, const char* texto, unsigned opciones);
ANALIZADOR_API int analizador_analiza_texto16(analizador_sesion* sesion, const analizador_utf16* texto,
                                              unsigned opciones);

/* Analyses the document that is active in Word, which gets the bookmarks of its sections; on other systems
   ANALIZADOR_NO_ANALIZADA. `aplicacion`: the IDispatch of Word's Application object, which is not kept; NULL:
   the Word that is running. COM is started on this thread for as long as it lasts when the host has not.
   `opciones`: ANALIZADOR_CON_REVISION. Since interface 2. */
ANALIZADOR_API int analizador_analiza_word(analizador_sesion* sesion, void* aplicacion, unsigned opciones);

/* Sets a document variable of the text that is analysed next: EMPLEADO, who wrote the deed; XML, what the
   host stored with it. Of two of one name (in any case) the first counts. */
ANALIZADOR_API int analizador_pon_variable(analizador_sesion* sesion, const char* nombre, const char* valor);
ANALIZADOR_API int analizador_pon_variable16(analizador_sesion* sesion, const analizador_utf16* nombre,
                                             const analizador_utf16* valor);

/* Tells that the text that is analysed next has a bookmark: those called FINCA_... name the land parcels. */
ANALIZADOR_API int analizador_pon_marcador(analizador_sesion* sesion, const char* nombre);
ANALIZADOR_API int analizador_pon_marcador16(analizador_sesion* sesion, const analizador_utf16* nombre);

/* ---- Results */

/* A fact as text, by its place in the JSON of the results, written as a JSON pointer (ASCII, also in the
   UTF-16 variant): "/Cabecera/Notario", "/Otorgantes/0/Apellidos" (counted from 0), "/Cuantias/2",
   "/Operacion/Plazos/0",
   "/Pizarra" (the report, lines ended by CR and LF), "/idioma", and "" for the whole JSON on one line.

   A text is itself, a number its digits, a yes or no "true" or "false", null "", a list or record its JSON.
   NULL when there is no such place, or no results: analizador_error tells which. Valid until the next
   analysis or the end of the session, whatever else is asked meanwhile. */
ANALIZADOR_API const char* analizador_texto(analizador_sesion* sesion, const char* donde);
ANALIZADOR_API const analizador_utf16* analizador_texto16(analizador_sesion* sesion, const char* donde);

/* How many elements a list of the results has: "/Otorgantes", "/Conceptos", "/Cuantias", "/Fincas",
   "/Operacion/Plazos", ... -1 when there is no such list, or no results. */
ANALIZADOR_API int analizador_cuenta(analizador_sesion* sesion, const char* donde);

/* 1 when the user accepted in the review; 0 when not, as always without a review; -1 without results. */
ANALIZADOR_API int analizador_aceptada(analizador_sesion* sesion);

/* Saves the analysed file with the bookmarks of the sections that were found, all else unchanged. `destino`:
   the new file, which may be there already; NULL: onto the analysed file itself. `opciones`:
   ANALIZADOR_FORZAR. ANALIZADOR_SIN_RESULTADOS also when what was analysed is no file. After a failure the
   old file is whole. */
ANALIZADOR_API int analizador_guarda(analizador_sesion* sesion, const char* destino, unsigned opciones);
ANALIZADOR_API int analizador_guarda16(analizador_sesion* sesion, const analizador_utf16* destino,
                                       unsigned opciones);

#ifdef __cplusplus
}
#endif

#endif
