// The machine's OEM information as the host keeps it: on Windows the value
// "Model" under HKLM "SOFTWARE\Microsoft\Windows\CurrentVersion\OEMInformation".
#pragma once

#include <optional>
#include <string>

// The model text, cut at its first zero byte; nullopt when the value is not
// set. An empty text is a value that is set.
std::optional<std::string> ReadOemModelValue();
