// The stand-alone host's log files. Each channel (module name and severity
// suffix, "subSpaceManage_INFO") has its own file "<channel>.log" in the log
// folder of the configuration in force; a line reads
//
//     2024-05-01 12:34:56.789 [4711] SpaceMgmWnd::Notify(210) message
//
// with local time, the kernel's thread id, function, source line and the
// message. Lines are buffered unless the caller asks for a flush. Operation
// records go, one JSON object per line, to "operations.jsonl" and are
// written at once. With an empty log folder nothing is written to files.
#pragma once

#include <string>

namespace host {

// The channel a module and severity are filed under; numbers outside the
// two name lists give "module<N>" and "_<N>".
std::string LogChannelName(int module, int severity);

// Writes out every buffered line (also done at exit).
void FlushLogFiles();

} // namespace host
