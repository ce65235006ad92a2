// The memory sinks attached to the logger at a given moment.
#pragma once

#include "host/logger_sink.h"

namespace Logger::detail {

void AttachSink(ScopedMemorySink* sink);
void DetachSink(ScopedMemorySink* sink);
void DeliverToSinks(const Record& record);
void DeliverToSinks(const OperationRecord& record);

} // namespace Logger::detail
