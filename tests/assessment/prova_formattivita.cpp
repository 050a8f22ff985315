// Stage 1 as the practitioner uses it: sport on top of the ration, the rhythm of the meals, what is stored of both.
#include "ambiente.h"
