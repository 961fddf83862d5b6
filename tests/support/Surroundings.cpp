#include "simulator/surroundings/OwnSurroundings.h"

/// Every test program has these, from before its main until after it.
const tarvo::OwnSurroundings surroundings;
