// Attribute-carrying enumerations and both catalogues: the base class and
// its attributes (enum_types.h), the request tables with their log codes and
// commands (request_catalogue.h) and the operation events
// (operation_events.h).
#pragma once

#include "foundation/enum_types.h"
#include "foundation/operation_events.h"
#include "foundation/request_catalogue.h"
