#pragma once
// What a fired fault rule does to the reply of a service.
#include <json/json.h>

#include "faults.h"
#include "routes.h"
#include "service_profiles.h"

namespace cloud {

// Cut and hang end the connection in the middle of a reply.
bool EndsConnection(FaultKind kind);
// Status, empty, emptyArray and notJson answer in place of the service: its
// checks do not run and the account does not change.
bool ReplacesService(FaultKind kind);

// The reply that stands in for the service's.
Reply ReplacementReply(const FaultRule& rule, const ServiceProfile& profile);
// Changes the service's own reply as a wrongTypes or truncated rule asks.
void AlterReply(const FaultRule& rule, Reply& reply);

// Every scalar changes type: numbers and booleans become text, text becomes
// an object. A reader expecting the documented types finds none of them.
Json::Value WithWrongTypes(const Json::Value& value);

} // namespace cloud
