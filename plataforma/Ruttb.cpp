#include "plataforma/Ruttb.h"
