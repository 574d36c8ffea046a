#include "plataforma/Confnvx.h"
