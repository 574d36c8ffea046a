#include "plataforma/Rnumcad.h"
