/* A host program in C: prints the report of a deed, its language and its amounts, or the JSON of its facts.

     cc -std=c99 anfitrion.c $(pkg-config --cflags --libs analizador) -o anfitrion
     ./anfitrion [--json] VOCABULARIES TABLES DEED.docx                                                    */

#include <analizador.h>
#include <stdio.h>
#include <string.h>

static int fails(analizador_sesion* session) {
    fprintf(stderr, "%s\n", analizador_error(session));
    analizador_cierra(session);
    return 1;
}

/* The report's lines end in CR and LF. */
static void print_report(const char* report) {
    for (; *report != '\0'; ++report)
        if (*report != '\r') putchar(*report);
}

static void print_amounts(analizador_sesion* session) {
    int i;
    printf("\nCUANTIAS     : ");
    for (i = 0; i < analizador_cuenta(session, "/Cuantias"); ++i) {
        char where[32];
        sprintf(where, "/Cuantias/%d", i);
        printf("%s%s", i == 0 ? "" : "\n               ", analizador_texto(session, where));
    }
    printf("\n");
}

int main(int argc, char** argv) {
    const int json = argc > 1 && strcmp(argv[1], "--json") == 0;
    analizador_sesion* session;
    if (argc != 4 + json) {
        fprintf(stderr, "anfitrion [--json] VOCABULARIES TABLES DEED\n");
        return 2;
    }
    argv += json;

    if (analizador_abre(ANALIZADOR_VERSION_INTERFAZ, argv[1], argv[2], &session) != ANALIZADOR_BIEN)
        return fails(NULL);
    if (analizador_analiza_fichero(session, argv[3], 0) != ANALIZADOR_BIEN) return fails(session);

    if (json) {
        printf("%s\n", analizador_texto(session, ""));
    } else {
        const int castilian = strcmp(analizador_texto(session, "/idioma"), "castellano") == 0;
        print_report(analizador_texto(session, "/Pizarra"));
        printf("\nIDIOMA       : %s", castilian ? "CASTELLANO" : "CATALAN");
        print_amounts(session);
    }
    analizador_cierra(session);
    return 0;
}
