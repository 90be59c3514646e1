#pragma once

// The one header a host includes: values, the calculation object with its
// members, the dispatcher and the catalogue.

#include "frame/catalogue.h"
#include "frame/math.h"
#include "frame/node_type.h"
#include "frame/switches.h"
#include "value/type_registry.h"
#include "value/value.h"
