#include "plataforma/Rficheros.h"
