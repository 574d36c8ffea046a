#include "plataforma/Ansi.h"
