// The test support watches the emulator it starts: a crash or a sanitizer
// report in the emulator fails the test that used it, even when every
// assertion of the test itself passed.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <sys/stat.h>
#include <thread>

#include "cloud_test_client.h"
#include "scratch_folder.h"

namespace spacemgm_test {
namespace {

void EmulatorCrashesWhileInUse()
{
    CloudEmulator cloud;
    ASSERT_EQ(::kill(cloud.Pid(), SIGSEGV), 0);
    // The test goes on as if nothing happened; the check comes when it stops the emulator.
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
}

TEST(EmulatorHealth, CrashFailsTheTestThatUsedIt)
{
    // Plain, the crash is a death by SIGSEGV; under a sanitizer, a report and an exit status.
    EXPECT_NONFATAL_FAILURE(EmulatorCrashesWhileInUse(), "spacemgm-cloud failed: ");
}

// A stand-in that announces itself as the emulator does, writes what a
// sanitizer writes to stderr, and stops cleanly on SIGTERM.
// (The report comes before "ready", so that it is there when the test stops it.)
const char* const kReportingStandIn = R"(#!/bin/sh
trap 'exit 0' TERM
echo "==4242==ERROR: AddressSanitizer: heap-use-after-free on address 0x602000000010" >&2
echo "admin http://127.0.0.1:9/_admin"
echo ready
while :; do sleep 0.05; done
)";

void StandInReportsWhileInUse(const std::string& standIn)
{
    ::setenv("SPACEMGM_CLOUD_EXE", standIn.c_str(), 1);
    {
        CloudEmulator cloud;
        ::unsetenv("SPACEMGM_CLOUD_EXE");
        EXPECT_EQ(cloud.Stop(), 0) << "the stand-in itself stops cleanly";
    }
}

TEST(EmulatorHealth, SanitizerReportFailsTheTestThatUsedIt)
{
    ScratchFolder dir;
    const std::string standIn = dir.Write("stand-in.sh", kReportingStandIn);
    ASSERT_EQ(::chmod(standIn.c_str(), 0700), 0);
    EXPECT_NONFATAL_FAILURE(StandInReportsWhileInUse(standIn),
                            "spacemgm-cloud failed: a sanitizer reported an error");
}

TEST(EmulatorHealth, CleanStopReportsNothing)
{
    CloudEmulator cloud;
    EXPECT_EQ(cloud.Stop(), 0);
    EXPECT_EQ(cloud.Stderr(), "");
}

} // namespace
} // namespace spacemgm_test
