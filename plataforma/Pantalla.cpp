#include "plataforma/Pantalla.h"
