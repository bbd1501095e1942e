#include "platform/host_contract.h"
#include "platform/windows/host.h"

namespace onze {

namespace {

std::unique_ptr<HostOwner> MakeWindows(const std::filesystem::path& datas) {
    return std::make_unique<Owned<WindowsHost>>(datas);
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Windows, HostContract, testing::Values(&MakeWindows));
INSTANTIATE_TEST_SUITE_P(Windows, RealHostContract, testing::Values(&MakeWindows));

}  // namespace onze
