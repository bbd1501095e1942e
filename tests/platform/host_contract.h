#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "forms/drawing.h"
#include "shell/host.h"

namespace onze {

// What is on a host of some kind, whose data folder is this one.
class HostOwner {
  public:
    virtual ~HostOwner() = default;
    virtual Host host() = 0;
};

template <class Kind>
class Owned final : public HostOwner {
  public:
    template <class... Arguments>
    explicit Owned(const Arguments&... arguments) : kind_(arguments...) {}
    Host host() override { return kind_; }

  private:
    Kind kind_;
};

using HostFactory = std::unique_ptr<HostOwner> (*)(const std::filesystem::path& datas);

// What the program relies on, whatever system it runs on. Each host is put to it by an
//     INSTANTIATE_TEST_SUITE_P(Name, HostContract, testing::Values(&MakeThatHost));
class HostContract : public testing::TestWithParam<HostFactory> {
  protected:
    HostContract();
    ~HostContract() override;

    // Of the data folder, a temporary one whose name has blanks and accents.
    std::filesystem::path Place(std::string_view name) const;
    void Write(std::string_view name, std::string_view bytes) const;
    std::string Read(std::string_view name) const;
    int FilesInFolder() const;
    PicturePtr Decode(std::string_view bytes);

    const std::filesystem::path folder;
    const std::unique_ptr<HostOwner> owner;
    const Host host;
};

// What only a host on a real system can show; it is instantiated for such a host as well.
class RealHostContract : public HostContract {};

}  // namespace onze
