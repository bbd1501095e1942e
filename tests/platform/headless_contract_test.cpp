#include "platform/platform_contract.h"
#include "support/headless_platform.h"

namespace {

std::unique_ptr<Platform> MakeHeadless() {
    return std::make_unique<HeadlessPlatform>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Headless, PlatformContract, testing::Values(&MakeHeadless));
