#include "plataforma/Rvarias.h"
