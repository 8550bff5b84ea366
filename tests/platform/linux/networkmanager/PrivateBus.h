#pragma once

#include "support/PrivateBus.h"
