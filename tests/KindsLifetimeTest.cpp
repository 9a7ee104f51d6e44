#include "KindsFixture.h"
