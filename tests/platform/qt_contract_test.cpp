#include "platform/host_contract.h"
#include "platform/qt/host.h"

namespace onze {

namespace {

std::unique_ptr<HostOwner> MakeQt(const std::filesystem::path& datas) {
    return std::make_unique<Owned<QtHost>>(datas);
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Qt, HostContract, testing::Values(&MakeQt));
INSTANTIATE_TEST_SUITE_P(Qt, RealHostContract, testing::Values(&MakeQt));

}  // namespace onze
