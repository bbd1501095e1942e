#include "platform/host_contract.h"
#include "support/headless_host.h"

namespace onze {

namespace {

std::unique_ptr<HostOwner> MakeHeadless(const std::filesystem::path&) {
    return std::make_unique<Owned<HeadlessHost>>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Headless, HostContract, testing::Values(&MakeHeadless));

}  // namespace onze
