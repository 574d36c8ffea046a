#include "plataforma/FicheroIni.h"
