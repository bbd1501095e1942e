#include "platform/platform_contract.h"
#include "platform/qt/qt_platform.h"

namespace {

std::unique_ptr<Platform> MakeQt() {
    return std::make_unique<QtPlatform>(FindExecutableFolder("/proc/self/exe"));
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Qt, PlatformContract, testing::Values(&MakeQt));
INSTANTIATE_TEST_SUITE_P(Qt, RealPlatformContract, testing::Values(&MakeQt));
