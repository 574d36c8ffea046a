#include "plataforma/Rut.h"
