#include "platform/platform_contract.h"
#include "platform/windows/windows_platform.h"

namespace {

std::unique_ptr<Platform> MakeWindows() {
    return std::make_unique<WindowsPlatform>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Windows, PlatformContract, testing::Values(&MakeWindows));
INSTANTIATE_TEST_SUITE_P(Windows, RealPlatformContract, testing::Values(&MakeWindows));
