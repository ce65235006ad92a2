#pragma once
// Keeps a file holding a window's control dump (control_dump.h) up to date:
// the paint manager refreshes it after each frame it paints, and the file
// is rewritten only when the dump changed.

#include <string>

namespace DuiLib {

class CPaintManagerUI;

class ControlDumpFile
{
public:
    // An empty path stops the rewriting.
    void SetPath(std::string path);
    const std::string& Path() const { return m_path; }
    void Refresh(CPaintManagerUI& manager);

private:
    std::string m_path;
    std::string m_written;
    // A path that cannot be written is reported once, not once a frame.
    bool m_failureReported = false;
};

} // namespace DuiLib
