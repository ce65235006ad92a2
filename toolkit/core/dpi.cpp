#include "toolkit/core/dpi.h"

#include <atomic>
#include <cmath>

namespace DuiLib {

namespace {

std::atomic<int> g_processDpi{96};

} // namespace

CDPI::CDPI() : m_dpi(GetProcessDPI()) {}

void CDPI::SetScale(int dpi)
{
    m_dpi = dpi > 0 ? dpi : 96;
}

int CDPI::Scale(int value) const
{
    return static_cast<int>(std::lround(value * GetScaleFactor()));
}

int CDPI::ScaleBack(int value) const
{
    return static_cast<int>(std::lround(value / GetScaleFactor()));
}

void CDPI::SetProcessDPI(int dpi)
{
    g_processDpi.store(dpi > 0 ? dpi : 96);
}

int CDPI::GetProcessDPI()
{
    return g_processDpi.load();
}

} // namespace DuiLib
